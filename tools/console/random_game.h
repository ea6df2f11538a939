#pragma once

#include <cstdint>
#include <ostream>

namespace tarnwick {

/// Plays numbered deal `deal` at random, with some liking for moves that are allowed, and writes the record
/// of it, as far as the stream takes it. The same deal always gives the same record.
void write_random_game(std::uint32_t deal, int actions, std::ostream& record);

}  // namespace tarnwick

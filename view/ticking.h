#pragma once

#include <cstdint>
#include <optional>

namespace tarnwick {

/// Milliseconds until the next timer of the program is due, 0 for one that is late; nothing where none runs,
/// and while a question is open, for which all of them wait. To be asked whenever the desktop is told that
/// its timers have changed, and at the end of an event, during which none of them ticks: the answer to a
/// question is one.
std::optional<std::int64_t> time_to_next_tick();

}  // namespace tarnwick

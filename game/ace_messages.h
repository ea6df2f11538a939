#pragma once

#include <string>

namespace tarnwick {

/// What an ace pile waits for, told to a player whose card was refused; empty when there is nothing to tell.
std::string ace_pile_message(int top_rank, int beneath_rank, int pile_suit);

}  // namespace tarnwick

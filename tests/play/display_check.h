#pragma once

#include <string>

namespace tarnwick {

/// What is wrong with the images of the table compared with the state; empty when every card is seen exactly
/// where it lies and nothing else is. For a table that is being played on: not while a card slides, and not
/// from the end of a game to the next deal.
std::string display_faults();

}  // namespace tarnwick

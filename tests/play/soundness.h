#pragma once

#include <string>

namespace tarnwick {

/// What is wrong with the state of the game, one sentence a fault; empty when nothing is. Checked are: each
/// of the 100 cards lies in exactly one place, columns and ace piles are in order, the bookkeeping agrees
/// with the cards, and the score is the one that the state earns.
std::string state_faults();

}  // namespace tarnwick

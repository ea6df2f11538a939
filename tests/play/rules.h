#pragma once

#include <random>
#include <string>
#include <vector>

#include "notation/position.h"

namespace tarnwick {

struct Move {
    int from;
    int to;
};

/// Every move between two different piles that the rules of the game allow, told from the position alone and
/// written without a look at how the program decides.
std::vector<Move> legal_moves(const Position& position);

/// A position that could occur in a game: ace piles of any height, columns with face-down cards, and the rest
/// in the tablet. `progress` from 0 to 25 is the most cards that lie on each ace pile.
Position random_position(std::mt19937& random, int progress);

}  // namespace tarnwick

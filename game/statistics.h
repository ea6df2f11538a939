#pragma once

#include <string>

namespace tarnwick {

/// Counts a finished game in the statistics: the games played, the total of the scores and, where a complete
/// game takes the first place, the games won. One change of the store or none. Returns the place 1 to 5 that
/// the score takes by now, or none. Throws ConversionError where a stored text does not read as a number;
/// nothing is counted then.
int count_game(int points, bool complete);

/// Counts a game and enters its score, if that has a place, without a name: one change of the store or none.
/// Throws ConversionError as count_game does.
void count_and_enter_game(int points, bool complete);

/// Enters a score into the table at the place that it takes by now, with today's date; what it beats moves
/// down. Returns the place, or none where other games have taken the last one meanwhile, of which the player
/// is told. Throws ConversionError as count_game does.
int enter_best_score(int points, const std::string& name);

}  // namespace tarnwick

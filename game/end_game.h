#pragma once

namespace tarnwick {

/// Ends the game, won or not: stops the timed effects, counts a game with a score in the statistics, and deals
/// the next game; a score that enters the best five opens the win dialog instead, and the next game is dealt
/// when the statistics dialog after it is closed.
void end_game();

}  // namespace tarnwick

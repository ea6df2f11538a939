#pragma once

namespace tarnwick {

/// Ends the game, won or not: stops the timed effects, counts a game with a score in the statistics, and
/// deals the next game; a score that enters the best five opens the win dialog instead, and the next game is
/// dealt when the statistics dialog after it is closed.
void end_game();

/// Deals the game after a counted one and gives the main window back to the player; nothing while the program
/// is closing.
void deal_next_game();

/// Lays the sliding card on its pile, and ends the game if that has won it.
void finish_slide();

/// Where the card that slides has won the game, lays it on its pile and ends the game. True then: whatever
/// would have cut the slide short has come too late, and is not carried out.
bool end_won_game();

}  // namespace tarnwick

#pragma once

#include <string>
#include <string_view>

#include "notation/position.h"

namespace tarnwick {

// Positions as text, a line for each pile, its cards from the bottom up (see card_text.h for the cards):
//
//     0: 7♠ 6♥                   columns 0 to 9; face-down cards stand in brackets
//     3: [..] K♠ Q♥'             as many face-down cards as were dealt to this column
//     ace 0: A♠ .. 5♠            an ace pile; ".." are the cards between, those of the first pack beneath
//     tablet: 4♣ (5♦) 6♠ ..      in turning order, the turned card in parentheses; ".." are all cards left
//     score: 12                  without this line the score is the one that the position earns
//
// A pile without a line, or with "-", is empty. The cards that no line names lie where ".." stands in a
// column or in the tablet: the columns are filled first, then the tablet, in order of suits and packs. Those
// that find no room there are out of the game.

/// Reads a position. Throws std::invalid_argument, saying in one line what is wrong: with the text, or with
/// the rules (a card named twice, a run out of order, a face-down card where none is dealt or on top, too
/// many cards).
Position parse_position(std::string_view text);

/// Writes a position; reading it gives the same one.
std::string text_of(const Position& position);

/// Puts the game in hand into the position that the text tells. A bad text changes nothing.
void set_position(std::string_view text);

/// The position of the game in hand as text.
std::string position_text();

}  // namespace tarnwick

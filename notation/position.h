#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What lies where on the table. Cards are told by their picture numbers.
struct Position {
    struct ColumnCard {
        int picture;
        bool face_down;
    };
    /// From the bottom card up.
    std::array<std::vector<ColumnCard>, 10> columns;
    std::array<std::vector<int>, 4> ace_piles;
    /// In turning order, with the slot of the turned card, or -1.
    std::vector<int> tablet;
    int turned = -1;
    /// Without a value the score is the one that the position earns.
    std::optional<int> score;
};

/// The position of the game in hand. A card that slides to its ace pile lies there already.
Position current_position();

/// Puts the game in hand into a position, on the table as well: with an empty undo list and no effect under
/// way. The deal that a restart brings back stays what it was. The position must keep the rules (see
/// parse_position).
void set_position(const Position& position);

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

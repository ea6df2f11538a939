#pragma once

#include <array>
#include <optional>
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

}  // namespace tarnwick

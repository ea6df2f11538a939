#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "game/drops.h"

namespace tarnwick {

// A game as text: the deal, then a line for each action.
//
//     deal 17               begins a numbered deal
//     turn                  a click on the tablet
//     drag 4 7              from column 4 to column 7; other piles are "tablet" and "ace 0" to "ace 3"
//     drag tablet 7 at 10   let go 10 pixels from the left edge of what lies there (without it, 30)
//     drag 5 5              dropped where it came from: a click that sends the card to its ace pile
//     undo
//     restart
//
// Empty lines, and all from a # on, do not count.

enum class ActionKind { deal, turn, drag, undo, restart };

struct Action {
    ActionKind kind = ActionKind::turn;
    /// The numbered deal.
    std::uint32_t deal = 0;
    /// Pile numbers of a drag.
    int source = 0;
    int target = 0;
    /// Where the dragged card is let go, in pixels from the left edge of the image there.
    int offset = default_drop_offset;
    /// The line of the record it was read from, counted from 1.
    int line = 0;

    /// Right between the edges near which a refused drop is tried on the neighbour.
    static constexpr int default_drop_offset = plain_click_offset;
    static constexpr int near_left_edge = 10;
    static constexpr int near_right_edge = 60;
};

/// Reads one line; false when there is nothing on it. Throws std::invalid_argument, saying in a few words
/// what is wrong with it.
bool parse_action(std::string_view line, Action& action);

/// Reads a whole record. Throws std::invalid_argument with "line 3: " before the fault.
std::vector<Action> parse_record(std::string_view text);

/// The action as a line of a record, without the end of the line.
std::string text_of(const Action& action);

}  // namespace tarnwick

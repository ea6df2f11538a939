#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/form.h"

namespace tarnwick {

/// What a window tells of its board now; nothing while it is not loaded, or in no order that could be told.
std::vector<BoardItem> described_items(const Form& form);

/// What is described of a widget; null where nothing is.
const BoardItem* find_item(const std::vector<BoardItem>& items, const Widget* widget);

/// One thing to tell of a board. The name of a widget that shows a number holds that number: another one is
/// told twice, as another name and as another value, for a front end to speak one of them.
struct SpokenChange {
    enum class Kind { gone, came, renamed, other_value, reordered };
    Kind kind;
    const Widget* widget;  ///< null when all of the board was put into another order
    bool operator==(const SpokenChange&) const = default;
};

/// What there is to tell when a board that was described as `before` is described as `now`: what went, then
/// what came or is called differently, in the order of reading.
std::vector<SpokenChange> spoken_changes(const std::vector<BoardItem>& before,
                                         const std::vector<BoardItem>& now);

/// A place of a board, in its pixels.
struct Spot {
    float x;
    float y;
};

/// Where a click reaches a widget of a board, that is, where no other one lies over it; nothing where it is
/// covered.
std::optional<Spot> free_spot(const Widget& widget);

/// What a front end does for a press on a board.
struct BoardHands {
    /// Whether the front end itself waits for the player: a menu is open, a mouse button is held.
    std::function<bool()> are_busy;
    /// Scrolls so that the spot is seen.
    std::function<void(Spot)> reveal;
};

/// Clicks a widget of a board as often as makes it act; nothing any more once the window takes no presses.
/// It may bring up a message and come back with the answer only.
void press_item(const Widget& widget, int clicks, const BoardHands& hands);

}  // namespace tarnwick

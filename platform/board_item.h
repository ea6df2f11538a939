#pragma once

#include <optional>
#include <string>

namespace tarnwick {

class Widget;

/// What one widget of a board means, for players who have the board read to them.
struct BoardItem {
    const Widget* widget = nullptr;
    std::string name;
    /// How many clicks make the widget act: 2 for a two-click event, 0 when none does.
    int clicks = 0;
    /// The number that the widget shows, if it shows one, and the largest it can become.
    std::optional<int> value = std::nullopt;
    int most = 0;
};

}  // namespace tarnwick

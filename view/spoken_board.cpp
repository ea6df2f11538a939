#include "view/spoken_board.h"

#include <algorithm>
#include <exception>

#include "game/drops.h"
#include "platform/image.h"
#include "view/control_presses.h"

namespace tarnwick {
namespace {

using Kind = SpokenChange::Kind;

// The widgets of `items` that are among `others` as well.
std::vector<const Widget*> shared_widgets(const std::vector<BoardItem>& items,
                                          const std::vector<BoardItem>& others) {
    std::vector<const Widget*> widgets;
    for (const BoardItem& item : items) {
        if (find_item(others, item.widget)) widgets.push_back(item.widget);
    }
    return widgets;
}

}  // namespace

std::vector<BoardItem> described_items(const Form& form) {
    if (!form.loaded() || !form.on_describe) return {};
    try {
        return form.on_describe();
    } catch (const std::exception&) {
        // A move that a failure has cut short may have left a pile half changed.
        return {};
    }
}

const BoardItem* find_item(const std::vector<BoardItem>& items, const Widget* widget) {
    const auto item = std::find_if(
        items.begin(), items.end(), [widget](const BoardItem& each) { return each.widget == widget; });
    return item == items.end() ? nullptr : &*item;
}

std::vector<SpokenChange> spoken_changes(const std::vector<BoardItem>& before,
                                         const std::vector<BoardItem>& now) {
    std::vector<SpokenChange> changes;
    for (const BoardItem& item : before) {
        if (!find_item(now, item.widget)) changes.push_back({Kind::gone, item.widget});
    }
    for (const BoardItem& item : now) {
        const BoardItem* told = find_item(before, item.widget);
        if (!told) {
            changes.push_back({Kind::came, item.widget});
            continue;
        }
        if (told->name != item.name) changes.push_back({Kind::renamed, item.widget});
        if (told->value != item.value) changes.push_back({Kind::other_value, item.widget});
    }
    if (shared_widgets(before, now) != shared_widgets(now, before)) {
        changes.push_back({Kind::reordered, nullptr});
    }
    return changes;
}

std::optional<Spot> free_spot(const Widget& widget) {
    // A click nearer to the left or right edge might be meant for the neighbour.
    constexpr int step = 4;
    const float x = widget.left() + std::min(static_cast<float>(plain_click_offset), widget.width() - 2);
    for (int down = step; static_cast<float>(down) < widget.height(); down += step) {
        const float y = widget.top() + static_cast<float>(down);
        if (widget.form().mouse().image_at(x, y) == &widget) return Spot{x, y};
    }
    return std::nullopt;
}

void press_item(const Widget& widget, int clicks, const BoardHands& hands) {
    Window& window = widget.form();
    for (int i = 0; i < clicks; ++i) {
        if (!takes_presses(window) || hands.are_busy()) return;
        const std::optional<Spot> spot = free_spot(widget);
        if (!spot) return;
        // What is not seen takes no clicks.
        hands.reveal(*spot);
        window.mouse().press(spot->x, spot->y);
        window.mouse().release(spot->x, spot->y);
    }
}

}  // namespace tarnwick

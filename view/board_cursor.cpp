#include "view/board_cursor.h"

#include <algorithm>
#include <cmath>

#include "platform/image.h"
#include "platform/key_codes.h"
#include "view/contrast.h"
#include "view/picture_place.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// Beyond what it surrounds, in pixels: two lines, which are wider where a pixel is less than a device pixel.
constexpr double ring_reach = 6;

// Softer than black and white, and seen as well.
constexpr Color light_tone = color_of(255, 250, 235);
constexpr Color dark_tone = color_of(20, 24, 40);

// The items of a pile, from the one in front on.
std::vector<const BoardItem*> items_of(const std::vector<BoardItem>& items, PilePlace pile) {
    std::vector<const BoardItem*> found;
    for (const BoardItem& item : items) {
        if (item.place == pile) found.push_back(&item);
    }
    return found;
}

// The items in front of the piles of a row.
std::vector<const BoardItem*> row_of(const std::vector<BoardItem>& items, int row) {
    std::vector<const BoardItem*> found;
    for (const BoardItem& item : items) {
        if (!item.place || item.place->row != row) continue;
        if (found.empty() || found.back()->place != item.place) found.push_back(&item);
    }
    return found;
}

// The one with the least distance, the first of several.
template <class Distance>
const BoardItem* nearest(const std::vector<const BoardItem*>& items, Distance distance) {
    const auto nearer = [&](const BoardItem* a, const BoardItem* b) { return distance(*a) < distance(*b); };
    const auto found = std::min_element(items.begin(), items.end(), nearer);
    return found == items.end() ? nullptr : *found;
}

const BoardItem* pile_at(const std::vector<const BoardItem*>& row, int pile) {
    return nearest(row, [pile](const BoardItem& item) { return std::abs(item.place->pile - pile); });
}

double middle_of(const BoardItem& item) {
    const Box box = seen_place(item);
    return box.left + box.width / 2;
}

// Of a card that others lie on, what they leave free.
Box uncovered_place(const std::vector<const BoardItem*>& pile, std::size_t depth) {
    Box box = seen_place(*pile[depth]);
    if (depth > 0) box.height = std::min(box.height, seen_place(*pile[depth - 1]).top - box.top);
    return box;
}

}  // namespace

Box seen_place(const BoardItem& item) {
    if (item.outline) return box_of(item.outline->place());
    if (item.widget->kind() != WidgetKind::image) return box_of(item.widget->place());
    return picture_place(static_cast<const Image&>(*item.widget));
}

void BoardCursor::hide() {
    shown_ = false;
    box_ = {};
}

void BoardCursor::go(int key_code, const std::vector<BoardItem>& items, bool over_piles) {
    if (key_code == left_key) return go_sideways(items, -1);
    if (key_code == right_key) return go_sideways(items, 1);
    const std::size_t cards = over_piles ? 1 : items_of(items, position_.pile).size();
    if (key_code == up_key && position_.depth + 1 < cards) {
        ++position_.depth;
    } else if (key_code == down_key && position_.depth > 0 && !over_piles) {
        --position_.depth;
    } else {
        go_to_other_row(items);
    }
}

void BoardCursor::go_sideways(const std::vector<BoardItem>& items, int step) {
    const std::vector<const BoardItem*> row = row_of(items, position_.pile.row);
    const auto here = std::find(row.begin(), row.end(), pile_at(row, position_.pile.pile));
    if (here == row.end()) return;
    const auto count = static_cast<int>(row.size());
    const int next = (static_cast<int>(here - row.begin()) + step + count) % count;
    position_ = {*row[static_cast<std::size_t>(next)]->place};
    came_from_.reset();
}

void BoardCursor::go_to_other_row(const std::vector<BoardItem>& items) {
    const BoardItem* here = pile_at(row_of(items, position_.pile.row), position_.pile.pile);
    const std::vector<const BoardItem*> row = row_of(items, 1 - position_.pile.row);
    if (!here || row.empty()) return;
    const double middle = middle_of(*here);
    const BoardItem* next =
        came_from_ ? pile_at(row, came_from_->pile)
                   : nearest(row, [=](const BoardItem& item) { return std::abs(middle_of(item) - middle); });
    came_from_ = position_.pile;
    position_ = {*next->place};
}

void BoardCursor::follow(const std::vector<BoardItem>& items) {
    if (!shown_) return;
    item_ = nullptr;
    box_ = {};
    const BoardItem* front = pile_at(row_of(items, position_.pile.row), position_.pile.pile);
    if (!front) return;
    const std::vector<const BoardItem*> pile = items_of(items, *front->place);
    position_ = {*front->place, std::min(position_.depth, pile.size() - 1)};
    item_ = pile[position_.depth]->widget;
    box_ = uncovered_place(pile, position_.depth);
}

Area BoardCursor::area() const { return box_.empty() ? Area() : touched(box_.grown(ring_reach)); }

// In two tones, of which one stands out from the table, and one from whatever the ring crosses.
void BoardCursor::add_to(BoardLayers& layers, Color table, double ratio) const {
    if (!layers.area.meets(area())) return;
    const Box inside = box_of(snapped(box_, ratio));
    const double line = std::max(2.0, std::floor(2 * ratio));
    const double radius = corner_radius(box_.width, ratio);
    const bool dark_outside = farthest_from(table) == black;
    const auto add = [&](double width, Color color) {
        layers.rings.push_back({inside.grown(width / 2), color, width, radius + width / 2});
    };
    add(2 * line, dark_outside ? dark_tone : light_tone);
    add(line, dark_outside ? light_tone : dark_tone);
}

}  // namespace tarnwick

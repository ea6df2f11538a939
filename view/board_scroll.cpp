#include "view/board_scroll.h"

#include <algorithm>

#include "platform/key_codes.h"

namespace tarnwick {
namespace {

constexpr int grain = 4;
constexpr int edge_step = 12;

}  // namespace

void BoardScroll::set_lower_edge(int edge) {
    const int below = std::max(0, edge - page_);
    range_ = below == 0 ? 0 : (below + 2 * grain) / grain * grain;
    go_to(value_);
}

int BoardScroll::offset() const { return value_ / grain * grain; }

void BoardScroll::go_to(int value) { value_ = std::clamp(value, 0, range_); }

void BoardScroll::press(int key_code) {
    if (key_code == page_down_key) go_to(value_ + page_ / 2);
    if (key_code == page_up_key) go_to(value_ - page_ / 2);
    if (key_code == home_key) go_to(0);
    if (key_code == end_key) go_to(range_);
}

void BoardScroll::reveal(int y) {
    constexpr int air = static_cast<int>(edge_reach);
    if (y < offset()) go_to(y - air);
    if (y >= offset() + page_) go_to(y + air - page_);
}

int BoardScroll::ahead(double y) const {
    if (y < edge_reach) return value_ > 0 ? -1 : 0;
    if (y < page_ - edge_reach) return 0;
    return value_ < range_ ? 1 : 0;
}

void BoardScroll::step_ahead(double y) { go_to(value_ + ahead(y) * edge_step); }

}  // namespace tarnwick

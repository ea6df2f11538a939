#include "view/celebration.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "view/card_shadow.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// In milliseconds: from one card of a pile to the next, on its way to the wheel, and when that flies apart.
// All cards are on it for as long as it takes to see that it is whole.
constexpr double gap = 36;
constexpr double way_time = 620;
constexpr double burst_begin = 1180;
constexpr double burst_time = 640;
// Of the wheel, in turns within a millisecond.
constexpr double speed = 0.33 / 1000;

double smooth(double part) { return part * part * (3 - 2 * part); }
double part_of(double time, double begin, double length) {
    return std::clamp((time - begin) / length, 0.0, 1.0);
}

}  // namespace

void Celebration::begin(std::vector<Pile> piles, PixelSize window, std::int64_t now) {
    piles_ = std::move(piles);
    window_ = window;
    begin_ = now;
    time_ = 0;
    middle_ = {window.width / 2.0, window.height * 0.52};
    const Box card = piles_.empty() ? Box() : piles_.back().place;
    radius_ = {std::clamp(window.width / 2.0 - card.width * 0.7, 0.0, window.width * 0.37),
               std::clamp(window.height * 0.48 - card.height * 0.6, 0.0, window.height * 0.34)};
    opening_ = {radius_.x - card.width / 2, radius_.y - card.height / 2};
}

bool Celebration::step(std::int64_t now) {
    if (!under_way()) return false;
    time_ = static_cast<double>(now - begin_);
    return time_ < burst_begin + burst_time;
}

Point Celebration::on_wheel(double angle) const {
    const double burst = part_of(time_, burst_begin, burst_time);
    // It draws breath before it bursts.
    const double breath = std::sin(std::numbers::pi * part_of(time_, burst_begin - 200, 300));
    const double size = 1 - 0.06 * breath + 2 * burst * burst;
    return {middle_.x + radius_.x * size * std::cos(angle), middle_.y + radius_.y * size * std::sin(angle)};
}

Box Celebration::place_of(std::size_t pile, std::size_t card) const {
    const Pile& from = piles_[pile];
    const double slots = static_cast<double>(piles_.size() * from.cards.size());
    const double slot = static_cast<double>(pile * from.cards.size()) - static_cast<double>(card);
    const double angle = 2 * std::numbers::pi * (0.5 + slot / slots + speed * (time_ - way_time));
    const Point goal = on_wheel(angle);
    const double way = smooth(part_of(time_, static_cast<double>(card) * gap, way_time));
    const Box& place = from.place;
    return {place.left + (goal.x - place.width / 2 - place.left) * way,
            place.top + (goal.y - place.height / 2 - place.top) * way,
            place.width,
            place.height};
}

Box Celebration::emblem_place() const {
    const double size = 1.5 * std::min(opening_.x, opening_.y);
    return {middle_.x - size / 2, middle_.y - size / 2, size, size};
}

// It comes with the last cards, and goes as the wheel opens.
int Celebration::emblem_opacity() const {
    const double seen = smooth(part_of(time_, 450, 500)) - smooth(part_of(time_, burst_begin + 150, 400));
    return rounded(255 * seen);
}

template <class Action>
void Celebration::for_each_seen(Action action) const {
    if (!under_way()) return;
    if (emblem_opacity() > 0 && !emblem_place().empty()) {
        action(logo_picture(), emblem_place(), emblem_opacity());
    }
    const double fading = part_of(time_, burst_begin + burst_time * 0.55, burst_time * 0.4);
    const int opacity = rounded(255 * (1 - smooth(fading)));
    for (std::size_t pile = 0; pile < piles_.size(); ++pile) {
        for (std::size_t card = 0; card < piles_[pile].cards.size(); ++card) {
            if (time_ < static_cast<double>(card) * gap) break;
            action(piles_[pile].cards[card], place_of(pile, card), opacity);
        }
    }
}

// The table within the wheel stays as it is, and most of that around it.
std::vector<Area> Celebration::areas(int scrolled) const {
    constexpr int columns = 2;
    constexpr int rows = 6;
    constexpr int parts = columns * rows;
    std::vector<Area> areas(parts);
    for_each_seen([&](Picture, const Box& place, int) {
        const Area seen = touched(with_card_shadow(place));
        for (int i = 0; i < parts; ++i) {
            const int left = i % columns * window_.width / columns;
            const int top = i / columns * window_.height / rows;
            const Area part{left,
                            top,
                            (i % columns + 1) * window_.width / columns - left,
                            (i / columns + 1) * window_.height / rows - top};
            Area& area = areas[static_cast<std::size_t>(i)];
            area = united(area, common(seen, part).shifted(0, scrolled));
        }
    });
    return areas;
}

void Celebration::add_to(BoardLayers& layers, int scrolled, double ratio) const {
    for_each_seen([&](Picture picture, const Box& window_place, int opacity) {
        const Box place = window_place.shifted(0, scrolled);
        if (!layers.area.meets(touched(with_card_shadow(place)))) return;
        layers.celebration.push_back({picture, snapped(place, ratio), is_card(picture), 0, opacity});
    });
}

}  // namespace tarnwick

#include "view/board_moves.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/desktop.h"
#include "view/dialog_keys.h"
#include "view/picture_place.h"

namespace tarnwick {
namespace {

// Milliseconds from one picture to the next.
constexpr int frame_time = 16;

// Pixels between the two presses of a double click, with whatever is pressed.
constexpr double double_click_reach = 24;

}  // namespace

void BoardMoves::follow_drag() {
    const bool glides = !form_.mouse().dragged() && front_.allows_motion();
    repaint_home(scene_.drag().follow(desktop().now(), glides));
    repaint_lifted();
    repaints_.move(mark_area_, scene_.drag().mark_area());
}

// What lies at the images' own places is seen or hidden.
void BoardMoves::repaint_home(const std::vector<Image*>& images) {
    for (const Image* image : images) repaints_.add(scene_.area_of(*image));
}

void BoardMoves::repaint_lifted() {
    const Area before = lifted_area_;
    lifted_area_ = scene_.drag().area();
    // One rectangle paints faster than the several that two overlapping ones are made of.
    if (before.meets(lifted_area_)) {
        repaints_.add(united(before, lifted_area_));
    } else {
        repaints_.add(before);
        repaints_.add(lifted_area_);
    }
    update_plate();
}

// It comes with the first card below the labels, and goes with the last one.
void BoardMoves::update_plate() {
    const bool laid = scene_.lays_plate();
    if (laid == lays_plate_) return;
    lays_plate_ = laid;
    repaints_.add(plate_);
}

void BoardMoves::end_glide() {
    if (scene_.drag().glide().images().empty()) return;
    repaint_home(scene_.drag().end_glide());
    repaint_lifted();
}

void BoardMoves::repaint_motion() {
    std::vector<Area> areas = std::move(motion_areas_);
    motion_areas_ = scene_.motion().areas();
    for (const Area& area : motion_areas_) add_area(areas, area);
    for (const Area& area : areas) repaints_.add(area);
    update_plate();
}

void BoardMoves::begin_motion() {
    // Behind a dialog nothing moves.
    scene_.motion().begin(desktop().now(), front_.allows_motion() && form_.accepts_input());
    repaint_motion();
}

void BoardMoves::land_motion() {
    if (!scene_.motion().under_way()) return;
    scene_.motion().land();
    repaint_motion();
    scene_.motion().end();
    motion_areas_.clear();
}

void BoardMoves::rest() {
    motion_areas_.clear();
    scene_.motion().rest();
}

void BoardMoves::celebrate(const std::vector<std::vector<const Image*>>& piles, PixelSize size) {
    if (form_.state() == WindowState::minimized || !front_.allows_motion() || !form_.on_motion ||
        !form_.on_motion())
        return;
    std::vector<Celebration::Pile> shown;
    for (const std::vector<const Image*>& pile : piles) {
        shown.push_back({picture_place(*pile.front()).shifted(0, -scene_.scrolled()), {}});
        for (const Image* card : pile) shown.back().cards.push_back(card->picture());
    }
    scene_.celebration().begin(std::move(shown), size, desktop().now());
    repaint_celebration();
    front_.hold_back(*next_);
}

bool BoardMoves::is_second_press(Point place, MouseButton button) {
    const std::int64_t now = desktop().now();
    const std::optional<Press> first = last_press_;
    last_press_.reset();
    if (!scene_.celebration().under_way()) {
        last_press_ = {place, button, now};
        return false;
    }
    return first && first->button == button && now - first->time <= desktop().double_click_time() &&
           std::hypot(place.x - first->place.x, place.y - first->place.y) <= double_click_reach;
}

void BoardMoves::repaint_celebration() {
    std::vector<Area> areas = scene_.celebration().areas(scene_.scrolled());
    celebration_areas_.resize(areas.size());
    for (std::size_t i = 0; i < areas.size(); ++i) repaints_.add(united(celebration_areas_[i], areas[i]));
    celebration_areas_ = std::move(areas);
}

void BoardMoves::end_celebration() {
    if (!scene_.celebration().under_way()) return;
    scene_.celebration().end();
    repaint_celebration();
    front_.show_held_back();
}

void BoardMoves::type(const std::string& text) {
    // A key that has not ended it is only held.
    if (next_ && !form_.enabled() && !scene_.celebration().under_way()) type_into(*next_, text);
}

bool BoardMoves::under_way() const {
    return !scene_.drag().glide().images().empty() || scene_.motion().under_way() ||
           scene_.celebration().under_way();
}

void BoardMoves::schedule(std::int64_t now) {
    if (!under_way()) {
        next_frame_.reset();
    } else if (!next_frame_) {
        next_frame_ = now + frame_time;
    }
}

void BoardMoves::step(std::int64_t now) {
    if (!next_frame_ || *next_frame_ > now) return;
    next_frame_.reset();
    if (scene_.drag().glide_on(now)) {
        repaint_lifted();
    } else {
        end_glide();
    }
    if (scene_.motion().step(now)) {
        repaint_motion();
    } else {
        land_motion();
    }
    if (scene_.celebration().step(now)) {
        repaint_celebration();
    } else {
        end_celebration();
    }
}

}  // namespace tarnwick

#include "view/motion.h"

#include <algorithm>
#include <cmath>

#include "view/card_shadow.h"
#include "view/picture_place.h"

namespace tarnwick {
namespace {

// Long enough to be followed by the eye, too short to be waited for; in milliseconds, and by pixels.
constexpr double shortest_time = 110;
constexpr double longest_time = 150;
constexpr double long_way = 400;
// A deal is over as soon: the cards set out one after the other.
constexpr int deal_time = 90;
constexpr int deal_delay = 60;

Shift between(const Box& from, const Box& to) { return {from.left - to.left, from.top - to.top}; }

// Widgets of one size differ by what rounding leaves.
bool same_size(const Box& a, const Box& b) {
    return std::abs(a.width - b.width) < 1 && std::abs(a.height - b.height) < 1;
}

bool same_place(const Box& a, const Box& b) {
    return std::abs(a.left - b.left) < 1 && std::abs(a.top - b.top) < 1;
}

// Which part of the way is left: slow at first, so that the eye finds what sets out, and slow at the end.
double way_left(double part, bool even) { return even ? 1 - part : 1 - part * part * (3 - 2 * part); }

}  // namespace

void add_area(std::vector<Area>& areas, Area area) {
    const auto overlaps = [&area](const Area& other) { return other.meets(area); };
    for (auto it = areas.begin(); (it = std::find_if(areas.begin(), areas.end(), overlaps)) != areas.end();) {
        area = united(area, *it);
        areas.erase(it);
    }
    areas.push_back(area);
}

Motion::Looks Motion::looks_of(const Image& image) {
    return {.box = picture_place(image), .picture = image.picture(), .seen = is_seen(image)};
}

void Motion::image_changed(const Image& image) {
    const auto known = known_.find(&image);
    // Before the first picture nothing was seen.
    if (known == known_.end() || known->second.changed) return;
    known->second.changed = true;
    changed_.push_back(&image);
}

void Motion::let_go(const std::vector<Image*>& images, Shift offset) {
    for (const Image* image : images) {
        image_changed(*image);
        if (const auto known = known_.find(image); known != known_.end()) known->second.shift = offset;
    }
}

void Motion::rest() {
    flights_.clear();
    for (const Widget* widget : form_.widgets()) {
        if (widget->kind() != WidgetKind::image) continue;
        const auto& image = static_cast<const Image&>(*widget);
        known_[&image] = looks_of(image);
    }
    forget_event();
}

void Motion::forget_event() {
    for (const Image* image : changed_) known_[image] = looks_of(*image);
    changed_.clear();
    passages_.clear();
    dealt_from_ = nullptr;
}

const Motion::Flight* Motion::flight_of(const Image& image) const {
    const auto is_it = [&image](const Flight& flight) { return flight.image == &image; };
    const auto found = std::find_if(flights_.begin(), flights_.end(), is_it);
    return found == flights_.end() ? nullptr : &*found;
}

const Image* Motion::passage_of(const Image& image) const {
    for (const auto& [passing, other] : passages_) {
        if (passing == &image) return other;
    }
    return nullptr;
}

bool Motion::is_lifted(const Image& image) const {
    const std::vector<Image*>& lifted = form_.mouse().lifted();
    return std::find(lifted.begin(), lifted.end(), &image) != lifted.end();
}

bool Motion::is_origin(const Image& image) const {
    return std::any_of(
        passages_.begin(), passages_.end(), [&](const auto& passage) { return passage.second == &image; });
}

std::optional<Box> Motion::seen_at(const Image& image) const {
    if (const Flight* flight = flight_of(image)) {
        return flight->waits ? std::nullopt
                             : std::optional(flight->looks.box.shifted(flight->offset.x, flight->offset.y));
    }
    const Looks& looks = known_.at(&image);
    return looks.seen ? std::optional(looks.box.shifted(looks.shift.x, looks.shift.y)) : std::nullopt;
}

Box Motion::origin_at(const Image& image) const { return seen_at(image).value_or(picture_place(image)); }

std::optional<Box> Motion::start_of(const Image& image) const {
    if (dealt_from_) return origin_at(*dealt_from_);
    if (const std::optional<Box> seen = seen_at(image)) return seen;
    const Image* origin = passage_of(image);
    return origin ? std::optional(origin_at(*origin)) : std::nullopt;
}

const Motion::Flight* Motion::unmoved_flight(const Image& image, const Looks& looks) const {
    const Flight* flight = dealt_from_ ? nullptr : flight_of(image);
    return flight && looks.seen && same_place(flight->looks.box, looks.box) ? flight : nullptr;
}

// An image that was hidden, and of which nothing else is known, is there at once: something has uncovered it.
// So is a pile, which nobody moves.
std::optional<Motion::Flight> Motion::flight_of_seen(const Image& image, const Looks& looks,
                                                     std::int64_t now) const {
    const std::optional<Box> start = image.depth() > 0 ? std::nullopt : start_of(image);
    if (!start || same_place(*start, looks.box) || !same_size(*start, looks.box)) return std::nullopt;
    Flight flight{.image = &image, .looks = looks, .from = between(*start, looks.box)};
    flight.time = form_.on_step ? form_.on_step(image) : 0;
    // The last of several steps is told by nobody.
    const Flight* current = flight_of(image);
    if (current && current->even && flight.time == 0 &&
        now < current->begin + std::int64_t{2} * current->time) {
        flight.time = current->time;
    }
    flight.even = flight.time > 0;
    return flight;
}

// It is seen to go, or stays until something else has covered it.
std::optional<Motion::Flight> Motion::flight_of_hidden(const Image& image) const {
    const std::optional<Box> start = seen_at(image);
    if (!start || dealt_from_ || is_origin(image)) return std::nullopt;
    Flight flight{.image = &image, .looks = known_.at(&image)};
    flight.looks.box = *start;
    if (const Image* other = passage_of(image)) {
        flight.looks.box = picture_place(*other);
        flight.from = between(*start, flight.looks.box);
    }
    return flight;
}

void Motion::set_out(std::vector<Flight>& flights, std::int64_t now) {
    double way = 0;
    for (Flight& flight : flights) {
        flight.offset = flight.from;
        flight.begin = now;
        if (!flight.even) way = std::max(way, std::hypot(flight.from.x, flight.from.y));
    }
    const int time = rounded(shortest_time + (longest_time - shortest_time) * std::min(1.0, way / long_way));
    for (Flight& flight : flights) {
        if (!flight.even) flight.time = time;
    }
    if (!dealt_from_) return;
    back_ = dealt_from_->picture();
    std::sort(flights.begin(), flights.end(), [](const Flight& a, const Flight& b) {
        return std::pair(a.looks.box.top, a.looks.box.left) < std::pair(b.looks.box.top, b.looks.box.left);
    });
    const int count = static_cast<int>(flights.size());
    for (int i = 0; i < count; ++i) {
        Flight& flight = flights[static_cast<std::size_t>(i)];
        flight.begin = now + deal_delay * i / count;
        flight.time = deal_time;
        flight.dealt = true;
        flight.waits = flight.begin > now;
    }
}

void Motion::begin(std::int64_t now, bool wanted) {
    // What is on its way goes on from where it is now, not from where it was last painted.
    step(now);
    std::vector<Flight> kept;
    std::vector<Flight> begun;
    std::vector<Flight> hidden;
    for (const Image* image : wanted ? changed_ : std::vector<const Image*>()) {
        if (is_lifted(*image)) continue;
        const Looks looks = looks_of(*image);
        if (const Flight* unmoved = unmoved_flight(*image, looks)) {
            kept.push_back(*unmoved);
        } else if (!looks.seen) {
            if (auto flight = flight_of_hidden(*image)) hidden.push_back(*flight);
        } else if (auto flight = flight_of_seen(*image, looks, now)) {
            begun.push_back(*flight);
        }
    }
    for (const Flight& flight : hidden) {
        const bool covered = std::any_of(begun.begin(), begun.end(), [&](const Flight& other) {
            return same_place(other.looks.box, flight.looks.box);
        });
        if (covered || !flight.from.none()) begun.push_back(flight);
    }
    // Asked only when something is to be seen: steps are only made where it is wanted.
    const bool steps_alone =
        std::all_of(begun.begin(), begun.end(), [](const Flight& flight) { return flight.even; });
    if (!wanted || (!steps_alone && !(form_.on_motion && form_.on_motion()))) {
        begun.clear();
        land();
    }
    set_out(begun, now);
    std::erase_if(flights_, [this](const Flight& flight) { return known_.at(flight.image).changed; });
    flights_.insert(flights_.end(), kept.begin(), kept.end());
    flights_.insert(flights_.end(), begun.begin(), begun.end());
    std::sort(flights_.begin(), flights_.end(), [](const Flight& a, const Flight& b) {
        return a.image->stacking() < b.image->stacking();
    });
    forget_event();
}

bool Motion::step(std::int64_t now) {
    bool under_way = false;
    for (Flight& flight : flights_) {
        const double part = std::clamp(static_cast<double>(now - flight.begin) / flight.time, 0.0, 1.0);
        const double left = way_left(part, flight.even);
        flight.offset = {flight.from.x * left, flight.from.y * left};
        flight.waits = now < flight.begin;
        under_way = under_way || part < 1;
    }
    return under_way;
}

void Motion::land() {
    for (Flight& flight : flights_) {
        flight.from = flight.offset = {};
        flight.begin = 0;
        flight.waits = false;
    }
}

bool Motion::deals_to(const Area& place, double ratio) const {
    return std::any_of(flights_.begin(), flights_.end(), [&](const Flight& flight) {
        return flight.dealt && snapped(flight.looks.box, ratio) == place;
    });
}

std::vector<Area> Motion::areas() const {
    std::vector<Area> areas;
    for (const Flight& flight : flights_) {
        if (!flight.waits)
            add_area(areas,
                     touched(with_card_shadow(flight.looks.box.shifted(flight.offset.x, flight.offset.y))));
    }
    return areas;
}

void Motion::add_to(BoardLayers& layers, double ratio) const {
    for (const Flight& flight : flights_) {
        const Box box = flight.looks.box.shifted(flight.offset.x, flight.offset.y);
        const Looks looks = is_seen(*flight.image) ? looks_of(*flight.image) : flight.looks;
        const bool face_down = flight.dealt && !flight.offset.none();
        const Area place = snapped(box, ratio);
        const PaintedImage painted{
            face_down ? back_ : looks.picture, place, throws_shadow(layers.images, place)};
        if (flight.waits) {
            layers.coming.push_back(painted);
        } else if (layers.area.meets(touched(with_card_shadow(box)))) {
            layers.images.push_back(painted);
        }
    }
}

}  // namespace tarnwick

#include "view/board_drag.h"

#include <algorithm>
#include <cmath>

#include "view/card_shadow.h"
#include "view/contrast.h"
#include "view/picture_place.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// A band in the white edge of a card, and hardly anything on its drawing: the mark must not keep the eye from
// the cards.
constexpr Color mark_color = color_of(250, 190, 40);
constexpr int mark_line_opacity = 240;
constexpr int mark_fill_opacity = 24;
constexpr double mark_line = 2.25 / card_width;  ///< of the width of a card

// How far the shadow of lifted cards reaches beyond them, in pixels on every side.
constexpr int shadow_reach = 12;
constexpr double darkest_shadow = 110;

Box marked_place(const Widget& receiver) {
    if (receiver.kind() != WidgetKind::image) return box_of(receiver.place());
    return picture_place(static_cast<const Image&>(receiver));
}

PaintedMark faint_mark(const Box& place, double radius, double ratio) {
    const double line = std::max(std::floor(2 * ratio), std::round(place.width * mark_line));
    return {place.grown(-line / 2), mark_color, line, radius, mark_line_opacity, mark_fill_opacity};
}

// On cards as on the table: the rim is there in any case.
PaintedMark strong_mark(const Box& place, double radius, Color table, double ratio) {
    const Color color = strong_line(mark_color, table).color;
    const double line = std::ceil(high_contrast_line * ratio);
    return {place.grown(-1.5 * line), color, line, radius, 255, 0, PaintedRim{farthest_from(color), line}};
}

// The light comes from above: the shadow lies a little lower than the pile.
PaintedShadow shadow_of(const Area& pile, double ratio) {
    const int reach = rounded(shadow_reach * ratio);
    return {pile, reach, reach * 0.25, reach * 0.75, darkest_shadow};
}

}  // namespace

const std::vector<Image*>& BoardDrag::lifted() const {
    const std::vector<Image*>& dragged = form_.mouse().lifted();
    return dragged.empty() ? glide_.images() : dragged;
}

Shift BoardDrag::offset() const {
    const Mouse& mouse = form_.mouse();
    if (mouse.lifted().empty()) return glide_.offset();
    return {static_cast<double>(mouse.drag_dx()), static_cast<double>(mouse.drag_dy())};
}

Box BoardDrag::place_of(const Image& image) const {
    return picture_place(image).shifted(offset().x, offset().y);
}

Box BoardDrag::place() const {
    Box bounds;
    for (const Image* image : lifted()) bounds = united(bounds, place_of(*image));
    return bounds;
}

Area BoardDrag::area() const {
    const Box bounds = place();
    return bounds.empty() ? Area() : touched(united(bounds.grown(shadow_reach), with_card_shadow(bounds)));
}

Area BoardDrag::mark_area() const {
    const Widget* receiver = form_.mouse().receiver();
    return receiver && receiver->visible() ? touched(marked_place(*receiver)) : Area();
}

void BoardDrag::add_to(BoardLayers& layers, double ratio, bool strong) const {
    if (layers.area.meets(mark_area())) {
        const Box place = marked_place(*form_.mouse().receiver());
        const double radius = corner_radius(place.width, ratio);
        const Box device = box_of(snapped(place, ratio));
        layers.mark = strong ? strong_mark(device, radius, form_.back_color(), ratio)
                             : faint_mark(device, radius, ratio);
    }
    if (!layers.area.meets(area())) return;
    Area pile;
    const auto add = [&](const Image& image) {
        if (!is_seen(image)) return;
        // The lowest card throws that of the whole pile, the others one on what they lie on.
        const Area place = snapped(place_of(image), ratio);
        const bool shadow = !layers.lifted.empty() && throws_shadow(layers.lifted, place);
        layers.lifted.push_back({image.picture(), place, shadow, 2 * place.height});
    };
    for (const Image* image : lifted()) {
        pile = united(pile, snapped(place_of(*image), ratio));
        add(*image);
    }
    layers.shadow = shadow_of(pile, ratio);
    // Held where it lies, a card shows its whole face.
    const Image* dragged = form_.mouse().dragged();
    if (dragged && offset().none()) add(*dragged);
}

std::vector<Image*> BoardDrag::follow(std::int64_t now, bool glides) {
    const Mouse& mouse = form_.mouse();
    const bool put_down = mouse.lifted().empty();
    const Shift last_offset = held_offset_;
    if (!put_down) held_offset_ = offset();
    if (mouse.lifted() == held_) return {};
    std::vector<Image*> changed = end_glide();
    changed.insert(changed.end(), held_.begin(), held_.end());
    changed.insert(changed.end(), mouse.lifted().begin(), mouse.lifted().end());
    // Should somebody receive the images after all, they are seen to change, and that ends their glide.
    if (put_down && !last_offset.none() && glides && mouse.glides_back()) {
        glide_.begin(held_, last_offset, now);
    }
    held_ = mouse.lifted();
    if (put_down) held_offset_ = {};
    return changed;
}

}  // namespace tarnwick

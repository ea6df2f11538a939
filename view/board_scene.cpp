#include "view/board_scene.h"

#include <algorithm>
#include <cmath>

#include "platform/controls.h"
#include "view/card_shadow.h"
#include "view/contrast.h"
#include "view/empty_place.h"
#include "view/picture_place.h"
#include "view/pile_edges.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

template <class W, class Action>
void for_each_visible(const Form& form, WidgetKind kind, Action action) {
    for (const Widget* widget : form.widgets()) {
        if (widget->kind() == kind && widget->visible()) action(static_cast<const W&>(*widget));
    }
}

// Around glyphs that the colour of the table does not set off well enough to be read: a soft one, that does.
std::optional<PaintedRim> text_rim(Color text, Color table, double font_scale, bool strong) {
    constexpr double well_readable = 4.5;
    if (contrast(text, table) >= (strong ? high_contrast : well_readable)) return std::nullopt;
    const Color color = farthest_from(text);
    const int opacity = strong ? 255 : opacity_for(high_contrast, text, color, table);
    return PaintedRim{color, std::max(1.0, 0.6 * font_scale), opacity};
}

Box shadowed_place(const Image& image, const Rect& place) {
    return with_card_shadow(pile_place(image, place), picture_place(image, place).width);
}

}  // namespace

Area BoardScene::area_of(const Widget& widget, const Rect& place) const {
    if (widget.kind() == WidgetKind::image) {
        const Box seen = shadowed_place(static_cast<const Image&>(widget), place);
        // An image that has not moved may have begun or ceased to stretch.
        return touched(place == widget.place() ? united(seen, box_of(place)) : seen);
    }
    if (widget.kind() == WidgetKind::label) {
        const LabelRow row(form_, texts_);
        // A rim reaches beyond the place.
        return touched(row.place(place).shifted(0, scrolled_).grown(row.font_scale()));
    }
    return touched(box_of(place));
}

int BoardScene::lower_edge() const {
    double edge = 0;
    for_each_visible<Image>(form_, WidgetKind::image, [&edge](const Image& image) {
        if (is_seen(image)) edge = std::max(edge, picture_place(image).bottom());
    });
    return static_cast<int>(std::ceil(edge));
}

Area BoardScene::plate(const LabelRow& row) const {
    const Box box = row.surroundings();
    return box.empty() ? Area() : around(box.shifted(0, scrolled_));
}

const BoardLayers& BoardScene::layers(double ratio) {
    const PixelSize size = form_.client_size();
    return layers({0, scrolled_, size.width, size.height}, ratio);
}

const BoardLayers& BoardScene::layers(const Area& area, double ratio) {
    layers_.area = area;
    layers_.ground = &ground(area, ratio);
    layers_.outlines.clear();
    layers_.images.clear();
    layers_.mark.reset();
    layers_.shadow.reset();
    layers_.lifted.clear();
    layers_.rings.clear();
    layers_.plate.reset();
    layers_.labels.clear();
    layers_.celebration.clear();
    layers_.coming.clear();
    add_images(ratio);
    add_outlines(ratio);
    // A card on its way hides no place: it is about to leave it.
    motion_.add_to(layers_, ratio);
    drag_.add_to(layers_, ratio, strong_);
    cursor_.add_to(layers_, form_.back_color(), ratio);
    add_labels(ratio);
    celebration_.add_to(layers_, scrolled_, ratio);
    return layers_;
}

// The light keeps its place in the window.
const PaintedGround& BoardScene::ground(const Area& area, double ratio) {
    const PixelSize window = form_.client_size();
    const auto device = [ratio](int length) { return rounded(length * ratio); };
    const Area seen =
        around({area.left * ratio, (area.top - scrolled_) * ratio, area.width * ratio, area.height * ratio});
    return light_.ground(
        seen, {device(window.width), device(window.height)}, device(scrolled_), form_.back_color());
}

// Those under a card are left out, for nothing is seen of them, and those that a deal is about to cover.
void BoardScene::add_outlines(double ratio) {
    for_each_visible<Outline>(form_, WidgetKind::outline, [&](const Outline& outline) {
        const Box box = box_of(outline.place());
        if (!layers_.area.meets(touched(box))) return;
        const Area place = snapped(box, ratio);
        const auto covers = [&](const PaintedImage& image) { return image.place == place; };
        if (std::any_of(layers_.images.begin(), layers_.images.end(), covers)) return;
        if (motion_.deals_to(place, ratio)) return;
        // Of the whole pixels: most steps of a window that is resized leave the place as it looked.
        const double radius = corner_radius(place.width / ratio, ratio);
        layers_.outlines.push_back(empty_place(place, radius, outline, form_.back_color(), ratio, strong_));
    });
}

void BoardScene::sort_images() {
    if (images_.empty()) {
        for (const Widget* widget : form_.widgets()) {
            if (widget->kind() == WidgetKind::image) images_.push_back(static_cast<const Image*>(widget));
        }
    }
    const auto lower = [](const Image* a, const Image* b) { return a->stacking() < b->stacking(); };
    // To see that the order still holds costs far less than to sort.
    if (!std::is_sorted(images_.begin(), images_.end(), lower)) {
        std::sort(images_.begin(), images_.end(), lower);
    }
}

void BoardScene::add_images(double ratio) {
    sort_images();
    std::vector<PaintedImage>& painted = layers_.images;
    const std::vector<Image*>& elsewhere = drag_.lifted();
    // From the top one down, so that cards under another one at the same place are left out: piles stay crisp
    // at their rounded corners, and no drawing is rendered before it is seen.
    for (auto image = images_.rbegin(); image != images_.rend(); ++image) {
        if (!is_seen(**image) || std::find(elsewhere.begin(), elsewhere.end(), *image) != elsewhere.end())
            continue;
        if (motion_.moves(**image)) continue;
        if (!layers_.area.meets(touched(shadowed_place(**image, (*image)->place())))) continue;
        const Box box = picture_place(**image);
        const Area place = snapped(box, ratio);
        const auto covers = [&](const PaintedImage& upper) { return upper.place == place; };
        if (std::any_of(painted.begin(), painted.end(), covers)) continue;
        // The lowest card of a pile throws the shadow of all.
        const int edges = pile_edges(**image);
        for (int edge = 0; edge <= edges; ++edge) {
            const Shift out = edge_shift(box.width, edge, ratio);
            painted.push_back({(*image)->picture(),
                               place.shifted(static_cast<int>(out.x), static_cast<int>(out.y)),
                               edge == edges});
        }
    }
    std::reverse(painted.begin(), painted.end());
    lay_in_columns(painted);
}

bool BoardScene::is_seen_within(const Area& place) const {
    const Box box = box_of(place);
    bool found = false;
    for_each_visible<Image>(form_, WidgetKind::image, [&](const Image& image) {
        found = found || (is_seen(image) && picture_place(image).meets(box));
    });
    for (const Area& area : motion_.areas()) found = found || area.meets(place);
    return found || drag_.area().meets(place);
}

// Above all cards: the score can always be read. Where cards lie under it, the colour of the table is laid
// between them.
void BoardScene::add_labels(double ratio) {
    const LabelRow row(form_, texts_);
    const Area around_labels = plate(row);
    if (!layers_.area.meets(around_labels)) return;
    const double scale = row.font_scale();
    if (is_seen_within(around_labels)) {
        layers_.plate =
            PaintedPlate{snapped(box_of(around_labels), ratio), corner_radius(card_width * scale, ratio)};
    }
    for_each_visible<Label>(form_, WidgetKind::label, [&](const Label& label) {
        const Box place = row.place(label.place()).shifted(0, scrolled_);
        if (!layers_.area.meets(touched(place.grown(scale)))) return;
        layers_.labels.push_back({place,
                                  label.caption(),
                                  label.text_color(),
                                  label.alignment(),
                                  scale,
                                  text_rim(label.text_color(), form_.back_color(), scale, strong_)});
    });
}

}  // namespace tarnwick

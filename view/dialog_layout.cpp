#include "view/dialog_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tarnwick {
namespace {

// How much larger the desktop's font is than the one that the layouts are made for, at the least 1.
double font_scale(const TextMeasure& measure) {
    constexpr double usual_height = 15;
    return std::max(1.0, static_cast<double>(measure.height({})) / usual_height);
}

// Edges are rounded, not sizes: what touches in the layout still does.
Area scaled(const Rect& place, double scale) {
    const double left = static_cast<double>(place.left);
    const double top = static_cast<double>(place.top);
    Area rect{rounded(left * scale), rounded(top * scale), 0, 0};
    rect.width = rounded((left + static_cast<double>(place.width)) * scale) - rect.left;
    rect.height = rounded((top + static_cast<double>(place.height)) * scale) - rect.top;
    return rect;
}

bool all_fit(const Form& form, double scale, double most, const DialogMeasure& measure) {
    return std::all_of(form.widgets().begin(), form.widgets().end(), [&](const Widget* widget) {
        const auto fits_at = [&](double at) {
            const Area place = scaled(widget->place(), at);
            return text_fits(*widget, {place.width, place.height}, measure);
        };
        // What would not fit in the largest layout either is no reason to enlarge it.
        return fits_at(scale) || !fits_at(most);
    });
}

Area within(const Area& room, Area window) {
    window.left = std::max(std::min(window.left, room.right() - window.width), room.left);
    window.top = std::max(std::min(window.top, room.bottom() - window.height), room.top);
    return window;
}

int shared_area(const Area& a, const Area& b) {
    const int width = std::min(a.right(), b.right()) - std::max(a.left, b.left);
    const int height = std::min(a.bottom(), b.bottom()) - std::max(a.top, b.top);
    return std::max(width, 0) * std::max(height, 0);
}

}  // namespace

std::vector<Widget*> making_order(const Form& form) {
    std::vector<Widget*> widgets = form.widgets();
    std::sort(widgets.begin(), widgets.end(), [](const Widget* a, const Widget* b) {
        const bool a_inside = a->container() != nullptr;
        const bool b_inside = b->container() != nullptr;
        return a_inside != b_inside ? b_inside : a->stacking() < b->stacking();
    });
    return widgets;
}

double fitting_scale(const Form& form, PixelSize screen, const DialogMeasure& measure) {
    constexpr double step = 0.02;
    constexpr double most_for_text = 1.4;
    const PixelSize client = form.client_size();
    const double most = std::min({font_scale(measure) * most_for_text,
                                  1.0 * screen.width / client.width,
                                  1.0 * screen.height / client.height});
    double scale = 1;
    while (scale + step <= most && !all_fit(form, scale, most, measure)) scale += step;
    return scale;
}

PixelSize dialog_size(const Form& form, double scale) {
    const PixelSize client = form.client_size();
    return {rounded(client.width * scale), rounded(client.height * scale)};
}

Area control_place(const Widget& widget, double scale, const DialogMeasure& measure) {
    Area place = scaled(widget.place(), scale);
    const int missing = std::max(0, least_height(widget, measure) - place.height);
    place.top -= missing / 2;
    place.height += missing;
    return place;
}

ShownText shown_text(const Widget& widget, double scale, const DialogMeasure& measure) {
    const auto text_of = [&](const Widget& each, float most) {
        const Area place = control_place(each, scale, measure);
        return fitted_text(each, {place.width, place.height}, scale, measure, most);
    };
    float most = std::numeric_limits<float>::infinity();
    for (const Widget* other : widget.form().widgets()) {
        const float size = keeps_to(widget, *other) ? text_of(*other, most).font.pixels : 0;
        if (size > 0) most = std::min(most, size);
    }
    return text_of(widget, most);
}

Area place_beside(const Area& other, PixelSize size, const Area& room) {
    const auto at = [&](int left, int top) { return within(room, {left, top, size.width, size.height}); };
    const std::array sides{at(other.right(), other.top),
                           at(other.left - size.width, other.top),
                           at(other.left, other.bottom()),
                           at(other.left, other.top - size.height)};
    return *std::min_element(sides.begin(), sides.end(), [&](const Area& a, const Area& b) {
        return shared_area(a, other) < shared_area(b, other);
    });
}

}  // namespace tarnwick

#include "view/empty_place.h"

#include <cmath>
#include <numbers>

#include "view/contrast.h"

namespace tarnwick {
namespace {

constexpr int line_opacity = 90;
constexpr int fill_opacity = 30;
constexpr int sign_opacity = 80;

using Lines = std::vector<std::vector<Point>>;

// In units of half the width of a line, from the upper left corner of the sign. The letters have the shape of
// the indices on the cards.
struct Drawing {
    double width;
    double height;
    Lines lines;
};

Drawing ace() { return {8, 12, {{{0.5, 11}, {3.7, 1}, {4.3, 1}, {7.5, 11}}, {{1.9, 8}, {6.1, 8}}}}; }
Drawing king() { return {8, 12, {{{1, 1}, {1, 11}}, {{7, 1}, {1, 7}}, {{3.2, 5}, {7.2, 11}}}}; }

// Most of a circle, clockwise, and a head at its end.
Drawing turning_arrow() {
    constexpr double middle = 8;
    constexpr double radius = 6.4;
    constexpr int steps = 28;
    constexpr double begin = -0.15 * std::numbers::pi;
    constexpr double length = 1.6 * std::numbers::pi;
    std::vector<Point> arc;
    for (int i = 0; i <= steps; ++i) {
        const double angle = begin + length * i / steps;
        arc.push_back({middle + radius * std::cos(angle), middle + radius * std::sin(angle)});
    }
    const Point tip = arc.back();
    return {16, 16, {arc, {{tip.x - 4, tip.y - 0.4}, tip, {tip.x + 0.2, tip.y + 4}}}};
}

Drawing drawing_of(Sign sign) {
    switch (sign) {
        case Sign::ace:
            return ace();
        case Sign::king:
            return king();
        case Sign::turn:
            return turning_arrow();
        case Sign::none:
            break;
    }
    return {};
}

// In the middle of the place. The lines are a whole number of pixels wide, and the sign begins at a whole
// one.
PaintedSign sign_in(const Area& place, Sign sign) {
    constexpr double lines_in_place = 15;
    const int width = std::max(1, rounded(place.width / lines_in_place));
    const double unit = width / 2.0;
    Drawing drawing = drawing_of(sign);
    const double left = place.left + std::floor((place.width - drawing.width * unit) / 2);
    const double top = place.top + std::floor((place.height - drawing.height * unit) / 2);
    for (std::vector<Point>& line : drawing.lines) {
        for (Point& point : line) point = {left + point.x * unit, top + point.y * unit};
    }
    return {std::move(drawing.lines), static_cast<double>(width)};
}

// Of a faint line and of every rim: no wider than a pixel of the board, so that what is painted when a card
// comes or goes holds it.
double thin_line(double ratio) { return std::max(1.0, std::floor(ratio)); }

PaintedOutline::Look faint_look(Color color, Color table, double ratio) {
    PaintedOutline::Look look;
    look.color = color;
    look.line = thin_line(ratio);
    look.line_opacity = line_opacity;
    look.fill_opacity = fill_opacity;
    look.sign_opacity = sign_opacity;
    if (contrast(color, table) < least_contrast) {
        const Color rim = farthest_from(table);
        look.rim = PaintedRim{rim, look.line, opacity_for(least_contrast, table, rim, table)};
    }
    return look;
}

PaintedOutline::Look strong_look(Color color, Color table, double ratio) {
    const StrongLine strong = strong_line(color, table);
    PaintedOutline::Look look;
    look.color = strong.color;
    look.line = std::ceil(high_contrast_line * ratio);
    if (strong.rim) look.rim = PaintedRim{*strong.rim, thin_line(ratio), 255};
    return look;
}

}  // namespace

PaintedOutline empty_place(const Area& place, double radius, const Outline& outline, Color table,
                           double ratio, bool strong) {
    PaintedOutline::Look look = strong ? strong_look(outline.border_color(), table, ratio)
                                       : faint_look(outline.border_color(), table, ratio);
    look.radius = radius;
    const int reach = look.rim ? rounded(look.rim->width) : 0;
    look.size = {place.width + 2 * reach, place.height + 2 * reach};
    const Area inside{reach, reach, place.width, place.height};
    look.middle = box_of(inside).grown(-look.line / 2);
    look.sign = sign_in(inside, outline.sign());
    return {{place.left - reach, place.top - reach, look.size.width, look.size.height}, look};
}

}  // namespace tarnwick

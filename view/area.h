#pragma once

#include <algorithm>
#include <cmath>

#include "platform/graphics.h"

namespace tarnwick {

/// The nearest whole number, halves away from zero.
inline int rounded(double value) { return static_cast<int>(value + std::copysign(0.5, value)); }

/// A place, in pixels.
struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// How far something is moved, in pixels.
struct Shift {
    double x = 0;
    double y = 0;
    bool none() const { return x == 0 && y == 0; }
};

/// A rectangle; lengths in numbers of one kind.
template <class Number>
struct Rectangle {
    Number left = 0;
    Number top = 0;
    Number width = 0;
    Number height = 0;

    Number right() const { return left + width; }
    Number bottom() const { return top + height; }
    bool empty() const { return width <= 0 || height <= 0; }
    Rectangle shifted(Number dx, Number dy) const { return {left + dx, top + dy, width, height}; }
    Rectangle grown(Number margin) const {
        return {left - margin, top - margin, width + 2 * margin, height + 2 * margin};
    }
    bool meets(const Rectangle& other) const {
        return !empty() && !other.empty() && left < other.right() && other.left < right() &&
               top < other.bottom() && other.top < bottom();
    }
    bool operator==(const Rectangle&) const = default;
};

/// A rectangle of whole pixels, those of the board or those of a device.
using Area = Rectangle<int>;

/// A rectangle that need not begin and end at whole pixels.
using Box = Rectangle<double>;

inline Box box_of(const Rect& rect) {
    return {static_cast<double>(rect.left),
            static_cast<double>(rect.top),
            static_cast<double>(rect.width),
            static_cast<double>(rect.height)};
}
inline Box box_of(const Area& area) {
    return {static_cast<double>(area.left),
            static_cast<double>(area.top),
            static_cast<double>(area.width),
            static_cast<double>(area.height)};
}

/// The smallest rectangle around both; one without any size adds nothing.
template <class Number>
Rectangle<Number> united(const Rectangle<Number>& a, const Rectangle<Number>& b) {
    if (a.width == 0 && a.height == 0) return b;
    if (b.width == 0 && b.height == 0) return a;
    const auto left = std::min(a.left, b.left);
    const auto top = std::min(a.top, b.top);
    return {left, top, std::max(a.right(), b.right()) - left, std::max(a.bottom(), b.bottom()) - top};
}

/// What two rectangles have in common; empty where they do not meet.
template <class Number>
Rectangle<Number> common(const Rectangle<Number>& a, const Rectangle<Number>& b) {
    if (!a.meets(b)) return {};
    const auto left = std::max(a.left, b.left);
    const auto top = std::max(a.top, b.top);
    return {left, top, std::min(a.right(), b.right()) - left, std::min(a.bottom(), b.bottom()) - top};
}

/// All pixels that a rectangle touches.
inline Area around(const Box& box) {
    const int left = static_cast<int>(std::floor(box.left));
    const int top = static_cast<int>(std::floor(box.top));
    return {left,
            top,
            static_cast<int>(std::ceil(box.right())) - left,
            static_cast<int>(std::ceil(box.bottom())) - top};
}

/// The pixels that a rectangle touches, with a margin for what rounding to device pixels adds.
inline Area touched(const Box& box) { return around(box).grown(1); }

/// The rectangle in whole device pixels, so many to a pixel. Position and size are rounded apart: widgets of
/// one size stay so.
inline Area snapped(const Box& box, double ratio) {
    return {rounded(box.left * ratio),
            rounded(box.top * ratio),
            std::max(1, rounded(box.width * ratio)),
            std::max(1, rounded(box.height * ratio))};
}

}  // namespace tarnwick

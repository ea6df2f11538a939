#include "desktop/board/soft_shadow.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

// How far a coordinate lies outside of the stretch from `inset` to `length - inset`.
double outside(double at, double inset, double length) {
    return std::max({inset - at, at - (length - inset), 0.0});
}

}  // namespace

const QImage& SoftShadow::image(const PaintedShadow& shadow) {
    const QSize pile(shadow.pile.width, shadow.pile.height);
    const QSize size = pile + QSize(2 * shadow.reach, 2 * shadow.reach);
    if (pile == pile_ && size == image_.size()) return image_;
    pile_ = pile;
    image_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
    const double inset = shadow.reach + shadow.blur * 0.5;
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image_.scanLine(y));
        const double dy = outside(y + 0.5 - shadow.drop, inset, size.height());
        for (int x = 0; x < size.width(); ++x) {
            const double dx = outside(x + 0.5, inset, size.width());
            const double depth = std::clamp(1 - std::sqrt(dx * dx + dy * dy) / (1.5 * shadow.blur), 0.0, 1.0);
            line[x] = qRgba(0, 0, 0, static_cast<int>(shadow.darkest * depth * depth * (3 - 2 * depth)));
        }
    }
    return image_;
}

}  // namespace tarnwick

#pragma once

#include <QRect>
#include <QRectF>

#include "platform/image.h"

namespace tarnwick {

// Where the pictures of a board are painted.

/// Radius of a card's corners, in pixels, at its natural size.
inline constexpr qreal corner_radius = 4;

/// The rectangle in whole device pixels. Position and size are rounded apart: widgets of one size stay so.
QRect snapped(const QRectF& rect, qreal ratio);

/// The whole pixels that a rectangle touches, with a margin for what rounding to device pixels adds.
QRect touched(const QRectF& rect);

/// Where an image at `place` shows its picture, in pixels.
QRectF picture_place(const Image& image, const Rect& place);

/// Whether an image shows anything.
bool is_seen(const Image& image);

}  // namespace tarnwick

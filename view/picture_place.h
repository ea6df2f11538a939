#pragma once

#include "platform/image.h"
#include "view/area.h"

namespace tarnwick {

/// Whether an image shows anything.
bool is_seen(const Image& image);

/// Where an image at `place` shows its picture, in pixels.
Box picture_place(const Image& image, const Rect& place);
inline Box picture_place(const Image& image) { return picture_place(image, image.place()); }

/// Radius of the corners of a card that is so many pixels wide, in device pixels.
double corner_radius(double width, double ratio);

}  // namespace tarnwick

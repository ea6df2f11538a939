#pragma once

#include "platform/image.h"
#include "view/area.h"

namespace tarnwick {

/// How many cards are seen peeping out below an image that has some depth: so that its thickness tells how
/// much is left, and the last one of its kind lies flat.
int pile_edges(const Image& image);

/// How far such a card lies from the picture on top, which is so many pixels wide: the first one, the second
/// one and so on. Device pixels.
Shift edge_shift(double width, int edge, double ratio);

/// Where an image at `place` is seen with all its edges, in pixels.
Box pile_place(const Image& image, const Rect& place);

}  // namespace tarnwick

#pragma once

#include "platform/graphics.h"
#include "view/area.h"

namespace tarnwick {

/// The ring around a picture that is chosen, with air between them. Pixels, counted from the upper left
/// corner of the picture.
struct ChosenRing {
    Box middle;  ///< of the line
    double line = 1;
    double radius = 0;
};

/// The ring around a card of this size in a layout enlarged by `scale`.
ChosenRing chosen_ring(PixelSize card, double scale);

/// Of a desktop's colours the one for the ring: that of what is chosen, where that stands out from the
/// window, else that of its texts.
Color ring_color(Color chosen, Color text, Color window);

}  // namespace tarnwick

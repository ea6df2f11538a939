#include "view/chosen_ring.h"

#include "view/contrast.h"
#include "view/picture_place.h"

namespace tarnwick {

ChosenRing chosen_ring(PixelSize card, double scale) {
    constexpr double air = 2;
    constexpr double line = 3;
    const double reach = (air + line / 2) * scale;
    return {Box{0, 0, 1.0 * card.width, 1.0 * card.height}.grown(reach),
            line * scale,
            corner_radius(card.width, 1) + reach};
}

Color ring_color(Color chosen, Color text, Color window) {
    return contrast(chosen, window) < least_contrast ? text : chosen;
}

}  // namespace tarnwick

#include "view/picture_place.h"

#include "windows/pictures.h"

namespace tarnwick {

bool is_seen(const Image& image) { return image.visible() && !image.picture().none(); }

Box picture_place(const Image& image, const Rect& place) {
    const Box box = box_of(place);
    return image.stretch() ? box : Box{box.left, box.top, card_width, card_height};
}

double corner_radius(double width, double ratio) {
    // At a card's natural size.
    constexpr double natural_radius = 4;
    return natural_radius * ratio * width / card_width;
}

}  // namespace tarnwick

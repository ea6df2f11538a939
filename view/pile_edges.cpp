#include "view/pile_edges.h"

#include <algorithm>

#include "view/picture_place.h"
#include "windows/pictures.h"

namespace tarnwick {

int pile_edges(const Image& image) {
    constexpr int depth_of_edge = 2;
    constexpr int most_edges = 4;
    return std::min(most_edges, (image.depth() + depth_of_edge - 1) / depth_of_edge);
}

// At a card's natural size, so many pixels; its border and some of the white inside are seen of each.
Shift edge_shift(double width, int edge, double ratio) {
    constexpr double right = 1.75;
    constexpr double down = 2;
    const double step = edge * ratio * width / card_width;
    return {right * step, down * step};
}

Box pile_place(const Image& image, const Rect& place) {
    const Box top = picture_place(image, place);
    const Shift out = edge_shift(top.width, pile_edges(image), 1);
    return united(top, top.shifted(out.x, out.y));
}

}  // namespace tarnwick

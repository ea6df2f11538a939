#pragma once

#include <vector>

#include "platform/image.h"

namespace tarnwick {

/// The images that follow the pointer when this one is taken hold of, from the bottom one up. A column's card
/// takes those that lie on it along. Of an ace pile it is the top card that moves, whichever of the two was
/// taken hold of.
std::vector<Image*> lifted_cards(Image& dragged);

/// The images that would move if `dragged` were dropped on image `target` now and received there, from the
/// bottom one up: of a column, not always those that were lifted. None when nobody would receive them.
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
std::vector<Image*> moving_cards(const Image& dragged, const Image& target, float x);

}  // namespace tarnwick

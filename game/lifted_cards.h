#pragma once

#include <vector>

#include "platform/image.h"

namespace tarnwick {

/// The images that follow the pointer when this one is taken hold of, from the bottom one up. A column's card
/// takes those that lie on it along. Of an ace pile it is the top card that moves, whichever of the two was
/// taken hold of.
std::vector<Image*> lifted_cards(Image& dragged);

}  // namespace tarnwick

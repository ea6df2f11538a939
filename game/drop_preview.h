#pragma once

#include "platform/image.h"

namespace tarnwick {

/// The pile that would take the card if image `source` were dropped on image `target` now; none when it would
/// be refused, or sent to an ace pile by an automatic move. Changes nothing.
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
int receiver_of_drop(const Image& target, const Image& source, float x);

}  // namespace tarnwick

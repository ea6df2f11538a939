#pragma once

#include "platform/image.h"
#include "state/integer.h"

namespace tarnwick {

/// Deals with a drop of image `source` on image `index` of Image1: finds out the two piles and makes the
/// move, if there is one; a move refused by a column is tried once more with its neighbour nearest to the
/// pointer.
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
void drop_on_image(int index, const Image& source, float x);

/// Moves from pile `drag_source` to pile `target`; a slide that is under way lands first. True when a move
/// was made.
bool column_to_column(const Integer& target);

// The same for each kind of source pile.
bool from_tablet_to(const Integer& target);
bool from_ace_to(const Integer& target);
bool from_column_to(const Integer& target);

}  // namespace tarnwick

#pragma once

#include "platform/image.h"
#include "state/integer.h"
#include "state/variables.h"

namespace tarnwick {

/// The pile that image `source`, being dragged or dropped, belongs to.
int pile_of(const Image& source);

/// The piles that a drop offers its card to, one after the other until one takes it; `none` for no pile.
struct DropTargets {
    int first = none;
    int second = none;
};
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
DropTargets targets_of_drop(const Image& target, const Image& source, float x);

/// The ace pile, 0 to 3, that an automatic move tries; none when there is no such pile.
int ace_pile_for(const Card& card);

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

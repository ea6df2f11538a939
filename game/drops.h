#pragma once

#include "platform/image.h"
#include "state/variables.h"

namespace tarnwick {

// Where a drop goes: the pile that a card is offered to, and the one that is tried if that refuses it.

/// A drop this far into an image, in pixels from its left edge, is never tried on a neighbouring column: the
/// place of a plain click.
inline constexpr int plain_click_offset = 30;

/// What a drop asks for: a card of pile `source` is offered to `first` and, if that refuses it, to `second`.
/// `none` stands for no pile.
struct Drop {
    int source = none;
    int first = none;
    int second = none;
};

/// What it means to drop image `source` on image `target`.
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
Drop drop_of(const Image& source, const Image& target, float x);

/// The pile that would take the card if image `source` were dropped on image `target` now; none when it would
/// be refused, or sent to an ace pile by an automatic move. Changes nothing.
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
int receiver_of_drop(const Image& target, const Image& source, float x);

/// Deals with a drop of image `source` on image `index` of Image1: finds out the two piles and makes the
/// move, if there is one; a move refused by a column is tried once more with its neighbour nearest to the
/// pointer.
/// @param x  the pointer's distance from the left edge of the image dropped on, in twips
void drop_on_image(int index, const Image& source, float x);

/// The ace pile, 0 to 3, that an automatic move tries; none when there is no such pile.
int ace_pile_for(const Card& card);

/// Moves from pile `drag_source` to pile `target`; a slide that is under way lands first. True when a move
/// was made.
bool column_to_column(const Integer& target);

// The same for each kind of source pile.
bool from_tablet_to(const Integer& target);
bool from_ace_to(const Integer& target);
bool from_column_to(const Integer& target);

}  // namespace tarnwick

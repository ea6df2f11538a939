#pragma once

#include "notation/record_text.h"

namespace tarnwick {

class Image;

// What a player does with the mouse on the table, at places that follow from where the images lie. Whatever
// comes of it has happened on return.

/// Takes hold of an image near its upper edge, the part of a card that the next one in its column leaves
/// free, and lets go over another one, so many pixels from its left edge.
void drag_image(const Image& from, const Image& to, float offset = Action::default_drop_offset);

/// Press and release at one place, so many pixels from the left edge.
void click_image(const Image& image, float offset);

/// Plays one action that is no deal. Throws std::invalid_argument where there is no card to drag.
void play_action(const Action& action);

}  // namespace tarnwick

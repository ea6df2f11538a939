#pragma once

#include <string>

#include "platform/graphics.h"

namespace tarnwick {

/// Natural size of every card picture, in pixels.
inline constexpr int card_width = 71;
inline constexpr int card_height = 96;

inline constexpr int back_count = 6;
/// Frames of the glint on the ace of Spades before it is plain again.
inline constexpr int twinkle_frame_count = 9;

/// The pictures of the catalogue. Suits and ranks are numbered as on the cards (see state/cards.h).
Picture face_picture(int suit, int rank);
Picture back_picture(int back);
Picture twinkle_picture(int frame);
/// The ace of Spades without a glint.
Picture plain_ace_picture();
Picture logo_picture();
/// Whether a picture shows a card.
bool is_card(Picture picture);

/// File name of a picture's drawing without its ending, as "faces/hearts-queen"; empty for no picture.
std::string drawing_of(Picture picture);

/// Names of the six backs, as the settings offer them.
const char* back_name(int back);

}  // namespace tarnwick

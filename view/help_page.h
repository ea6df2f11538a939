#pragma once

#include <functional>
#include <optional>
#include <string>

#include "view/board_layers.h"
#include "view/text_measure.h"

namespace tarnwick {

/// The size of a window for a text to be read in, in pixels: its lines have a readable length, and all of it
/// is seen where the screen has room.
/// @param screen     what windows may cover
/// @param height_at  how high the text is in a window of this width
PixelSize page_size(const TextMeasure& measure, PixelSize screen,
                    const std::function<int(int width)>& height_at);

/// A piece of the table with an empty place.
struct PictureOfPlace {
    Color table = black;
    PaintedOutline outline;
};

/// What the help shows of an empty place with a sign ("ace", "king" or "turn"), in the player's colours;
/// nothing for any other name. The size is that of the piece, in device pixels, so many to a pixel.
std::optional<PictureOfPlace> picture_of_place(const std::string& sign, PixelSize size, double ratio);

}  // namespace tarnwick

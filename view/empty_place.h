#pragma once

#include "platform/controls.h"
#include "view/board_layers.h"

namespace tarnwick {

/// What is painted of an outline that no card covers: faint, and with a rim where its colour is too near that
/// of the table.
/// @param place   in device pixels, so many to a pixel of the board
/// @param radius  of the corners, in device pixels
/// @param strong  not faint, but in high contrast
PaintedOutline empty_place(const Area& place, double radius, const Outline& outline, Color table,
                           double ratio, bool strong = false);

}  // namespace tarnwick

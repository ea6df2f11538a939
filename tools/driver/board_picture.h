#pragma once

#include <QImage>

#include "tools/driver/twin_game.h"

namespace tarnwick {

/// What the board of the headless game looks like, at so many device pixels for a pixel.
QImage expected_board(int scale = 1);

/// The pixels as an image that can be saved.
QImage image_of(const XPixels& pixels);

/// Waits until the real board looks like the headless one's. The result says what is still different in the
/// end, with the pictures of both saved beside the test; empty when nothing is.
std::string board_faults(TwinGame& game);

}  // namespace tarnwick

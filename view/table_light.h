#pragma once

#include "platform/graphics.h"
#include "view/board_layers.h"

namespace tarnwick {

/// The light on the table: it falls from above, and a little from the left, and fades by a few per cent. In
/// the middle of the window the table has its very colour.
class TableLight {
  public:
    /// What the table of a window of this size looks like within an area of it, where the board is
    /// scrolled so far down that the strips count from. Device pixels; valid until the next call. Only
    /// another size or another colour takes time.
    const PaintedGround& ground(const Area& area, PixelSize window, int scrolled, Color table);

  private:
    void draw(PixelSize window, Color table);

    PaintedGround ground_;
    PixelSize window_;
    Color table_ = black;
};

}  // namespace tarnwick

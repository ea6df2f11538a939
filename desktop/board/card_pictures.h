#pragma once

#include <QPixmap>
#include <QSize>

#include "desktop/board/soft_shadow.h"

namespace tarnwick {

/// Draws the pictures of a board, those of cards with their shadow around them: in one piece, both are
/// painted as fast as the card alone.
class CardPictures {
  public:
    /// A picture of the catalogue at a size in device pixels, to which that of its shadow is added.
    QPixmap operator()(Picture picture, QSize size);

    /// How far the picture reaches beyond its place on every side, in device pixels.
    static int reach(Picture picture, QSize size);

  private:
    SoftShadow shadow_;
};

}  // namespace tarnwick

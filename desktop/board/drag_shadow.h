#pragma once

#include <QImage>

#include "view/board_layers.h"

namespace tarnwick {

/// The soft shadow of a pile of lifted cards. It is drawn once for a size and kept for the drag.
class DragShadow {
  public:
    /// The shadow, to be drawn its `reach` to the left of and above its pile.
    const QImage& image(const PaintedShadow& shadow);

  private:
    QImage image_;
    QSize pile_;
};

}  // namespace tarnwick

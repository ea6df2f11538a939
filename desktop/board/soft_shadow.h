#pragma once

#include <QImage>

#include "view/board_layers.h"

namespace tarnwick {

/// A soft shadow. It is drawn once for a size and kept until another one is wanted.
class SoftShadow {
  public:
    /// The shadow, to be drawn its `reach` to the left of and above its pile.
    const QImage& image(const PaintedShadow& shadow);

  private:
    QImage image_;
    QSize pile_;
};

}  // namespace tarnwick

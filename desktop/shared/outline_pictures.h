#pragma once

#include <QPixmap>
#include <utility>
#include <vector>

#include "view/board_layers.h"

namespace tarnwick {

/// Keeps what empty places look like: to blend a picture takes far less time than to draw one.
class OutlinePictures {
  public:
    const QPixmap& pixmap(const PaintedOutline::Look& look);

  private:
    std::vector<std::pair<PaintedOutline::Look, QPixmap>> pixmaps_;
};

}  // namespace tarnwick

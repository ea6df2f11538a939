#pragma once

#include <QPixmap>
#include <utility>
#include <vector>

#include "view/board_layers.h"

namespace tarnwick {

/// Keeps what empty places look like: to blend a picture takes far less time than to draw one. In haste it
/// hands out what it has in another size.
class OutlinePictures {
  public:
    /// The picture of an empty place, in haste possibly at another size.
    const QPixmap& pixmap(const PaintedOutline::Look& look);

    /// From now on sizes change often.
    void begin_haste() { in_haste_ = true; }
    /// The sizes have settled. True when a picture was handed out at another size since haste began.
    bool end_haste();

  private:
    std::vector<std::pair<PaintedOutline::Look, QPixmap>> pixmaps_;
    bool in_haste_ = false;
    bool handed_out_another_size_ = false;
};

}  // namespace tarnwick

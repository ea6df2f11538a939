#pragma once

#include <QPixmap>
#include <QSize>
#include <map>
#include <utility>

#include "platform/picture.h"

namespace tarnwick {

/// Draws a picture of the catalogue at a size in device pixels; a null pixmap for no picture.
QPixmap render_picture(Picture picture, QSize size);

/// Draws a drawing that is compiled into the program, such as "icon"; a null image where there is none.
/// An invalid size stands for the drawing's natural size times `scale`.
QImage render_drawing(const QString& name, QSize size = {}, qreal scale = 1);

/// Keeps rendered pictures: each is drawn when it is first asked for in a size, and kept from then on.
class PictureCache {
  public:
    /// The picture at a size in device pixels.
    const QPixmap& pixmap(Picture picture, QSize size);

    /// Drops the sizes that nobody has asked for since the last call. Called when sizes change.
    void drop_unused_sizes();

  private:
    struct Sheet {
        std::map<int, QPixmap> pixmaps;
        bool used = true;
    };
    std::map<std::pair<int, int>, Sheet> sheets_;
};

}  // namespace tarnwick

#pragma once

#include <QPixmap>
#include <QRect>
#include <QSize>
#include <functional>
#include <map>
#include <utility>

#include "platform/graphics.h"

namespace tarnwick {

/// From now on the suits are drawn in four colours. Before anything is drawn.
void use_four_colors();

/// Draws a picture of the catalogue at a size in device pixels; a null pixmap for no picture.
QPixmap render_picture(Picture picture, QSize size);

/// Draws a picture of the catalogue onto an image, at a place in its pixels.
void draw_picture(QImage& image, Picture picture, QRect place);

/// Draws a drawing that is compiled into the program, such as "icon"; a null image where there is none.
/// An invalid size stands for the drawing's natural size times `scale`.
QImage render_drawing(const QString& name, QSize size = {}, qreal scale = 1);

/// Keeps rendered pictures: each is drawn when it is first asked for in a size, and kept from then on.
/// To draw takes far longer than to scale, so a cache in haste hands out what it has in the nearest size.
class PictureCache {
  public:
    /// @param draw  makes a picture for a size, which may be larger than that
    explicit PictureCache(std::function<QPixmap(Picture, QSize)> draw = render_picture)
        : draw_(std::move(draw)) {}

    /// The picture at a size in device pixels; in haste possibly at another one.
    const QPixmap& pixmap(Picture picture, QSize size);

    /// From now on sizes change often.
    void begin_haste() { in_haste_ = true; }
    /// The sizes have settled: drops those that nobody has asked for since the last call. True when a picture
    /// was handed out at another size than asked for since haste began.
    bool end_haste();

  private:
    using Size = std::pair<int, int>;
    struct Sheet {
        std::map<int, QPixmap> pixmaps;
        bool used = true;
    };

    const QPixmap* nearest(Picture picture, Size wanted) const;

    std::function<QPixmap(Picture, QSize)> draw_;
    std::map<Size, Sheet> sheets_;
    bool in_haste_ = false;
    bool handed_out_another_size_ = false;
};

}  // namespace tarnwick

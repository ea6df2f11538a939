#pragma once

#include <QPainter>
#include <QRegion>
#include <vector>

#include "desktop/drag_shadow.h"
#include "desktop/glide_back.h"
#include "desktop/picture_cache.h"
#include "platform/form.h"

namespace tarnwick {

/// Paints what a drag adds to a board: the lifted images with their shadow, under the pointer or on their way
/// back, and a mark on what would receive them.
class DragPainter {
  public:
    /// @param glide  what glides back to its place, if that is to be painted
    DragPainter(const Form& form, const GlideBack* glide) : form_(form), glide_(glide) {}

    /// The images that are painted here rather than where they lie.
    const std::vector<Image*>& lifted() const;
    /// Where they are seen now, with their shadow, in pixels; empty when there are none.
    QRect area() const;
    /// Where the mark is, in pixels; empty when there is none.
    QRect mark_area() const;

    /// Paints with the device's pixels as units what lies in `area` (pixels).
    void paint(QPainter& painter, const QRegion& area, qreal ratio, PictureCache& pictures);

  private:
    QPointF offset() const;
    QRectF place_of(const Image& image) const;
    void paint_mark(QPainter& painter, qreal ratio) const;
    void paint_lifted(QPainter& painter, qreal ratio, PictureCache& pictures);

    const Form& form_;
    const GlideBack* glide_;
    DragShadow shadow_;
};

/// Paints the picture of an image into a rectangle of device pixels.
void paint_picture(QPainter& painter, const Image& image, const QRect& place, PictureCache& pictures);

}  // namespace tarnwick

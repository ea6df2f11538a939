#pragma once

#include <QFont>
#include <QPainter>
#include <QRegion>
#include <vector>

#include "desktop/drag_painter.h"
#include "desktop/picture_cache.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/image.h"

namespace tarnwick {

/// Paints a window's outlines, labels and images (its board) onto anything that can be painted on. What it
/// paints depends on nothing but the window's widgets, the font, and the device's pixel ratio.
class BoardPainter {
  public:
    /// @param glide  what glides back to its place, if that is to be painted
    explicit BoardPainter(const Form& form, const GlideBack* glide = nullptr)
        : form_(form), drag_(form, glide) {}

    /// How far the board is scrolled down, in pixels: the labels keep their places in the window.
    void set_scrolled(int offset) { scrolled_ = offset; }

    /// Paints what lies in `area` (pixels of the window's client area). Pictures may reach beyond it:
    /// clipping is up to the painter.
    void paint(QPainter& painter, const QRegion& area);

    /// Draws the pictures that a painting at the device's pixel ratio will want.
    void prepare_pictures(qreal ratio);

    /// Where a widget that lies at `place` can be seen, in whole pixels.
    QRect area_of(const Widget& widget, const Rect& place) const;
    /// The lower edge of the lowest picture, in pixels.
    int lower_edge() const;
    /// What of the labels' surroundings changes when something else moves below them, in pixels.
    QRect plate() const;
    /// How much larger than given the labels are drawn, so that their texts fit; about 1.
    qreal label_scale() const;

    const DragPainter& drag() const { return drag_; }
    PictureCache& pictures() { return pictures_; }

  private:
    struct Sprite {
        const Image* image;
        QRect place;  ///< device pixels
    };

    void paint_outlines(QPainter& painter, const QRegion& area, qreal ratio) const;
    void paint_labels(QPainter& painter, const QRegion& area) const;
    void paint_plate(QPainter& painter) const;
    bool is_seen_within(const QRectF& place) const;
    QRectF label_place(const Rect& place, qreal scale) const;
    void collect_sprites(const QRegion& area, qreal ratio);
    void paint_images(QPainter& painter, const QRegion& area, qreal ratio);
    void sort_images();

    const Form& form_;
    int scrolled_ = 0;
    PictureCache pictures_;
    DragPainter drag_;
    std::vector<const Image*> images_;  ///< from the lowest one up
    std::vector<Sprite> sprites_;       ///< what a painting shows, from the top one down
};

}  // namespace tarnwick

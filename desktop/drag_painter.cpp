#include "desktop/drag_painter.h"

#include <algorithm>
#include <cmath>

#include "desktop/board_geometry.h"
#include "desktop/qt_convert.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// Faint: the mark must not keep the eye from the cards.
constexpr QColor mark_line(250, 200, 60, 200);
constexpr QColor mark_fill(250, 200, 60, 50);

QRectF marked_place(const Widget& receiver) {
    if (receiver.kind() != WidgetKind::image) return to_qt(receiver.place());
    return picture_place(static_cast<const Image&>(receiver), receiver.place());
}

}  // namespace

const std::vector<Image*>& DragPainter::lifted() const {
    const std::vector<Image*>& dragged = form_.mouse().lifted();
    return dragged.empty() && glide_ ? glide_->images() : dragged;
}

QPointF DragPainter::offset() const {
    const Mouse& mouse = form_.mouse();
    if (mouse.lifted().empty()) return glide_ ? glide_->offset() : QPointF();
    return {static_cast<qreal>(mouse.drag_dx()), static_cast<qreal>(mouse.drag_dy())};
}

QRectF DragPainter::place_of(const Image& image) const {
    return picture_place(image, image.place()).translated(offset());
}

QRect DragPainter::area() const {
    QRectF bounds;
    for (const Image* image : lifted()) bounds |= place_of(*image);
    if (bounds.isEmpty()) return {};
    return touched(bounds.adjusted(-shadow_reach, -shadow_reach, shadow_reach, shadow_reach));
}

QRect DragPainter::mark_area() const {
    const Widget* receiver = form_.mouse().receiver();
    return receiver && receiver->visible() ? touched(marked_place(*receiver)) : QRect();
}

void DragPainter::paint(QPainter& painter, const QRegion& area, qreal ratio, PictureCache& pictures) {
    if (area.intersects(mark_area())) paint_mark(painter, ratio);
    if (area.intersects(this->area())) paint_lifted(painter, ratio, pictures);
}

void DragPainter::paint_mark(QPainter& painter, qreal ratio) const {
    const QRectF place = marked_place(*form_.mouse().receiver());
    const qreal line = std::max(2.0, std::floor(2 * ratio));
    const qreal radius = corner_radius * ratio * place.width() / card_width;
    const qreal half = line / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mark_line, line));
    painter.setBrush(mark_fill);
    painter.drawRoundedRect(QRectF(snapped(place, ratio)).adjusted(half, half, -half, -half), radius, radius);
}

void DragPainter::paint_lifted(QPainter& painter, qreal ratio, PictureCache& pictures) {
    const std::vector<Image*>& images = lifted();
    QRect pile;
    for (const Image* image : images) pile |= snapped(place_of(*image), ratio);
    const int reach = qRound(shadow_reach * ratio);
    painter.drawImage(pile.topLeft() - QPoint(reach, reach), shadow_.image(pile.size(), reach));
    const auto paint = [&](const Image* image) {
        if (image && is_seen(*image)) {
            paint_picture(painter, *image, snapped(place_of(*image), ratio), pictures);
        }
    };
    for (const Image* image : images) paint(image);
    // Held where it lies, a card shows its whole face.
    if (offset().isNull()) paint(form_.mouse().dragged());
}

void paint_picture(QPainter& painter, const Image& image, const QRect& place, PictureCache& pictures) {
    painter.drawPixmap(place, pictures.pixmap(image.picture(), place.size()));
    if (!image.bordered()) return;
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace tarnwick

#include "desktop/board/board_painter.h"
#include "desktop/shared/qt_convert.h"
#include "view/card_shadow.h"

namespace tarnwick {
namespace {

void paint_mark(QPainter& painter, const PaintedMark& mark) {
    if (mark.rim) {
        painter.setPen(QPen(to_qt(mark.rim->color, mark.rim->opacity), mark.line + 2 * mark.rim->width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(to_qt(mark.middle), mark.radius, mark.radius);
    }
    painter.setPen(QPen(to_qt(mark.color, mark.line_opacity), mark.line));
    painter.setBrush(to_qt(mark.color, mark.fill_opacity));
    painter.drawRoundedRect(to_qt(mark.middle), mark.radius, mark.radius);
}

void paint_ring(QPainter& painter, const PaintedRing& ring) {
    painter.setPen(QPen(to_qt(ring.color), ring.line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(to_qt(ring.middle), ring.radius, ring.radius);
}

QImage image_of(const PaintedGround::Sheet& sheet) {
    const auto* pixels = reinterpret_cast<const uchar*>(sheet.pixels.data());
    return QImage(pixels, sheet.width, sheet.height, qsizetype{4} * sheet.width, QImage::Format_RGB32);
}

void paint_ground(QPainter& painter, const PaintedGround& ground) {
    const QImage sheet = image_of(ground.sheet);
    for (const auto& [place, column, row] : ground.strips) {
        painter.drawImage(to_qt(place), sheet, QRect(column, row, place.width, place.height));
    }
}

void paint_plate(QPainter& painter, const PaintedPlate& plate, const PaintedGround& ground) {
    QBrush brush(image_of(ground.sheet));
    for (const auto& [place, column, row] : ground.strips) {
        if (!place.meets(plate.place)) continue;
        painter.save();
        painter.setClipRect(to_qt(place), Qt::IntersectClip);
        brush.setTransform(QTransform::fromTranslate(place.left - column, place.top - row));
        painter.setPen(Qt::NoPen);
        painter.setBrush(brush);
        painter.drawRoundedRect(QRectF(to_qt(plate.place)), plate.radius, plate.radius);
        painter.restore();
    }
}

}  // namespace

void BoardPainter::paint(QPainter& painter, const BoardLayers& layers) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_ground(painter, *layers.ground);
    for (const PaintedOutline& outline : layers.outlines) {
        painter.drawPixmap(to_qt(outline.place), outlines_.pixmap(outline.look));
    }
    for (const PaintedImage& image : layers.images) paint_image(painter, image);
    if (layers.mark) paint_mark(painter, *layers.mark);
    if (layers.shadow) {
        const QPoint reach(layers.shadow->reach, layers.shadow->reach);
        painter.drawImage(to_qt(layers.shadow->pile).topLeft() - reach, shadow_.image(*layers.shadow));
    }
    for (const PaintedImage& image : layers.lifted) paint_image(painter, image);
    for (const PaintedRing& ring : layers.rings) paint_ring(painter, ring);
    if (layers.plate) paint_plate(painter, *layers.plate, *layers.ground);
    painter.restore();
    for (const PaintedLabel& label : layers.labels) labels_.paint(painter, label, ratio);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    for (const PaintedImage& image : layers.celebration) {
        painter.setOpacity(image.opacity / 255.0);
        paint_image(painter, image);
    }
    painter.restore();
    prepare(layers.coming);
}

void BoardPainter::paint_image(QPainter& painter, const PaintedImage& image) {
    const QRect place = to_qt(image.place);
    const QPixmap& pixmap = pictures_.pixmap(image.picture, place.size());
    const int reach = CardPictures::reach(image.picture, place.size());
    const QRect whole = place.adjusted(-reach, -reach, reach, reach);
    // In haste it may be of another size.
    const qreal zoom = qreal(pixmap.width()) / whole.width();
    const auto paint_part = [&](const QRect& part) {
        const QRect source = part.translated(-whole.topLeft());
        painter.drawPixmap(
            QRectF(part),
            pixmap,
            QRectF(source.x() * zoom, source.y() * zoom, source.width() * zoom, source.height() * zoom));
    };
    if (!image.shadow) return paint_part(place);
    for (const Area& part : shadowed_parts(image)) {
        if (!part.empty()) paint_part(to_qt(part));
    }
}

void BoardPainter::begin_haste() {
    pictures_.begin_haste();
    outlines_.begin_haste();
}

bool BoardPainter::end_haste() {
    const bool pictures_scaled = pictures_.end_haste();
    return outlines_.end_haste() || pictures_scaled;
}

void BoardPainter::prepare(const std::vector<PaintedImage>& images) {
    for (const PaintedImage& image : images) {
        pictures_.pixmap(image.picture, QSize(image.place.width, image.place.height));
    }
}

}  // namespace tarnwick

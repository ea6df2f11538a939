#include "desktop/board/board_painter.h"

#include <QApplication>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

QColor with_opacity(Color color, int opacity) {
    QColor native = to_qt(color);
    native.setAlpha(opacity);
    return native;
}

int text_flags(Alignment alignment) {
    switch (alignment) {
        case Alignment::right:
            return Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip;
        case Alignment::center:
            return Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip;
        case Alignment::left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip;
}

void paint_outline(QPainter& painter, const PaintedOutline& outline) {
    painter.setPen(QPen(to_qt(outline.color), outline.line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(to_qt(outline.middle), outline.radius, outline.radius);
}

void paint_mark(QPainter& painter, const PaintedMark& mark) {
    painter.setPen(QPen(with_opacity(mark.color, mark.line_opacity), mark.line));
    painter.setBrush(with_opacity(mark.color, mark.fill_opacity));
    painter.drawRoundedRect(to_qt(mark.middle), mark.radius, mark.radius);
}

void paint_plate(QPainter& painter, const PaintedPlate& plate) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(to_qt(plate.color));
    painter.drawRoundedRect(QRectF(to_qt(plate.place)), plate.radius, plate.radius);
}

void paint_label(QPainter& painter, const PaintedLabel& label) {
    painter.setPen(to_qt(label.color));
    painter.drawText(to_qt(label.place), text_flags(label.alignment), to_qt(std::string(label.text)));
}

}  // namespace

void BoardPainter::paint(QPainter& painter, const BoardLayers& layers) {
    painter.fillRect(to_qt(layers.area), to_qt(layers.background));
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PaintedOutline& outline : layers.outlines) paint_outline(painter, outline);
    for (const PaintedImage& image : layers.images) paint_image(painter, image);
    if (layers.mark) paint_mark(painter, *layers.mark);
    if (layers.shadow) {
        const QPoint reach(layers.shadow->reach, layers.shadow->reach);
        painter.drawImage(to_qt(layers.shadow->pile).topLeft() - reach, shadow_.image(*layers.shadow));
    }
    for (const PaintedImage& image : layers.lifted) paint_image(painter, image);
    painter.restore();
    if (layers.plate) paint_plate(painter, *layers.plate);
    painter.setFont(QApplication::font());
    for (const PaintedLabel& label : layers.labels) paint_label(painter, label);
    prepare(layers.coming);
}

void BoardPainter::paint_image(QPainter& painter, const PaintedImage& image) {
    const QRect place = to_qt(image.place);
    painter.drawPixmap(place, pictures_.pixmap(image.picture, place.size()));
    if (!image.bordered) return;
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

void BoardPainter::prepare(const std::vector<PaintedImage>& images) {
    for (const PaintedImage& image : images) {
        pictures_.pixmap(image.picture, QSize(image.place.width, image.place.height));
    }
}

}  // namespace tarnwick

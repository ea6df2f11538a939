#include "desktop/board/label_pictures.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <cmath>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

// The texts beside the score, and the last few scores.
constexpr std::size_t most_texts = 8;

// In whole pixels, and never wider than its place, which has grown as much.
QFont scaled(QFont font, double scale) {
    if (scale > 1) font.setPixelSize(static_cast<int>(QFontInfo(font).pixelSize() * scale));
    return font;
}

// How far right of the left edge of its place a text begins.
double indent(Alignment alignment, double room) {
    switch (alignment) {
        case Alignment::right:
            return room;
        case Alignment::center:
            return room / 2;
        case Alignment::left:
            break;
    }
    return 0;
}

// Around the text, for its rim and for glyphs that reach beyond their boxes.
double margin_of(const QFontMetricsF& metrics) { return std::ceil(metrics.height() / 4); }

}  // namespace

QPixmap LabelPictures::draw(const Text& text) {
    const QFontMetricsF metrics(text.font);
    const double margin = margin_of(metrics);
    const QSizeF size(metrics.horizontalAdvance(text.text) + 2 * margin, metrics.height() + 2 * margin);
    QPixmap pixmap((size * text.ratio).toSize());
    pixmap.setDevicePixelRatio(text.ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    // On whole device pixels: the glyphs are drawn for those.
    const QPointF start(margin, std::round((margin + metrics.ascent()) * text.ratio) / text.ratio);
    if (text.rim) {
        QPainterPath glyphs;
        glyphs.addText(start, text.font, text.text);
        const QColor color = to_qt(text.rim->color, text.rim->opacity);
        painter.strokePath(glyphs,
                           QPen(color, 2 * text.rim->width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        // As shapes, like their rim: they must fit into it.
        painter.fillPath(glyphs, to_qt(text.color));
        return pixmap;
    }
    painter.setFont(text.font);
    painter.setPen(to_qt(text.color));
    painter.drawText(start, text.text);
    return pixmap;
}

const QPixmap& LabelPictures::pixmap(const Text& text) {
    for (const auto& [known, pixmap] : drawn_) {
        if (known == text) return pixmap;
    }
    if (drawn_.size() == most_texts) drawn_.erase(drawn_.begin());
    return drawn_.emplace_back(Drawn{text, draw(text)}).pixmap;
}

void LabelPictures::paint(QPainter& painter, const PaintedLabel& label, qreal ratio) {
    const QString text = to_qt(std::string(label.text));
    const QFont font = scaled(QApplication::font(), label.font_scale);
    const QFontMetricsF metrics(font);
    const double margin = margin_of(metrics);
    const double left =
        label.place.left + indent(label.alignment, label.place.width - metrics.horizontalAdvance(text));
    const double top = label.place.top + (label.place.height - metrics.height()) / 2;
    painter.drawPixmap(
        QPointF(std::round((left - margin) * ratio), std::round((top - margin) * ratio)) / ratio,
        pixmap({text, font, label.color, label.rim, ratio}));
}

}  // namespace tarnwick

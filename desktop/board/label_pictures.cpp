#include "desktop/board/label_pictures.h"

#include <QApplication>
#include <QFontInfo>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

// The texts beside the score, and the last few scores.
constexpr std::size_t most_pictures = 8;

// A text as one shape, its base line at 0, and how much room it takes.
struct Shape {
    QPainterPath path;
    qreal width = 0;
    qreal ascent = 0;
    qreal height = 0;
};

// Drawn large and made smaller: the toolkit bends the outlines of small glyphs to the pixels, and gives them
// out as they are bent for whatever size the font was last used at. Of glyphs as large as these it keeps
// nothing, so that the shape is the same whenever it is asked for, and grows smoothly with the board.
Shape shape_of(const QString& text, const QFont& font, qreal pixels) {
    constexpr int large = 1000;
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    Shape shape;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        QRawFont raw = run.rawFont();
        raw.setPixelSize(large);
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> advances = raw.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances);
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            shape.path.addPath(raw.pathForGlyph(glyphs[i]).translated(shape.width, 0));
            shape.width += advances[i].x();
        }
        shape.ascent = std::max(shape.ascent, raw.ascent());
        shape.height = std::max(shape.height, raw.ascent() + raw.descent());
    }
    shape.path.setFillRule(Qt::WindingFill);
    const qreal scale = pixels / large;
    return {QTransform::fromScale(scale, scale).map(shape.path),
            shape.width * scale,
            shape.ascent * scale,
            shape.height * scale};
}

// How far right of the left edge of its place a text begins.
qreal indent(Alignment alignment, qreal room) {
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

}  // namespace

LabelPictures::Picture LabelPictures::draw(const Look& look) {
    const Shape shape = shape_of(look.text, look.font, QFontInfo(look.font).pixelSize() * look.scale);
    Picture picture;
    picture.text = {shape.width, shape.height};
    // For the rim, and for glyphs that reach beyond their boxes.
    picture.margin = std::ceil(shape.height / 4);
    const QSizeF size = picture.text + QSizeF(2 * picture.margin, 2 * picture.margin);
    picture.pixmap = QPixmap(QSize(qCeil(size.width() * look.ratio), qCeil(size.height() * look.ratio)));
    picture.pixmap.fill(Qt::transparent);
    QPainter painter(&picture.pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(look.ratio, look.ratio);
    // The base line lies between two device pixels, so that what stands on it ends sharply.
    painter.translate(picture.margin, std::round((picture.margin + shape.ascent) * look.ratio) / look.ratio);
    if (look.rim) {
        const QColor color = to_qt(look.rim->color, look.rim->opacity);
        painter.strokePath(shape.path,
                           QPen(color, 2 * look.rim->width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.fillPath(shape.path, to_qt(look.color));
    painter.end();
    picture.pixmap.setDevicePixelRatio(look.ratio);
    return picture;
}

const LabelPictures::Picture& LabelPictures::picture(const Look& look) {
    for (const auto& [known, picture] : pictures_) {
        if (known == look) return picture;
    }
    if (pictures_.size() == most_pictures) pictures_.erase(pictures_.begin());
    return pictures_.emplace_back(look, draw(look)).second;
}

void LabelPictures::paint(QPainter& painter, const PaintedLabel& label, qreal ratio) {
    const Picture& picture = this->picture({to_qt(std::string(label.text)),
                                            QApplication::font(),
                                            label.font_scale,
                                            label.color,
                                            label.rim,
                                            ratio});
    const qreal left = label.place.left + indent(label.alignment, label.place.width - picture.text.width());
    const qreal top = label.place.top + (label.place.height - picture.text.height()) / 2;
    const auto whole = [&](qreal place) { return std::round((place - picture.margin) * ratio) / ratio; };
    painter.drawPixmap(QPointF(whole(left), whole(top)), picture.pixmap);
}

}  // namespace tarnwick

#include "desktop/shared/outline_pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <algorithm>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

// At one size and in one colour there are four signs, and places that are rounded to a pixel more or less.
constexpr std::size_t most_pixmaps = 16;

// As one path, so that lines that cross are no darker where they do.
QPainterPath path_of(const PaintedSign& sign) {
    QPainterPath path;
    for (const std::vector<Point>& line : sign.lines) {
        path.moveTo(line.front().x, line.front().y);
        for (std::size_t i = 1; i < line.size(); ++i) path.lineTo(line[i].x, line[i].y);
    }
    return path;
}

QPen round_pen(const QColor& color, double width) {
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// Of those in one colour, the sign tells them apart.
bool differ_in_size_only(const PaintedOutline::Look& a, const PaintedOutline::Look& b) {
    const auto same_length = [](const auto& line, const auto& other) { return line.size() == other.size(); };
    return a.color == b.color && a.line_opacity == b.line_opacity && a.rim.has_value() == b.rim.has_value() &&
           std::equal(a.sign.lines.begin(),
                      a.sign.lines.end(),
                      b.sign.lines.begin(),
                      b.sign.lines.end(),
                      same_length);
}

void paint_look(QPainter& painter, const PaintedOutline::Look& look) {
    const QRectF place = to_qt(look.middle);
    const QPainterPath sign = path_of(look.sign);
    if (const std::optional<PaintedRim>& rim = look.rim) {
        const QColor color = to_qt(rim->color, rim->opacity);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, look.line + 2 * rim->width));
        painter.drawRoundedRect(place, look.radius, look.radius);
        painter.strokePath(sign, round_pen(color, look.sign.width + 2 * rim->width));
    }
    painter.setPen(QPen(to_qt(look.color, look.line_opacity), look.line));
    painter.setBrush(to_qt(look.color, look.fill_opacity));
    painter.drawRoundedRect(place, look.radius, look.radius);
    painter.strokePath(sign, round_pen(to_qt(look.color, look.sign_opacity), look.sign.width));
}

}  // namespace

const QPixmap& OutlinePictures::pixmap(const PaintedOutline::Look& look) {
    const QPixmap* other = nullptr;
    for (const auto& [known, pixmap] : pixmaps_) {
        if (known == look) return pixmap;
        if (in_haste_ && differ_in_size_only(known, look)) other = &pixmap;
    }
    if (other) {
        handed_out_another_size_ = true;
        return *other;
    }
    // The size or the colour has changed.
    if (pixmaps_.size() == most_pixmaps) pixmaps_.clear();
    QPixmap pixmap(look.size.width, look.size.height);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_look(painter, look);
    painter.end();
    return pixmaps_.emplace_back(look, pixmap).second;
}

bool OutlinePictures::end_haste() {
    in_haste_ = false;
    if (handed_out_another_size_) pixmaps_.clear();
    return std::exchange(handed_out_another_size_, false);
}

}  // namespace tarnwick

#include "desktop/board_painter.h"

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/board_geometry.h"
#include "desktop/qt_convert.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

int text_flags(const Label& label) {
    switch (label.alignment()) {
        case Alignment::right:
            return Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip;
        case Alignment::center:
            return Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip;
        case Alignment::left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip;
}

template <class W, class Action>
void for_each_visible(const Form& form, WidgetKind kind, Action action) {
    for (const Widget* widget : form.widgets()) {
        if (widget->kind() == kind && widget->visible()) action(static_cast<const W&>(*widget));
    }
}

}  // namespace

// A row of labels at the lower left corner grows to the right and upwards, and keeps its order.
QRectF BoardPainter::label_place(const Rect& place, qreal scale) const {
    const QRectF given = to_qt(place);
    const qreal height = given.height() * scale;
    return QRectF(given.left() * scale, given.bottom() - height + scrolled_, given.width() * scale, height);
}

QRect BoardPainter::area_of(const Widget& widget, const Rect& place) const {
    if (widget.kind() == WidgetKind::image) {
        const QRectF seen = picture_place(static_cast<const Image&>(widget), place);
        // An image that has not moved may have begun or ceased to stretch.
        return touched(place == widget.place() ? seen.united(to_qt(place)) : seen);
    }
    if (widget.kind() == WidgetKind::label) return touched(label_place(place, label_scale()));
    return touched(to_qt(place));
}

int BoardPainter::lower_edge() const {
    qreal edge = 0;
    for_each_visible<Image>(form_, WidgetKind::image, [&edge](const Image& image) {
        if (is_seen(image)) edge = std::max(edge, picture_place(image, image.place()).bottom());
    });
    return static_cast<int>(std::ceil(edge));
}

void BoardPainter::paint(QPainter& painter, const QRegion& area) {
    for (const QRect& rect : area) painter.fillRect(rect, to_qt(form_.back_color()));
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    paint_outlines(painter, area, ratio);
    paint_images(painter, area, ratio);
    drag_.paint(painter, area, ratio, pictures_);
    painter.restore();
    // Above all cards: the score can always be read.
    if (area.intersects(plate())) paint_labels(painter, area);
}

void BoardPainter::paint_outlines(QPainter& painter, const QRegion& area, qreal ratio) const {
    const int line = std::max(1, static_cast<int>(ratio));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for_each_visible<Outline>(form_, WidgetKind::outline, [&](const Outline& outline) {
        const QRectF place = to_qt(outline.place());
        if (!area.intersects(touched(place))) return;
        const qreal half = line / 2.0;
        const QRectF middle = QRectF(snapped(place, ratio)).adjusted(half, half, -half, -half);
        const qreal radius = corner_radius * ratio * place.width() / card_width;
        painter.setPen(QPen(to_qt(outline.border_color()), line));
        painter.drawRoundedRect(middle, radius, radius);
    });
}

qreal BoardPainter::label_scale() const {
    const QFontMetricsF metrics(QApplication::font());
    qreal scale = 1;
    for_each_visible<Label>(form_, WidgetKind::label, [&](const Label& label) {
        const QRectF place = to_qt(label.place());
        if (label.caption().empty() || place.isEmpty()) return;
        scale = std::max({scale, metrics.horizontalAdvance(to_qt(label.caption())) / place.width(),
                          metrics.height() / place.height()});
    });
    return scale;
}

void BoardPainter::paint_labels(QPainter& painter, const QRegion& area) const {
    const qreal scale = label_scale();
    paint_plate(painter);
    painter.setFont(QApplication::font());
    for_each_visible<Label>(form_, WidgetKind::label, [&](const Label& label) {
        const QRectF place = label_place(label.place(), scale);
        if (!area.intersects(touched(place))) return;
        painter.setPen(to_qt(label.text_color()));
        painter.drawText(place, text_flags(label), to_qt(label.caption()));
    });
}

QRect BoardPainter::plate() const {
    constexpr qreal margin = 4;
    const qreal scale = label_scale();
    QRectF row;
    for_each_visible<Label>(form_, WidgetKind::label,
                            [&](const Label& label) { row |= label_place(label.place(), scale); });
    return row.isEmpty() ? QRect() : row.adjusted(-margin, -1, margin, 1).toAlignedRect();
}

bool BoardPainter::is_seen_within(const QRectF& place) const {
    bool found = false;
    for_each_visible<Image>(form_, WidgetKind::image, [&](const Image& image) {
        found = found || (is_seen(image) && picture_place(image, image.place()).intersects(place));
    });
    return found || QRectF(drag_.area()).intersects(place);
}

// Where cards lie under the labels, the colour of the table is laid between them.
void BoardPainter::paint_plate(QPainter& painter) const {
    const QRectF place(plate());
    if (!is_seen_within(place)) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(to_qt(form_.back_color()));
    painter.drawRoundedRect(place, corner_radius, corner_radius);
}

void BoardPainter::sort_images() {
    if (images_.empty()) {
        for (const Widget* widget : form_.widgets()) {
            if (widget->kind() == WidgetKind::image) images_.push_back(static_cast<const Image*>(widget));
        }
    }
    const auto lower = [](const Image* a, const Image* b) { return a->stacking() < b->stacking(); };
    // To see that the order still holds costs far less than to sort.
    if (!std::is_sorted(images_.begin(), images_.end(), lower)) {
        std::sort(images_.begin(), images_.end(), lower);
    }
}

void BoardPainter::prepare_pictures(qreal ratio) {
    const PixelSize size = form_.client_size();
    collect_sprites(QRect(0, 0, size.width, size.height), ratio);
    for (const Sprite& sprite : sprites_) pictures_.pixmap(sprite.image->picture(), sprite.place.size());
}

void BoardPainter::collect_sprites(const QRegion& area, qreal ratio) {
    sort_images();
    sprites_.clear();
    const std::vector<Image*>& floating = drag_.lifted();
    // From the top one down, so that cards under another one at the same place are left out: piles stay crisp
    // at their rounded corners, and no drawing is rendered before it is seen.
    for (auto image = images_.rbegin(); image != images_.rend(); ++image) {
        if (!is_seen(**image) || std::find(floating.begin(), floating.end(), *image) != floating.end())
            continue;
        const QRectF place = picture_place(**image, (*image)->place());
        if (!area.intersects(touched(place))) continue;
        const QRect device_place = snapped(place, ratio);
        const auto covers = [&](const Sprite& upper) { return upper.place == device_place; };
        if (std::any_of(sprites_.begin(), sprites_.end(), covers)) continue;
        sprites_.push_back({*image, device_place});
    }
}

void BoardPainter::paint_images(QPainter& painter, const QRegion& area, qreal ratio) {
    collect_sprites(area, ratio);
    for (auto sprite = sprites_.rbegin(); sprite != sprites_.rend(); ++sprite) {
        paint_picture(painter, *sprite->image, sprite->place, pictures_);
    }
}

}  // namespace tarnwick

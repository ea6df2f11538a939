#include "desktop/board_painter.h"

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/qt_convert.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

constexpr qreal corner_radius = 4;

constexpr QColor mark_line(250, 200, 60, 200);
constexpr QColor mark_fill(250, 200, 60, 50);

// The rectangle in whole device pixels. Position and size are rounded apart: widgets of one size stay so.
QRect snapped(const QRectF& rect, qreal ratio) {
    return QRect(qRound(rect.left() * ratio), qRound(rect.top() * ratio),
                 std::max(1, qRound(rect.width() * ratio)), std::max(1, qRound(rect.height() * ratio)));
}

// The whole pixels that a rectangle touches, with a margin for what rounding to device pixels adds.
QRect touched(const QRectF& rect) { return rect.toAlignedRect().adjusted(-1, -1, 1, 1); }

// Where an image at `place` shows its picture.
QRectF picture_place(const Image& image, const Rect& place) {
    const QRectF rect = to_qt(place);
    return image.stretch() ? rect : QRectF(rect.topLeft(), QSizeF(card_width, card_height));
}

bool is_seen(const Image& image) { return image.visible() && !image.picture().none(); }

// A row of labels at the lower left corner grows to the right and upwards, and keeps its order.
QRectF label_place(const Rect& place, qreal scale) {
    const QRectF given = to_qt(place);
    const qreal height = given.height() * scale;
    return QRectF(given.left() * scale, given.bottom() - height, given.width() * scale, height);
}

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

QRect BoardPainter::area_of(const Widget& widget, const Rect& place) const {
    if (widget.kind() == WidgetKind::image) {
        const QRectF seen = picture_place(static_cast<const Image&>(widget), place);
        // An image that has not moved may have begun or ceased to stretch.
        return touched(place == widget.place() ? seen.united(to_qt(place)) : seen);
    }
    if (widget.kind() == WidgetKind::label) return touched(label_place(place, label_scale()));
    return touched(to_qt(place));
}

const std::vector<Image*>& BoardPainter::lifted() const {
    const std::vector<Image*>& dragged = form_.mouse().lifted();
    return dragged.empty() && glide_ ? glide_->images() : dragged;
}

QPointF BoardPainter::lifted_offset() const {
    const Mouse& mouse = form_.mouse();
    if (mouse.lifted().empty()) return glide_ ? glide_->offset() : QPointF();
    return {static_cast<qreal>(mouse.drag_dx()), static_cast<qreal>(mouse.drag_dy())};
}

QRectF BoardPainter::lifted_place(const Image& image) const {
    return picture_place(image, image.place()).translated(lifted_offset());
}

QRect BoardPainter::lifted_area() const {
    QRectF bounds;
    for (const Image* image : lifted()) bounds |= lifted_place(*image);
    if (bounds.isEmpty()) return {};
    return touched(bounds.adjusted(-shadow_reach, -shadow_reach, shadow_reach, shadow_reach));
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
    painter.restore();
    paint_labels(painter, area);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    paint_images(painter, area, ratio);
    paint_mark(painter, area, ratio);
    paint_lifted(painter, area, ratio);
    painter.restore();
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
    painter.setFont(QApplication::font());
    for_each_visible<Label>(form_, WidgetKind::label, [&](const Label& label) {
        const QRectF place = label_place(label.place(), scale);
        if (!area.intersects(touched(place))) return;
        if (label.has_colors()) painter.fillRect(place, to_qt(label.back_color()));
        painter.setPen(to_qt(label.text_color()));
        painter.drawText(place, text_flags(label), to_qt(label.caption()));
    });
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
    const std::vector<Image*>& floating = lifted();
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
    for (auto sprite = sprites_.rbegin(); sprite != sprites_.rend(); ++sprite) paint_sprite(painter, *sprite);
}

// The image that would receive the lifted ones is marked: faintly, as a drop changes nothing that must be
// seen.
void BoardPainter::paint_mark(QPainter& painter, const QRegion& area, qreal ratio) const {
    const Image* image = form_.mouse().receiver();
    if (!image || !image->visible()) return;
    const QRectF place = picture_place(*image, image->place());
    if (!area.intersects(touched(place))) return;
    const qreal line = std::max(2.0, std::floor(2 * ratio));
    const qreal radius = corner_radius * ratio * place.width() / card_width;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mark_line, line));
    painter.setBrush(mark_fill);
    const qreal half = line / 2;
    painter.drawRoundedRect(QRectF(snapped(place, ratio)).adjusted(half, half, -half, -half), radius, radius);
}

void BoardPainter::paint_lifted(QPainter& painter, const QRegion& area, qreal ratio) {
    const std::vector<Image*>& images = lifted();
    if (images.empty() || !area.intersects(lifted_area())) return;
    QRect pile;
    for (const Image* image : images) pile |= snapped(lifted_place(*image), ratio);
    const int reach = qRound(shadow_reach * ratio);
    painter.drawImage(pile.topLeft() - QPoint(reach, reach), shadow_.image(pile.size(), reach));
    const auto paint = [&](const Image* image) {
        if (image && is_seen(*image)) paint_sprite(painter, {image, snapped(lifted_place(*image), ratio)});
    };
    for (const Image* image : images) paint(image);
    // Held where it lies, a card shows its whole face.
    if (lifted_offset().isNull()) paint(form_.mouse().dragged());
}

void BoardPainter::paint_sprite(QPainter& painter, const Sprite& sprite) {
    painter.drawPixmap(sprite.place, pictures_.pixmap(sprite.image->picture(), sprite.place.size()));
    if (!sprite.image->bordered()) return;
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(QRectF(sprite.place).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace tarnwick

#include "desktop/board/slim_scroll_bar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionSlider>

#include "desktop/shared/high_contrast.h"

namespace tarnwick {
namespace {

// In pixels: the cards leave 14 pixels free in a window of 800.
constexpr int width_at_rest = 8;
constexpr int grown_width = 14;

}  // namespace

SlimScrollBar::SlimScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
    setObjectName("scroll bar");
    // What of the board it does not cover shows through.
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void SlimScrollBar::settle() {
    const int width = grown_ ? grown_width : width_at_rest;
    setGeometry(parentWidget()->width() - width, 0, width, parentWidget()->height());
}

void SlimScrollBar::set_grown(bool grown) {
    if (grown == grown_) return;
    grown_ = grown;
    settle();
}

void SlimScrollBar::set_out_of_the_way(bool out) {
    out_of_the_way_ = out;
    setAttribute(Qt::WA_TransparentForMouseEvents, out);
    if (out) set_grown(false);
}

void SlimScrollBar::enterEvent(QEnterEvent* event) {
    set_grown(!out_of_the_way_);
    QScrollBar::enterEvent(event);
}

void SlimScrollBar::leaveEvent(QEvent* event) {
    if (!isSliderDown()) set_grown(false);
    QScrollBar::leaveEvent(event);
}

void SlimScrollBar::mouseReleaseEvent(QMouseEvent* event) {
    QScrollBar::mouseReleaseEvent(event);
    if (!rect().contains(event->position().toPoint())) set_grown(false);
}

QRectF SlimScrollBar::handle() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
}

void SlimScrollBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Seen on a table of any colour: dark behind, light in front.
    const bool strong = has_high_contrast(palette());
    const auto opacity = [&](int grown, int at_rest) { return strong ? 255 : grown_ ? grown : at_rest; };
    painter.setBrush(QColor(0, 0, 0, opacity(90, 50)));
    painter.drawRect(rect());
    painter.setBrush(QColor(255, 255, 255, opacity(220, 170)));
    const QRectF bar = handle().adjusted(2, 2, -2, -2);
    painter.drawRoundedRect(bar, bar.width() / 2, bar.width() / 2);
}

}  // namespace tarnwick

#include "desktop/dialogs/color_picker.h"

#include <QColorDialog>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

// The window moved into the room; where it is larger, its upper left corner is seen.
QRect within(const QRect& room, QRect window) {
    window.moveRight(std::min(window.right(), room.right()));
    window.moveBottom(std::min(window.bottom(), room.bottom()));
    window.moveLeft(std::max(window.left(), room.left()));
    window.moveTop(std::max(window.top(), room.top()));
    return window;
}

// The place beside `other`, on the side where the least of it is covered.
QRect beside(const QRect& other, const QSize& size, const QRect& room) {
    const auto at = [&](int left, int top) { return within(room, QRect(QPoint(left, top), size)); };
    const std::array<QRect, 4> sides{
        at(other.right() + 1, other.top()), at(other.left() - size.width(), other.top()),
        at(other.left(), other.bottom() + 1), at(other.left(), other.top() - size.height())};
    const auto covered = [&other](const QRect& side) {
        const QRect both = side & other;
        return both.width() * both.height();
    };
    return *std::min_element(sides.begin(), sides.end(),
                             [&](const QRect& a, const QRect& b) { return covered(a) < covered(b); });
}

}  // namespace

QColorDialog* make_color_picker(const QColor& first, const QString& title, QWidget* parent) {
    auto* picker = new QColorDialog(first, parent);
    picker->setWindowTitle(title);
    if (!parent) return picker;
    picker->adjustSize();
    // The frame that it will get is the one that its parent has.
    const QSize frame = parent->frameGeometry().size() - parent->size();
    picker->move(
        beside(parent->frameGeometry(), picker->size() + frame, parent->screen()->availableGeometry())
            .topLeft());
    return picker;
}

}  // namespace tarnwick

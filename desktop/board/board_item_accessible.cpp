#include "desktop/board/board_item_accessible.h"

#include <QApplication>

#include "desktop/shared/qt_convert.h"
#include "view/spoken_board.h"

namespace tarnwick {
namespace {

// Whether a menu is open, or a mouse button held.
bool waits_for_player() {
    return QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget();
}

}  // namespace

QAccessibleInterface* BoardItemAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(group_.object());
}

BoardItem BoardItemAccessible::item() const {
    if (!isValid()) return {};
    const std::vector<BoardItem> items = described_items(board().form());
    const BoardItem* item = find_item(items, &widget_);
    return item ? *item : BoardItem{};
}

bool BoardItemAccessible::is_under_cursor() const { return isValid() && board().cursor_item() == &widget_; }

QString BoardItemAccessible::text(QAccessible::Text text) const {
    const BoardItem described = item();
    if (text == QAccessible::Name) return to_qt(described.name);
    if (text == QAccessible::Description && is_under_cursor())
        return to_qt(std::string(board().cursor_hint()));
    // An image says it in its name.
    if (text == QAccessible::Description && described.value) return to_qt(described.tip);
    if (text == QAccessible::Value && described.value) return QString::number(*described.value);
    return {};
}

QRect BoardItemAccessible::rect() const {
    if (!isValid()) return {};
    const BoardWidget& board = this->board();
    const bool is_image = widget_.kind() == WidgetKind::image;
    // A label may be drawn larger than it is placed.
    QRect place = to_qt(widget_.place()).toAlignedRect();
    if (!is_image) {
        place = board.area_of(widget_);
    }
    return place.translated(board.mapToGlobal(QPoint(0, -board.scroll_offset())));
}

QAccessible::Role BoardItemAccessible::role() const {
    if (widget_.kind() == WidgetKind::label) return QAccessible::StaticText;
    return item().clicks > 0 ? QAccessible::Button : QAccessible::Graphic;
}

QAccessible::State BoardItemAccessible::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    const BoardItem described = item();
    state.invisible = described.name.empty();
    state.focusable = described.place.has_value();
    state.focused = is_under_cursor() && board().hasFocus();
    state.disabled = !board().form().accepts_input();
    state.offscreen = !rect().intersects(group_.rect());
    state.readOnly = true;
    return state;
}

void* BoardItemAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface && item().clicks > 0) {
        return static_cast<QAccessibleActionInterface*>(this);
    }
    if (type == QAccessible::ValueInterface && item().value) {
        return static_cast<QAccessibleValueInterface*>(this);
    }
    return nullptr;
}

QStringList BoardItemAccessible::actionNames() const {
    return item().clicks > 0 ? QStringList{pressAction()} : QStringList{};
}

void BoardItemAccessible::doAction(const QString& action) {
    const int clicks = item().clicks;
    if (action != pressAction() || clicks == 0) return;
    // Later: a move may bring up a message, and whoever asks for it does not wait for the answer.
    BoardWidget& board = this->board();
    QMetaObject::invokeMethod(
        &board,
        [&board, &widget = widget_, clicks] { board.press_item(widget, clicks, waits_for_player); },
        Qt::QueuedConnection);
}

QVariant BoardItemAccessible::currentValue() const { return item().value.value_or(0); }
QVariant BoardItemAccessible::maximumValue() const { return item().most; }

}  // namespace tarnwick

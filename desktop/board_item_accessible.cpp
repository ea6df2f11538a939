#include "desktop/board_item_accessible.h"

#include <QApplication>
#include <algorithm>
#include <optional>

#include "desktop/board_widget.h"
#include "desktop/qt_convert.h"
#include "platform/desktop.h"

namespace tarnwick {
namespace {

// Nobody else is at work with the window: no dialog or menu is open, and nothing is dragged.
bool takes_clicks(const Form& form) {
    return form.accepts_input() && !desktop().in_event() && !form.mouse().dragged() &&
           QApplication::mouseButtons() == Qt::NoButton && !QApplication::activePopupWidget();
}

// A place where a click reaches the widget, that is, where no other one lies over it. A click nearer to its
// left or right edge might be meant for the neighbour.
std::optional<QPointF> free_spot(const Widget& widget) {
    constexpr qreal from_edge = 30;
    constexpr int step = 4;
    const QRectF place = to_qt(widget.place());
    const qreal x = place.left() + std::min(from_edge, place.width() - 2);
    for (int down = step; down < place.height(); down += step) {
        const QPointF spot(x, place.top() + down);
        const Mouse& mouse = widget.form().mouse();
        if (mouse.image_at(static_cast<float>(spot.x()), static_cast<float>(spot.y())) == &widget)
            return spot;
    }
    return std::nullopt;
}

void click(BoardWidget& board, const Widget& widget, int times) {
    Form& form = board.form();
    for (int i = 0; i < times; ++i) {
        if (!takes_clicks(form)) return;
        const std::optional<QPointF> spot = free_spot(widget);
        if (!spot) return;
        // What is not seen takes no clicks.
        board.reveal(*spot);
        form.mouse().press(static_cast<float>(spot->x()), static_cast<float>(spot->y()));
        form.mouse().release(static_cast<float>(spot->x()), static_cast<float>(spot->y()));
    }
}

}  // namespace

QAccessibleInterface* BoardItemAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(board_.object());
}

BoardItem BoardItemAccessible::item() const {
    const std::vector<BoardItem> items = board_.items();
    const auto item = std::find_if(items.begin(), items.end(),
                                   [this](const BoardItem& each) { return each.widget == &widget_; });
    return item == items.end() ? BoardItem{} : *item;
}

QString BoardItemAccessible::text(QAccessible::Text text) const {
    const BoardItem described = item();
    if (text == QAccessible::Name) return to_qt(described.name);
    if (text == QAccessible::Value && described.value) return QString::number(*described.value);
    return {};
}

QRect BoardItemAccessible::rect() const {
    if (!isValid()) return {};
    const BoardWidget& board = board_.board();
    const bool is_image = widget_.kind() == WidgetKind::image;
    // A label may be drawn larger than it is placed.
    QRect place = to_qt(widget_.place()).toAlignedRect();
    if (!is_image) {
        BoardPainter painter(board.form());
        painter.set_scrolled(board.scroll_offset());
        place = painter.area_of(widget_, widget_.place());
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
    state.invisible = item().name.empty();
    state.disabled = !board_.board().form().accepts_input();
    state.offscreen = !rect().intersects(board_.rect());
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
    BoardWidget& board = board_.board();
    QMetaObject::invokeMethod(
        &board, [&board, &widget = widget_, clicks] { click(board, widget, clicks); }, Qt::QueuedConnection);
}

QVariant BoardItemAccessible::currentValue() const { return item().value.value_or(0); }
QVariant BoardItemAccessible::maximumValue() const { return item().most; }

}  // namespace tarnwick

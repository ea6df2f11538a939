#include "desktop/board/board_widget.h"

#include <QApplication>
#include <QCursor>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QTimer>
#include <QToolTip>
#include <QTouchEvent>
#include <algorithm>

#include "desktop/shared/high_contrast.h"
#include "desktop/shared/key_codes.h"
#include "desktop/shared/qt_convert.h"
#include "desktop/shared/qt_texts.h"
#include "platform/desktop.h"

namespace tarnwick {
namespace {

// A size that has not changed for so many milliseconds has settled.
constexpr int settling_time = 100;

MouseButton button_of(const QSinglePointEvent& event) {
    return event.button() == Qt::LeftButton ? MouseButton::left : MouseButton::other;
}

bool is_touch(QEvent::Type type) {
    return type == QEvent::TouchBegin || type == QEvent::TouchUpdate || type == QEvent::TouchEnd ||
           type == QEvent::TouchCancel;
}

Qt::CursorShape to_qt(PointerShape shape) {
    switch (shape) {
        case PointerShape::pointing_hand:
            return Qt::PointingHandCursor;
        case PointerShape::open_hand:
            return Qt::OpenHandCursor;
        case PointerShape::closed_hand:
            return Qt::ClosedHandCursor;
        case PointerShape::arrow:
            break;
    }
    return Qt::ArrowCursor;
}

}  // namespace

BoardWidget::BoardWidget(Form& form, WindowList& windows)
    : form_(form), windows_(windows), stage_(form, qt_texts(), *this) {
    setObjectName("board");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setTabletTracking(true);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setMinimumSize(320, 240);
    scroll_bar_.hide();
    scroll_bar_.setCursor(Qt::ArrowCursor);
    scroll_bar_.setSingleStep(BoardScroll::step);
    scroll_bar_.installEventFilter(this);
    connect(&scroll_bar_, &QScrollBar::valueChanged, this, [this](int value) { stage_.scroll_to(value); });
}

void BoardWidget::drag_changed() {
    stage_.drag_changed();
    scroll_bar_.set_out_of_the_way(stage_.holds());
}

void BoardWidget::game_over(Form& next, const std::vector<std::vector<const Image*>>& won_piles) {
    // A menu that was opened during the last slide would keep the keyboard from the window that comes.
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    stage_.game_over(next, won_piles);
}

QRect BoardWidget::area_of(const Widget& widget) const { return to_qt(stage_.scene().area_of(widget)); }

void BoardWidget::repaint(const Area& area) { update(to_qt(area)); }

void BoardWidget::scroll_changed() {
    const BoardScroll& scroll = stage_.scroll();
    scroll_bar_.setPageStep(scroll.page());
    scroll_bar_.setRange(0, scroll.range());
    scroll_bar_.setValue(scroll.value());
    scroll_bar_.setVisible(scroll.range() > 0);
}

void BoardWidget::settle_later() {
    QMetaObject::invokeMethod(
        this, [this] { stage_.settle(); }, Qt::QueuedConnection);
}

void BoardWidget::steps_changed() {
    const std::optional<std::int64_t> due = stage_.next_step();
    if (!due) return steps_.stop();
    const std::int64_t left = std::max<std::int64_t>(0, *due - desktop().now());
    steps_.start(static_cast<int>(left), Qt::PreciseTimer, this);
}

// A style without animations of its own is how a desktop asks for less motion; where it has no such setting,
// the player can ask through the environment.
bool BoardWidget::allows_motion() const {
    return !qEnvironmentVariableIsSet("TARNWICK_LESS_MOTION") &&
           style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
}

void BoardWidget::cursor_moved() {
    if (on_cursor_moved) on_cursor_moved();
}

void BoardWidget::pointer_shape_changed() { setCursor(to_qt(stage_.pointer_shape())); }

void BoardWidget::set_full_screen(bool on) {
    QWidget& whole = *window();
    whole.setWindowState(on ? whole.windowState() | Qt::WindowFullScreen
                            : whole.windowState() & ~Qt::WindowFullScreen);
}

bool BoardWidget::wants_high_contrast() const { return has_high_contrast(palette()); }

void BoardWidget::hold_back(Form& next) {
    windows_.hold_back(next, [board = QPointer(this)] {
        if (board) board->end_celebration();
    });
}

void BoardWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() == settling_.timerId()) {
        settling_.stop();
        if (painter_.end_haste()) update();
    } else if (event->timerId() == steps_.timerId()) {
        stage_.step();
        steps_changed();
    } else {
        QWidget::timerEvent(event);
    }
}

void BoardWidget::paintEvent(QPaintEvent* event) {
    stage_.begin_painting();
    QPainter painter(this);
    painter.translate(0, -scroll_offset());
    // One rectangle at a time: clipped to several at once, the toolkit blends pictures line by line, shared
    // among threads that wake each other for every few of them.
    for (const QRect& rect : event->region()) {
        const QRect area = rect.translated(0, scroll_offset());
        painter.setClipRect(area);
        painter_.paint(painter, stage_.scene().layers(from_qt(area), devicePixelRatioF()));
    }
}

void BoardWidget::showEvent(QShowEvent* event) {
    // The desktop takes a while to give a new window its place on the screen: time to draw pictures.
    QTimer::singleShot(
        0, this, [this] { painter_.prepare(stage_.scene().layers(devicePixelRatioF()).images); });
    QWidget::showEvent(event);
}

void BoardWidget::resizeEvent(QResizeEvent*) {
    painter_.begin_haste();
    settling_.start(settling_time, this);
    scroll_bar_.settle();
    stage_.resized({width(), height()});
    // The window may have been moved as well, from under a pointer that holds a card.
    if (!stage_.plays(Pointer::mouse)) return;
    const QPointF pointer = mapFromGlobal(QPointF(QCursor::pos()));
    stage_.move(pointer.x(), pointer.y(), true);
}

bool BoardWidget::event(QEvent* event) {
    // The first that is known of a key, which may belong to a menu entry, and change what a tip tells.
    if (event->type() == QEvent::ShortcutOverride) {
        stage_.end_motion();
        QToolTip::hideText();
    }
    if (event->type() == QEvent::ToolTip) {
        show_tip(static_cast<const QHelpEvent&>(*event));
        return true;
    }
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide) stage_.end_celebration();
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::Hide) stage_.cancel();
    if (is_touch(event->type())) return touch_event(static_cast<QTouchEvent&>(*event));
    if (event->type() == QEvent::FontChange) stage_.font_changed();
    if (event->type() == QEvent::PaletteChange) stage_.contrast_changed();
    // The board looks the same with the keyboard and without: no need to paint it as a widget does by itself.
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        return scroll_bar_.isHidden() || QCoreApplication::sendEvent(&scroll_bar_, event);
    }
    return QWidget::event(event);
}

bool BoardWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) stage_.end_celebration();
    return QWidget::eventFilter(watched, event);
}

void BoardWidget::show_tip(const QHelpEvent& event) {
    const std::optional<BoardTip> tip = stage_.tip_at(event.x(), event.y());
    if (!tip) return QToolTip::hideText();
    QToolTip::showText(event.globalPos(), to_qt(tip->text), this, to_qt(tip->area));
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
    stage_.press(event->position().x(), event->position().y(), button_of(*event));
}

bool BoardWidget::is_over_other_window(QPointF global) const {
    const QWidget* there = QApplication::topLevelAt(global.toPoint());
    return there && there != window();
}

// The windows find out themselves which presses belong together.
void BoardWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
    stage_.move(event->position().x(), event->position().y(), event->buttons() & Qt::LeftButton);
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
    const QPointF place = event->position();
    stage_.release(place.x(),
                   place.y(),
                   button_of(*event),
                   stage_.pointer_holds() && is_over_other_window(event->globalPosition()));
}

// What is taken here, the toolkit makes no mouse events of. Of several fingers only one counts, and the
// window may be gone after what it does.
bool BoardWidget::touch_event(QTouchEvent& event) {
    const bool begins = event.type() == QEvent::TouchBegin;
    event.setAccepted(event.device()->type() == QInputDevice::DeviceType::TouchScreen &&
                      !(begins && is_for_scroll_bar(event.points().first().position())));
    if (!event.isAccepted()) return false;
    if (event.type() == QEvent::TouchCancel) {
        fingers_.cancel();
        return true;
    }
    for (const QEventPoint& point : event.points()) {
        const Point place{point.position().x(), point.position().y()};
        const QPointF global = point.globalPosition();
        const bool pressed = point.state() == QEventPoint::Pressed;
        const bool released = point.state() == QEventPoint::Released;
        if (pressed && fingers_.down(point.id(), place)) break;
        if (released && fingers_.up(point.id(), place, is_over_other_window(global))) break;
        if (point.state() == QEventPoint::Updated) fingers_.move(point.id(), place);
    }
    return true;
}

void BoardWidget::tabletEvent(QTabletEvent* event) {
    const QPointF place = event->position();
    const bool is_down = event->buttons() != Qt::NoButton || event->type() == QEvent::TabletRelease;
    if (event->type() == QEvent::TabletPress || !is_down) scrolls_by_pen_ = is_for_scroll_bar(place);
    event->setAccepted(!scrolls_by_pen_);
    if (scrolls_by_pen_) return;
    if (event->type() == QEvent::TabletPress) {
        stage_.press(place.x(), place.y(), button_of(*event), Pointer::pen);
    } else if (event->type() == QEvent::TabletMove) {
        stage_.move(place.x(), place.y(), event->buttons() & Qt::LeftButton, Pointer::pen);
    } else {
        const bool elsewhere = stage_.holds() && is_over_other_window(event->globalPosition());
        stage_.release(place.x(), place.y(), button_of(*event), elsewhere, Pointer::pen);
    }
}

// The bar knows the mouse alone, which the toolkit makes of what nobody takes.
bool BoardWidget::is_for_scroll_bar(QPointF place) const { return childAt(place.toPoint()) != nullptr; }

void BoardWidget::wheelEvent(QWheelEvent* event) {
    stage_.scroll_by(-event->angleDelta().y() * BoardScroll::step / QWheelEvent::DefaultDeltasPerStep);
}

void BoardWidget::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(stage_.key_down(key_code_of(event->key()), event->isAutoRepeat()));
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (!(event->modifiers() & commands)) stage_.type(event->text().toStdString());
}

// Nor do these paint.
void BoardWidget::focusInEvent(QFocusEvent*) {
    if (cursor_item()) cursor_moved();
}
void BoardWidget::focusOutEvent(QFocusEvent*) { stage_.cancel(); }

}  // namespace tarnwick

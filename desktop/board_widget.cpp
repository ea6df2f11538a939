#include "desktop/board_widget.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include "desktop/key_codes.h"

namespace tarnwick {
namespace {

// Beyond so many rectangles, painting the whole board costs less than keeping them apart.
constexpr int most_repaints = 24;

constexpr int scroll_step = 48;
// So near an edge, in pixels, a drag scrolls the board by so many pixels every so many milliseconds.
constexpr int edge_reach = 24;
constexpr int edge_scroll_step = 12;
constexpr int edge_scroll_time = 25;
// A size that has not changed for so many milliseconds has settled.
constexpr int settling_time = 100;
// The board is scrolled by whole device pixels at every scale in quarters.
constexpr int scroll_grain = 4;

MouseButton button_of(const QMouseEvent& event) {
    return event.button() == Qt::LeftButton ? MouseButton::left : MouseButton::other;
}

}  // namespace

BoardWidget::BoardWidget(Form& form)
    : form_(form),
      glide_([this] { repaint_lifted(); }),
      painter_(form, &glide_),
      label_scale_(painter_.label_scale()) {
    setObjectName("board");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(320, 240);
    scroll_bar_.hide();
    scroll_bar_.setSingleStep(scroll_step);
    connect(&scroll_bar_, &QScrollBar::valueChanged, this, [this](int value) {
        show_part(value / scroll_grain * scroll_grain);
        repaint_all();
        // Under a pointer that holds cards another part of the board lies now.
        if (form_.mouse().dragged()) move_pointer(pointer_);
    });
}

void BoardWidget::widget_changed(const Widget& widget, const Rect& before) {
    news_.board_changed();
    if (widget.kind() == WidgetKind::label) update_label_scale();
    if (widget.kind() == WidgetKind::image) {
        if (glide_.moves(static_cast<const Image&>(widget))) glide_.end();
        update_scrolling_later();
    }
    repaint_area(painter_.area_of(widget, before));
    if (widget.place() != before) repaint_area(painter_.area_of(widget, widget.place()));
}

void BoardWidget::update_label_scale() {
    plate_ = painter_.plate();
    const qreal scale = painter_.label_scale();
    if (scale == label_scale_) return;
    label_scale_ = scale;
    repaint_all();
}

void BoardWidget::drag_changed() {
    take_up_or_put_down();
    repaint_lifted();
    repaint_mark();
    scroll_at_edge();
    const bool holds = form_.mouse().dragged() != nullptr;
    setMouseTracking(holds);
    scroll_bar_.set_out_of_the_way(holds);
}

void BoardWidget::show_part(int offset) {
    offset_ = offset;
    painter_.set_scrolled(offset);
    plate_ = painter_.plate();
    form_.mouse().set_seen_area(
        Rect{0, static_cast<float>(offset), static_cast<float>(width()), static_cast<float>(height())});
}

void BoardWidget::take_up_or_put_down() {
    const Mouse& mouse = form_.mouse();
    if (mouse.lifted().empty() == lifted_.empty()) {
        drag_offset_ = {static_cast<qreal>(mouse.drag_dx()), static_cast<qreal>(mouse.drag_dy())};
        return;
    }
    glide_.end();
    // What lies at the images' own places changes as well.
    for (const Image* image : lifted_.empty() ? mouse.lifted() : lifted_) {
        repaint_area(painter_.area_of(*image, image->place()));
    }
    const bool glides = !lifted_.empty() && !drag_offset_.isNull() && mouse.glides_back();
    // Should somebody receive the images after all, they are seen to change, and that ends their glide.
    if (glides) glide_.start(lifted_, drag_offset_);
    lifted_ = mouse.lifted();
    drag_offset_ = {};
}

void BoardWidget::repaint_lifted() {
    const QRect before = lifted_area_;
    lifted_area_ = painter_.drag().area();
    // One rectangle paints faster than the several that two overlapping ones are made of.
    if (before.intersects(lifted_area_)) {
        repaint_area(before | lifted_area_);
    } else {
        repaint_area(before);
        repaint_area(lifted_area_);
    }
}

void BoardWidget::repaint_mark() {
    const QRect before = mark_area_;
    mark_area_ = painter_.drag().mark_area();
    if (mark_area_ == before) return;
    repaint_area(before);
    repaint_area(mark_area_);
}

void BoardWidget::scroll_at_edge() {
    if (edge_ahead() == 0) {
        edge_scroll_.stop();
    } else if (!edge_scroll_.isActive()) {
        edge_scroll_.start(edge_scroll_time, this);
    }
}

int BoardWidget::edge_ahead() const {
    if (!form_.mouse().dragged() || drag_offset_.manhattanLength() < edge_reach) return 0;
    if (pointer_.y() < edge_reach) return scroll_bar_.value() > 0 ? -1 : 0;
    if (pointer_.y() < height() - edge_reach) return 0;
    return scroll_bar_.value() < scroll_bar_.maximum() ? 1 : 0;
}

void BoardWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() == settling_.timerId()) {
        settling_.stop();
        if (painter_.pictures().end_haste()) repaint_all();
        return;
    }
    if (event->timerId() != edge_scroll_.timerId()) return QWidget::timerEvent(event);
    scroll_bar_.setValue(scroll_bar_.value() + edge_ahead() * edge_scroll_step);
    scroll_at_edge();
}

void BoardWidget::move_pointer(QPointF place) {
    pointer_ = place;
    form_.mouse().move(static_cast<float>(place.x()), static_cast<float>(place.y() + offset_));
}

void BoardWidget::repaint_all() {
    repaints_ = most_repaints;
    update();
}

void BoardWidget::repaint_area(const QRect& area) {
    if (area.isEmpty() || repaints_ >= most_repaints) return;
    if (++repaints_ == most_repaints) {
        update();
    } else {
        update(area.translated(0, -offset_));
        // With a card below them, the labels are painted on a plate.
        if (area.intersects(plate_)) update(plate_.translated(0, -offset_));
    }
}

void BoardWidget::paintEvent(QPaintEvent* event) {
    repaints_ = 0;
    QPainter painter(this);
    painter.translate(0, -offset_);
    // One rectangle at a time: clipped to several at once, the toolkit blends pictures line by line, shared
    // among threads that wake each other for every few of them.
    for (const QRect& rect : event->region()) {
        const QRect area = rect.translated(0, offset_);
        painter.setClipRect(area);
        painter_.paint(painter, area);
    }
}

void BoardWidget::showEvent(QShowEvent* event) {
    // The desktop takes a while to give a new window its place on the screen: time to draw pictures.
    QTimer::singleShot(0, this, [this] { painter_.prepare_pictures(devicePixelRatioF()); });
    QWidget::showEvent(event);
}

void BoardWidget::resizeEvent(QResizeEvent*) {
    painter_.pictures().begin_haste();
    settling_.start(settling_time, this);
    glide_.end();
    repaint_all();
    scroll_bar_.settle();
    show_part(offset_);
    update_scrolling_later();
    form_.user_resized({width(), height()});
    // The window may have been moved as well, from under a pointer that holds a card.
    if (form_.mouse().dragged()) move_pointer(mapFromGlobal(QPointF(QCursor::pos())));
}

void BoardWidget::update_scrolling_later() {
    if (scrolling_is_stale_) return;
    scrolling_is_stale_ = true;
    // The whole layout changes in many small steps, and only its end counts.
    QMetaObject::invokeMethod(
        this, [this] { update_scrolling(); }, Qt::QueuedConnection);
}

void BoardWidget::update_scrolling() {
    scrolling_is_stale_ = false;
    if (!form_.loaded()) return;
    const int below = std::max(0, painter_.lower_edge() - height());
    // Some air under the lowest card.
    const int range = below == 0 ? 0 : (below + 2 * scroll_grain) / scroll_grain * scroll_grain;
    scroll_bar_.setPageStep(height());
    scroll_bar_.setRange(0, range);
    scroll_bar_.setVisible(range > 0);
    scroll_at_edge();
}

bool BoardWidget::event(QEvent* event) {
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::Hide) form_.mouse().cancel();
    if (event->type() == QEvent::FontChange) update_label_scale();
    // The board looks the same with the keyboard and without: no need to paint it as a widget does by itself.
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        return scroll_bar_.isHidden() || QCoreApplication::sendEvent(&scroll_bar_, event);
    }
    return QWidget::event(event);
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
    glide_.end();
    pointer_ = event->position();
    const QPointF at = on_board(*event);
    form_.mouse().press(static_cast<float>(at.x()), static_cast<float>(at.y()), button_of(*event));
}

// The windows find out themselves which presses belong together.
void BoardWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) {
        // Somebody else took the mouse, and its button was let go there.
        form_.mouse().cancel();
        return;
    }
    move_pointer(event->position());
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
    // Over another window of the program the board is not seen.
    const QWidget* there = QApplication::topLevelAt(event->globalPosition().toPoint());
    if (form_.mouse().dragged() && there && there != window()) {
        form_.mouse().cancel();
        return;
    }
    const QPointF at = on_board(*event);
    form_.mouse().release(static_cast<float>(at.x()), static_cast<float>(at.y()), button_of(*event));
}

QPointF BoardWidget::on_board(const QMouseEvent& event) const {
    return event.position() + QPointF(0, offset_);
}

void BoardWidget::wheelEvent(QWheelEvent* event) {
    if (!form_.accepts_input() || scroll_bar_.maximum() == 0) return;
    scroll_bar_.setValue(scroll_bar_.value() -
                         event->angleDelta().y() * scroll_step / QWheelEvent::DefaultDeltasPerStep);
}

void BoardWidget::keyPressEvent(QKeyEvent* event) {
    glide_.end();
    if (event->key() == Qt::Key_Escape && form_.mouse().dragged()) {
        form_.mouse().cancel();
        return;
    }
    if (form_.accepts_input()) scroll_with(event->key());
    const int code = key_code_of(event->key());
    event->setAccepted(code != 0 && form_.key_down(code));
}

void BoardWidget::reveal(QPointF spot) {
    const int y = qRound(spot.y());
    if (y < offset_) scroll_bar_.setValue(y - edge_reach);
    if (y >= offset_ + height()) scroll_bar_.setValue(y + edge_reach - height());
}

void BoardWidget::scroll_with(int key) {
    if (key == Qt::Key_PageDown) scroll_bar_.setValue(scroll_bar_.value() + height() / 2);
    if (key == Qt::Key_PageUp) scroll_bar_.setValue(scroll_bar_.value() - height() / 2);
    if (key == Qt::Key_Home) scroll_bar_.setValue(0);
    if (key == Qt::Key_End) scroll_bar_.setValue(scroll_bar_.maximum());
}

// Nor do these paint.
void BoardWidget::focusInEvent(QFocusEvent*) {}
void BoardWidget::focusOutEvent(QFocusEvent*) { form_.mouse().cancel(); }

}  // namespace tarnwick

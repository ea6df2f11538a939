#include "platform/widget.h"

namespace tarnwick {

Widget::Widget(Window& window, WidgetKind kind) : window_(window), kind_(kind) {
    stacking_ = window.add_widget(*this);
}

void Widget::move(float left, float top) { move(left, top, place_.width, place_.height); }

void Widget::move(float left, float top, float width, float height) {
    const Rect before = place_;
    place_ = Rect{left, top, width, height};
    if (place_ != before) changed(before);
}

void Widget::move_twips(int left, int top, int width, int height) {
    move(pixels(left), pixels(top), pixels(width), pixels(height));
}

void Widget::set_top(float top) { move(place_.left, top); }

void Widget::set_visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (FormView* view = window_.view()) view->widget_changed(*this, place_);
}

void Widget::bring_to_front() {
    if (window_.is_in_front(stacking_)) return;
    stacking_ = window_.next_stacking();
    if (visible_) changed();
}

void Widget::changed(const Rect& before) {
    if (!visible_) return;
    if (FormView* view = window_.view()) view->widget_changed(*this, before);
}

}  // namespace tarnwick

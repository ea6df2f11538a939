#include "platform/mouse.h"

#include <cmath>
#include <utility>

#include "platform/desktop.h"
#include "platform/image.h"

namespace tarnwick {
namespace {

// How well a pointer aims, in pixels: how far it may move within a press and still only click, and how far
// the second press of a two-click event may lie from the first.
struct Aim {
    float tap;
    float second_click;
};

Aim aim_of(Pointer pointer) {
    if (pointer == Pointer::finger) return {10, 24};
    if (pointer == Pointer::pen) return {4, 8};
    return {0, 4};
}

}  // namespace

Image* Mouse::image_at(float x, float y) const {
    Image* topmost = nullptr;
    for (Widget* widget : window_.widgets()) {
        if (widget->kind() != WidgetKind::image || !widget->visible()) continue;
        if (topmost && widget->stacking() < topmost->stacking()) continue;
        if (widget->place().contains(x, y)) topmost = static_cast<Image*>(widget);
    }
    return topmost;
}

void Mouse::press(float x, float y, MouseButton button, Pointer by) {
    if (button != MouseButton::left || !window_.accepts_input() || dragged_ || pressed_) return;
    pointer_ = by;
    moved_ = false;
    press_x_ = x_ = x;
    press_y_ = y_ = y;
    Image* image = image_at(x, y);
    if (!image) {
        last_clicked_ = nullptr;
        return;
    }
    if (image->drag_mode() == DragMode::automatic) {
        last_clicked_ = nullptr;
        start_drag(*image);
        return;
    }
    pressed_ = image;
    const bool second = is_second_click(*image, x, y);
    last_clicked_ = second ? nullptr : image;
    last_press_time_ = desktop().now();
    last_press_x_ = x;
    last_press_y_ = y;
    if (second && image->events().double_click) {
        desktop().event([image] { image->events().double_click(image->index()); });
    }
}

bool Mouse::is_second_click(const Image& image, float x, float y) const {
    return last_clicked_ == &image && desktop().now() - last_press_time_ <= desktop().double_click_time() &&
           std::abs(x - last_press_x_) <= aim_of(pointer_).second_click &&
           std::abs(y - last_press_y_) <= aim_of(pointer_).second_click;
}

bool Mouse::is_tap(float x, float y) const {
    const float reach = aim_of(pointer_).tap;
    return !moved_ && std::abs(x - press_x_) <= reach && std::abs(y - press_y_) <= reach;
}

void Mouse::start_drag(Image& image) {
    dragged_ = &image;
    hold_x_ = (press_x_ - image.left()) / image.width();
    hold_y_ = (press_y_ - image.top()) / image.height();
    lifted_ = {&image};
    glides_back_ = false;
    // Asked now and not when the images are put down: a message about it would come between drag and drop.
    desktop().event([this, &image] {
        if (on_lift) lifted_ = on_lift(image);
        if (on_put_back) glides_back_ = on_put_back();
    });
    taken_up_ = lifted_;
    drag_changed();
}

void Mouse::move(float x, float y) {
    if (!dragged_ || (x == x_ && y == y_) || is_tap(x, y)) return;
    moved_ = true;
    x_ = x;
    y_ = y;
    look_for_receiver();
    drag_changed();
}

// Whether it is another one now.
bool Mouse::look_for_receiver() {
    const Image* target = on_hover && is_seen(x_, y_) ? image_at(x_, y_) : nullptr;
    const float offset_x = target ? offset_in(*target, x_) : 0;
    const Widget* receiver = target ? on_hover(*dragged_, *target, offset_x) : nullptr;
    if (receiver == receiver_) return false;
    std::vector<Image*> taken = receiver && on_take ? on_take(*dragged_, *target, offset_x) : taken_up_;
    if (taken.empty()) {
        receiver = nullptr;
        taken = taken_up_;
    }
    const bool other = receiver != receiver_;
    receiver_ = receiver;
    lifted_ = std::move(taken);
    return other;
}

bool Mouse::is_seen(float x, float y) const {
    const PixelSize client = window_.client_size();
    const Rect all{0, 0, static_cast<float>(client.width), static_cast<float>(client.height)};
    return seen_area_.value_or(all).contains(x, y);
}

void Mouse::follow_layout() {
    if (!dragged_) return;
    const float press_x = dragged_->left() + hold_x_ * dragged_->width();
    const float press_y = dragged_->top() + hold_y_ * dragged_->height();
    const bool other_receiver = look_for_receiver();
    if (press_x == press_x_ && press_y == press_y_ && !other_receiver) return;
    moved_ = moved_ || press_x != press_x_ || press_y != press_y_;
    press_x_ = press_x;
    press_y_ = press_y;
    drag_changed();
}

void Mouse::release(float x, float y, MouseButton button) {
    if (button != MouseButton::left) return;
    if (!window_.accepts_input()) {
        cancel();
        return;
    }
    if (is_tap(x, y)) {
        x = press_x_;
        y = press_y_;
    } else {
        moved_ = true;
    }
    if (dragged_) {
        drop(x, y);
    } else if (pressed_) {
        Image& image = *pressed_;
        pressed_ = nullptr;
        if (is_seen(x, y) && image_at(x, y) == &image) image.click();
    }
}

float Mouse::offset_in(const Image& target, float x) const {
    const bool is_plain = pointer_ == Pointer::keys || (pointer_ != Pointer::mouse && !moved_);
    if (is_plain && plain_offset_) return *plain_offset_;
    return (x - target.left()) * twips_per_pixel;
}

void Mouse::drop(float x, float y) {
    Image& source = *dragged_;
    // Put down first: a message that the drop raises must not show the cards still lifted.
    put_down();
    Image* target = is_seen(x, y) ? image_at(x, y) : nullptr;
    if (target && target->events().drop) {
        const float offset_x = offset_in(*target, x);
        const float offset_y = (y - target->top()) * twips_per_pixel;
        desktop().event([&] { target->events().drop(target->index(), source, offset_x, offset_y); });
    }
}

void Mouse::cancel() {
    pressed_ = nullptr;
    last_clicked_ = nullptr;
    if (dragged_) put_down();
}

void Mouse::put_down() {
    dragged_ = nullptr;
    receiver_ = nullptr;
    lifted_.clear();
    drag_changed();
}

void Mouse::drag_changed() const {
    if (FormView* view = window_.view()) view->drag_changed();
}

}  // namespace tarnwick

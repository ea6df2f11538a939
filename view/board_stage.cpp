#include "view/board_stage.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/desktop.h"
#include "platform/key_codes.h"
#include "view/spoken_board.h"

namespace tarnwick {
namespace {

// A pointer that has moved so far, in pixels, is meant to play: less may be a bump against the table.
constexpr double deliberate_move = 8;

}  // namespace

BoardStage::BoardStage(Form& form, const TextMeasure& texts, BoardFront& front)
    : form_(form),
      front_(front),
      scene_(form, texts),
      repaints_(front, scroll_),
      moves_(form, scene_, repaints_, front),
      keys_(form, scene_, repaints_, front),
      look_(form),
      color_(form.back_color()),
      label_scale_(scene_.label_scale()) {
    scene_.set_high_contrast(front.wants_high_contrast());
}

void BoardStage::contrast_changed() {
    scene_.set_high_contrast(front_.wants_high_contrast());
    repaints_.add_all();
}

void BoardStage::widget_changed(const Widget& widget, const Rect& before) {
    if (widget.kind() == WidgetKind::label || widget.kind() == WidgetKind::outline) update_labels();
    if (widget.kind() == WidgetKind::image) {
        const auto& image = static_cast<const Image&>(widget);
        if (const Glide& glide = scene_.drag().glide(); glide.moves(image)) {
            scene_.motion().let_go(glide.images(), glide.offset());
            moves_.end_glide();
        }
        scene_.motion().image_changed(image);
        settle_later();
    }
    repaints_.add(scene_.area_of(widget, before));
    if (widget.place() != before) repaints_.add(scene_.area_of(widget));
}

void BoardStage::update_labels() {
    moves_.plate_moved();
    const double scale = scene_.label_scale();
    if (scale == label_scale_) return;
    label_scale_ = scale;
    repaints_.add_all();
}

void BoardStage::game_over(Form& next, const std::vector<std::vector<const Image*>>& piles) {
    moves_.game_over(next);
    if (size_.width > 0 && !piles.empty()) moves_.celebrate(piles, size_);
    update_steps();
}

void BoardStage::end_celebration() {
    moves_.end_celebration();
    update_steps();
}

void BoardStage::form_changed() {
    update_pointer();
    if (color_ == form_.back_color()) return;
    color_ = form_.back_color();
    repaints_.add_all();
}

void BoardStage::drag_changed() {
    moves_.follow_drag();
    keys_.drag_changed();
    if (keys_.hold() != std::exchange(keys_held_, keys_.hold())) settle_later();
    if (holds() != std::exchange(held_, holds())) update_pointer();
    update_steps();
}

void BoardStage::resized(PixelSize size) {
    end_celebration();
    size_ = size;
    scroll_.set_page(size.height);
    moves_.end_glide();
    repaints_.add_all();
    show_part();
    settle_later();
    form_.user_resized(size);
    moves_.rest();
    keys_.update();
}

void BoardStage::settle_later() {
    if (settles_later_) return;
    settles_later_ = true;
    front_.settle_later();
}

void BoardStage::settle() {
    settles_later_ = false;
    if (!form_.loaded()) return;
    scroll([this] { scroll_.set_lower_edge(scene_.lower_edge()); });
    front_.scroll_changed();
    // Nothing was seen elsewhere before the first picture.
    painted_ ? moves_.begin_motion() : moves_.rest();
    keys_.update();
    update_pointer();
    update_steps();
}

Point BoardStage::on_board(Point place) const { return {place.x, place.y + scroll_.offset()}; }

// While a pointer has pressed, the others are nothing to the board. It takes over what the keys hold.
bool BoardStage::another_plays(Pointer by) const {
    return form_.mouse().is_down() && form_.mouse().pointer() != by && !keys_.hold();
}

void BoardStage::press(double x, double y, MouseButton button, Pointer by) {
    if (another_plays(by)) return;
    pointer_ = {x, y};
    if (!moves_.is_second_press(pointer_, button)) end_celebration();
    if (form_.accepts_input()) {
        moves_.end_glide();
        end_motion();
        keys_.hide();
    }
    const Point at = on_board(pointer_);
    form_.mouse().press(static_cast<float>(at.x), static_cast<float>(at.y), button, by);
}

void BoardStage::move(double x, double y, bool left_button, Pointer by) {
    if (another_plays(by)) return;
    // Somebody else took the mouse, and its button was let go there.
    if (!left_button && form_.mouse().is_down() && !keys_.hold()) return cancel();
    if (std::hypot(x - rest_.x, y - rest_.y) > deliberate_move) keys_.hide();
    if (by != Pointer::finger) hover_ = {x, y};
    point_at({x, y});
}

void BoardStage::point_at(Point place) {
    pointer_ = place;
    const Point at = on_board(place);
    if (pointer_holds()) return form_.mouse().move(static_cast<float>(at.x), static_cast<float>(at.y));
    if (look_.move(on_board(hover_))) front_.pointer_shape_changed();
}

void BoardStage::release(double x, double y, MouseButton button, bool elsewhere, Pointer by) {
    if (keys_.hold() || another_plays(by)) return;
    if (elsewhere && holds()) return cancel();
    const Point at = on_board({x, y});
    form_.mouse().release(static_cast<float>(at.x), static_cast<float>(at.y), button);
}

void BoardStage::cancel(Pointer by) {
    if (plays(by)) cancel();
}

bool BoardStage::key_down(int key_code, bool again) {
    if (!again) end_celebration();
    if (key_code == escape_key && holds()) {
        cancel();
        return true;
    }
    if (form_.accepts_input()) {
        moves_.end_glide();
        end_motion();
        scroll([=, this] { scroll_.press(key_code); });
        const bool fills_screen = front_.full_screen();
        if (key_code == f11_key || (key_code == escape_key && fills_screen)) {
            if (!again) front_.set_full_screen(!fills_screen);
            return true;
        }
        if (cursor_key(key_code, again)) return true;
    }
    return key_code != 0 && form_.key_down(key_code);
}

bool BoardStage::cursor_key(int key_code, bool again) {
    if (!keys_.take(key_code)) return false;
    if (form_.mouse().is_down() && !keys_.hold()) return true;
    rest_ = hover_;
    const Area place = keys_.go(key_code);
    reveal(place.bottom() - 1);
    reveal(place.top);
    keys_.update();
    if (key_code == enter_key && !again) keys_.enter();
    return true;
}

void BoardStage::press_item(const Widget& item, int clicks, const std::function<bool()>& is_busy) {
    tarnwick::press_item(item, clicks, {is_busy, [this](Spot spot) {
                                            moves_.end_glide();
                                            end_motion();
                                            reveal(static_cast<int>(std::lround(spot.y)));
                                        }});
}

void BoardStage::update_pointer() {
    if (look_.look_again(on_board(hover_))) front_.pointer_shape_changed();
}

void BoardStage::scroll_to(int value) {
    scroll([=, this] { scroll_.go_to(value); });
}

void BoardStage::scroll_by(int pixels) {
    const int most = scroll_.range();
    if (form_.accepts_input()) scroll_to(scroll_.value() + std::clamp(pixels, -most, most));
}

void BoardStage::reveal(int y) {
    scroll([=, this] { scroll_.reveal(y); });
}

template <class Action>
void BoardStage::scroll(Action action) {
    const int value = scroll_.value();
    const int offset = scroll_.offset();
    action();
    if (scroll_.value() == value) return;
    front_.scroll_changed();
    if (scroll_.offset() == offset) return;
    show_part();
    repaints_.add_all();
    // Under a pointer that holds cards another part of the board lies now.
    if (pointer_holds()) point_at(pointer_);
    update_pointer();
}

// What is not seen takes no clicks and no drops.
void BoardStage::show_part() {
    scene_.set_scrolled(scroll_.offset());
    moves_.plate_moved();
    form_.mouse().set_seen_area(Rect{0,
                                     static_cast<float>(scroll_.offset()),
                                     static_cast<float>(size_.width),
                                     static_cast<float>(size_.height)});
}

std::optional<BoardTip> BoardStage::tip_at(double x, double y) const {
    if (holds() || !form_.accepts_input()) return std::nullopt;
    return tarnwick::tip_at(form_, scene_, {x, y});
}

int BoardStage::edge_ahead() const {
    const Shift moved = scene_.drag().offset();
    if (!pointer_holds() || std::abs(moved.x) + std::abs(moved.y) < BoardScroll::edge_reach) return 0;
    return scroll_.ahead(pointer_.y);
}

void BoardStage::end_motion() {
    moves_.land_motion();
    // What was to set out when the event before has settled stays where it lies, too.
    if (settles_later_) scene_.motion().rest();
    update_steps();
}

void BoardStage::update_steps() {
    const std::optional<std::int64_t> before = next_step();
    const std::int64_t now = desktop().now();
    moves_.schedule(now);
    if (edge_ahead() == 0) {
        next_edge_step_.reset();
    } else if (!next_edge_step_) {
        next_edge_step_ = now + BoardScroll::edge_step_time;
    }
    if (next_step() != before) front_.steps_changed();
}

std::optional<std::int64_t> BoardStage::next_step() const {
    const std::optional<std::int64_t> next_frame = moves_.next_frame();
    if (!next_frame || !next_edge_step_) return next_frame ? next_frame : next_edge_step_;
    return std::min(*next_frame, *next_edge_step_);
}

void BoardStage::step() {
    const std::int64_t now = desktop().now();
    moves_.step(now);
    if (next_edge_step_ && *next_edge_step_ <= now) {
        next_edge_step_.reset();
        scroll([this] { scroll_.step_ahead(pointer_.y); });
    }
    update_steps();
}

}  // namespace tarnwick

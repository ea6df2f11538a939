#include "view/board_keys.h"

#include "platform/image.h"
#include "platform/key_codes.h"
#include "view/control_presses.h"
#include "view/spoken_board.h"

namespace tarnwick {
namespace {

// As parts of a card's height: how far a card that was taken up is raised, and how much it leaves free of
// what it is held over.
constexpr double raise = 0.08;
constexpr double step_down = 0.2;

// Where the pointer is when an image that is held is seen in its place.
Spot spot_for(const Mouse& mouse, const Image& image, const Box& place) {
    return {mouse.press_x() + static_cast<float>(place.left) - image.left(),
            mouse.press_y() + static_cast<float>(place.top + step_down * place.height) - image.top()};
}

}  // namespace

bool BoardKeys::hold() const {
    return form_.mouse().dragged() != nullptr && form_.mouse().pointer() == Pointer::keys;
}

std::string_view BoardKeys::hint() const {
    if (!hold()) return "";
    if (is_home()) return "lifted";
    return form_.mouse().receiver() ? "takes the lifted card" : "does not take the lifted card";
}

bool BoardKeys::take(int key_code) const {
    const bool is_arrow = key_code >= left_key && key_code <= down_key;
    return is_arrow || (key_code == enter_key && cursor_.shown());
}

Area BoardKeys::go(int key_code) {
    if (!cursor_.shown()) {
        cursor_.show();
    } else if (key_code != enter_key) {
        cursor_.go(key_code, described_items(form_), hold());
        if (hold() && is_home()) cursor_.set_position(lift_->from);
    }
    follow();
    return cursor_.area();
}

void BoardKeys::update() {
    if (!cursor_.shown()) return;
    follow();
    carry();
    drag_changed();
    ring_changed();
}

void BoardKeys::drag_changed() {
    if (!hold()) return;
    cursor_.surround(scene_.drag().place());
    repaints_.move(area_, cursor_.area());
}

void BoardKeys::hide() {
    if (!cursor_.shown()) return;
    if (hold()) form_.mouse().cancel();
    cursor_.hide();
    ring_changed();
}

void BoardKeys::ring_changed() {
    repaints_.move(area_, cursor_.area());
    const std::pair now{cursor_.item(), hint()};
    if (now != std::exchange(told_, now)) front_.cursor_moved();
}

void BoardKeys::follow() {
    const std::vector<BoardItem> items = described_items(form_);
    if (lift_ && !hold()) {
        const BoardItem* card = find_item(items, lift_->card);
        if (!dropped_ || (card && card->place == lift_->from.pile)) cursor_.set_position(lift_->from);
        lift_.reset();
    }
    cursor_.follow(items);
}

void BoardKeys::carry() {
    if (!hold()) return;
    Mouse& mouse = form_.mouse();
    const Image& held = *mouse.dragged();
    if (is_home()) {
        return mouse.move(mouse.press_x(), mouse.press_y() - static_cast<float>(raise) * held.height());
    }
    const std::vector<BoardItem> items = described_items(form_);
    const BoardItem* target = find_item(items, cursor_.item());
    if (!target) return;
    const Box place = seen_place(*target);
    Spot spot = spot_for(mouse, held, place);
    if (mouse.image_at(spot.x, spot.y) != target->widget) spot = free_spot(*target->widget).value_or(spot);
    mouse.move(spot.x, spot.y);
    const Widget* receiver = mouse.receiver();
    if (!receiver || mouse.lifted().front() == &held) return;
    // Others go along, under which the target should not be hidden.
    const Spot lower = spot_for(mouse, *mouse.lifted().front(), place);
    mouse.move(lower.x, lower.y);
    if (mouse.receiver() != receiver) mouse.move(spot.x, spot.y);
}

void BoardKeys::enter() {
    if (hold()) return put_down();
    const std::vector<BoardItem> items = described_items(form_);
    const BoardItem* item = find_item(items, cursor_.item());
    if (!item || !takes_presses(form_)) return;
    const auto& image = static_cast<const Image&>(*item->widget);
    if (image.drag_mode() == DragMode::automatic) return take_up(image);
    press_item(image, item->clicks, {[] { return false; }, [](Spot) {}});
}

void BoardKeys::take_up(const Image& image) {
    const std::optional<Spot> spot = free_spot(image);
    if (!spot) return;
    lift_ = {&image, cursor_.position()};
    dropped_ = false;
    Mouse& mouse = form_.mouse();
    const float raised = spot->y - static_cast<float>(raise) * image.height();
    mouse.press(spot->x, spot->y, MouseButton::left, Pointer::keys);
    mouse.move(spot->x, raised);
}

void BoardKeys::put_down() {
    Mouse& mouse = form_.mouse();
    dropped_ = !is_home();
    // Where it was taken up, it is let go like the mouse's in a click.
    if (!dropped_) return mouse.release(mouse.press_x(), mouse.press_y());
    mouse.release(mouse.press_x() + mouse.drag_dx(), mouse.press_y() + mouse.drag_dy());
}

}  // namespace tarnwick

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/graphics.h"
#include "platform/window.h"

namespace tarnwick {

class Image;
class Widget;

enum class MouseButton { left, other };

/// What plays on a board.
enum class Pointer { mouse, pen, finger, keys };

/// What the left mouse button, a pen or a finger does to the images of one window: clicks and two-click
/// events on images that are dragged by hand, drags and drops of those on automatic drag. Places are pixels
/// of the board: those of the window's client area, as long as it is not scrolled.
class Mouse {
  public:
    explicit Mouse(Window& window) : window_(window) {}

    void press(float x, float y, MouseButton button = MouseButton::left, Pointer by = Pointer::mouse);
    void move(float x, float y);
    void release(float x, float y, MouseButton button = MouseButton::left);
    /// Only this part of the board is seen, in its pixels: what lies elsewhere is neither clicked nor dropped
    /// on. Without it, what lies in the window's client area.
    void set_seen_area(const std::optional<Rect>& area) { seen_area_ = area; }
    /// A drop by keys, which do not aim within an image, or by a tap of a pen or finger, which aims badly,
    /// counts as one so many twips from the left edge. Without it, the place itself counts.
    void set_plain_offset(float offset_x) { plain_offset_ = offset_x; }
    /// What lies on the board may have moved under a drag: the lifted images are held where they were taken
    /// hold of, and what would receive them is looked for anew.
    void follow_layout();
    /// Forgets the press: a drag ends without a drop, a click does not happen.
    void cancel();

    /// The topmost image under a point: hidden images are left out, images without a picture are not.
    Image* image_at(float x, float y) const;

    /// The image being dragged, or null.
    Image* dragged() const { return dragged_; }
    /// The images that follow the pointer during the drag, from the bottom one up: while something would
    /// receive them, those that it would take.
    const std::vector<Image*>& lifted() const { return lifted_; }
    /// How far the pointer has moved since the drag's press.
    float drag_dx() const { return x_ - press_x_; }
    float drag_dy() const { return y_ - press_y_; }

    /// Where the dragged image is held now, as long as it lies where it is.
    float press_x() const { return press_x_; }
    float press_y() const { return press_y_; }
    /// Whether something was pressed and not let go of yet, and what did so last.
    bool is_down() const { return dragged_ || pressed_; }
    Pointer pointer() const { return pointer_; }

    /// What would receive a drop where the pointer is now, or null.
    const Widget* receiver() const { return receiver_; }

    /// Whether the images of the drag glide back when nobody receives them.
    bool glides_back() const { return glides_back_; }

    /// Tells which images a drag of this one lifts, from the bottom one up; without it, the image alone.
    std::function<std::vector<Image*>(Image& dragged)> on_lift;
    /// Tells what is seen to receive the dragged image if that were dropped on `target` now, `offset_x` twips
    /// from its left edge; null for nothing. Without it, nothing is known. Must not throw.
    std::function<const Widget*(const Image& dragged, const Image& target, float offset_x)> on_hover;
    /// Tells which images would move if the dragged one were dropped there and received, from the bottom one
    /// up; where it tells none, nothing receives it. Without it, those that were lifted. Must not throw.
    std::function<std::vector<Image*>(const Image& dragged, const Image& target, float offset_x)> on_take;
    /// Tells whether images that nobody received are seen to glide back to where they came from.
    std::function<bool()> on_put_back;

  private:
    bool is_second_click(const Image& image, float x, float y) const;
    void start_drag(Image& image);
    bool is_seen(float x, float y) const;
    bool is_tap(float x, float y) const;
    bool look_for_receiver();
    float offset_in(const Image& target, float x) const;
    void drop(float x, float y);
    void put_down();
    void drag_changed() const;

    Window& window_;
    std::optional<Rect> seen_area_;
    Image* pressed_ = nullptr;
    Image* dragged_ = nullptr;
    std::vector<Image*> taken_up_;  ///< lifted where nothing would receive them
    std::vector<Image*> lifted_;
    const Widget* receiver_ = nullptr;
    bool glides_back_ = false;
    Pointer pointer_ = Pointer::mouse;
    bool moved_ = false;  ///< farther than within a tap
    std::optional<float> plain_offset_;
    float press_x_ = 0;
    float press_y_ = 0;
    // Where the dragged image was taken hold of, as parts of its width and height.
    float hold_x_ = 0;
    float hold_y_ = 0;
    float x_ = 0;
    float y_ = 0;
    // The last click, as the possible first half of a two-click event.
    const Image* last_clicked_ = nullptr;
    std::int64_t last_press_time_ = 0;
    float last_press_x_ = 0;
    float last_press_y_ = 0;
};

}  // namespace tarnwick

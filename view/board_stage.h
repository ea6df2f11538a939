#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "view/board_front.h"
#include "view/board_keys.h"
#include "view/board_moves.h"
#include "view/board_scene.h"
#include "view/board_scroll.h"
#include "view/board_tip.h"
#include "view/pointer_shape.h"
#include "view/repaints.h"

namespace tarnwick {

/// A board on show: turns what happens in its window into what is to be painted, and what the player does
/// into what the game understands. A front end hands on the news of the window's FormView and its own events,
/// and paints. Places are pixels of the board's window, whose upper left corner they count from.
class BoardStage {
  public:
    BoardStage(Form& form, const TextMeasure& texts, BoardFront& front);

    // What the view of the window is told.
    void widget_changed(const Widget& widget, const Rect& before);
    void drag_changed();
    void image_passes(const Image& image, const Image& other) { scene_.motion().image_passes(image, other); }
    void dealt(const Image& from) { scene_.motion().dealt(from); }
    void game_over(Form& next, const std::vector<std::vector<const Image*>>& piles);
    /// The window's colour may be another one.
    void form_changed();

    // What happens on the screen.
    /// The desktop's font is another one.
    void font_changed() { update_labels(); }
    /// The front end may answer another way whether it wants high contrast.
    void contrast_changed();
    /// The board's window has this size now, in pixels: to be told before the first picture, and after every
    /// change, whoever made it. The stage tells the form (Form::user_resized).
    void resized(PixelSize size);
    /// The event is over after which BoardFront::settle_later() was to be answered.
    void settle();
    // Each pointer plays alone: what another one does meanwhile is nothing. Fingers see view/board_fingers.h.
    void press(double x, double y, MouseButton button, Pointer by = Pointer::mouse);
    /// The pointer has moved; a drag whose button is no longer held has lost it, and ends without a drop.
    void move(double x, double y, bool left_button, Pointer by = Pointer::mouse);
    /// @param elsewhere  whether the place lies over another window of the program, so that nothing drops
    /// there
    void release(double x, double y, MouseButton button, bool elsewhere, Pointer by = Pointer::mouse);
    /// The board has lost the mouse or the keyboard, or is no longer seen: nothing is dragged or pressed.
    void cancel() { form_.mouse().cancel(); }
    /// The same for what this pointer holds.
    void cancel(Pointer by);
    /// Whether this pointer has pressed something, and not let go of it yet.
    bool plays(Pointer by) const { return form_.mouse().is_down() && form_.mouse().pointer() == by; }
    /// A key, by its code (see platform/key_codes.h), 0 for one without: it may scroll, is the cursor's, lets
    /// go of a card, or changes between window and screen; all others go to the form. True when it was taken.
    /// @param again  whether the key is only held
    bool key_down(int key_code, bool again = false);
    /// What a key writes, after key_down() and without any command: once the game is over it is for the text
    /// box of the window that is shown next, so that a player who writes on loses nothing.
    void type(const std::string& text) { moves_.type(text); }
    /// Presses an item as a screen reader does; see tarnwick::press_item().
    void press_item(const Widget& item, int clicks, const std::function<bool()>& is_busy);
    /// The window that was held back is seen now: for what the stage is not told, as that another window has
    /// got the keyboard.
    void end_celebration();
    /// Whatever moves is where it lies at once: for what the player does and the stage is not told.
    void end_motion();
    /// Scrolls to a value of scroll(), which a scroll bar was moved to.
    void scroll_to(int value);
    /// Scrolls down by so many pixels, for a wheel: BoardScroll::step for each of its notches.
    void scroll_by(int pixels);
    /// Scrolls as far as it takes to see this row, in pixels of the board.
    void reveal(int y);

    /// What the pointer is told where it rests; nothing while a card is held.
    std::optional<BoardTip> tip_at(double x, double y) const;

    // What moves by itself: a glide, and a board scrolled by a drag that is held at its edge.
    /// When step() is to be called, in milliseconds of the desktop's clock; nothing while all is at rest.
    /// Asked again after each step, and when the front is told that it has changed.
    std::optional<std::int64_t> next_step() const;
    void step();

    // What is seen.
    PointerShape pointer_shape() const { return look_.shape(); }
    /// All areas that were told so far are painted now: to be called before each picture. Until then, what is
    /// all to be painted is told no further areas.
    void begin_painting() {
        repaints_.begin_painting();
        painted_ = true;
    }
    BoardScene& scene() { return scene_; }
    const BoardScene& scene() const { return scene_; }
    const BoardScroll& scroll() const { return scroll_; }
    /// Whether a card is held, and whether by the pointer.
    bool holds() const { return form_.mouse().dragged() != nullptr; }
    bool pointer_holds() const { return holds() && !keys_.hold(); }
    /// What there is to tell of the cursor's item besides its name (see BoardKeys::hint).
    std::string_view cursor_hint() const { return keys_.hint(); }

  private:
    bool cursor_key(int key_code, bool again);
    void update_pointer();
    Point on_board(Point place) const;
    bool another_plays(Pointer by) const;
    void update_labels();
    void settle_later();
    void point_at(Point place);
    template <class Action>
    void scroll(Action action);
    void show_part();
    int edge_ahead() const;
    void update_steps();

    Form& form_;
    BoardFront& front_;
    BoardScene scene_;
    BoardScroll scroll_;
    Repaints repaints_;
    BoardMoves moves_;
    BoardKeys keys_;
    PointerLook look_;
    PixelSize size_;
    Color color_;
    bool held_ = false;
    bool keys_held_ = false;
    double label_scale_;
    Point pointer_;                               ///< where the one that plays was last seen
    Point hover_{-1, -1};                         ///< the same of one that is seen where it only moves
    Point rest_{-1, -1};                          ///< and where that was when a key was last pressed
    std::optional<std::int64_t> next_edge_step_;  ///< of a drag held where there is more beyond the edge
    bool settles_later_ = false;
    bool painted_ = false;
};

}  // namespace tarnwick

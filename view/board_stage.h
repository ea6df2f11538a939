#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "view/board_scene.h"
#include "view/board_scroll.h"

namespace tarnwick {

/// What a stage asks of the front end that shows a board. Areas are pixels of the board's window.
class BoardFront {
  public:
    virtual ~BoardFront() = default;
    /// What is seen of an area, or of all of it, has changed: to be painted with the next picture.
    virtual void repaint(const Area& area) = 0;
    virtual void repaint_all() = 0;
    /// The range, the page or the value of the stage's scroll() has changed.
    virtual void scroll_changed() = 0;
    /// The layout changes in many small steps, of which only the end counts: settle() is to be called once,
    /// after the event that is under way.
    virtual void settle_later() = 0;
    /// next_step() has changed.
    virtual void steps_changed() = 0;
    /// Whether the desktop has nothing against things that are seen to move.
    virtual bool allows_motion() const = 0;
};

/// A text about something on the board, and the area that it is about.
struct BoardTip {
    std::string text;
    Area area;
};

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
    /// The window's colour may be another one.
    void form_changed();

    // What happens on the screen.
    /// The desktop's font is another one.
    void font_changed() { update_labels(); }
    /// The board's window has this size now, in pixels: to be told before the first picture, and after every
    /// change, whoever made it. The stage tells the form (Form::user_resized).
    void resized(PixelSize size);
    /// The event is over after which BoardFront::settle_later() was to be answered.
    void settle();
    void press(double x, double y, MouseButton button);
    /// The pointer has moved; a drag whose button is no longer held has lost it, and ends without a drop.
    void move(double x, double y, bool left_button);
    /// @param elsewhere  whether the place lies over another window of the program, so that nothing drops
    /// there
    void release(double x, double y, MouseButton button, bool elsewhere);
    /// The board has lost the mouse or the keyboard, or is no longer seen: nothing is dragged or pressed.
    void cancel() { form_.mouse().cancel(); }
    /// A key, by its code (see platform/key_codes.h), 0 for one without: it may scroll, and goes to
    /// the form. True when that took it.
    bool key_down(int key_code);
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

    // What is painted.
    /// All areas that were told so far are painted now: to be called before each picture. Until then, what is
    /// all to be painted is told no further areas.
    void begin_painting() {
        repaints_ = 0;
        painted_ = true;
    }
    BoardScene& scene() { return scene_; }
    const BoardScene& scene() const { return scene_; }
    const BoardScroll& scroll() const { return scroll_; }
    /// Whether a card is held.
    bool holds() const { return form_.mouse().dragged() != nullptr; }

  private:
    void repaint(const Area& area);
    void repaint_all();
    void repaint_lifted();
    void repaint_mark();
    void repaint_home(const std::vector<Image*>& images);
    void update_labels();
    void repaint_motion();
    void begin_motion();
    void settle_later();
    void end_glide();
    void point_at(double x, double y);
    template <class Action>
    void scroll(Action action);
    void show_part();
    int edge_ahead() const;
    void update_steps();

    Form& form_;
    BoardFront& front_;
    BoardScene scene_;
    BoardScroll scroll_;
    PixelSize size_;
    Color color_;
    Area lifted_area_;
    Area mark_area_;
    std::vector<Area> motion_areas_;
    Area plate_;  ///< what is painted anew when anything below the labels changes
    double label_scale_;
    double pointer_x_ = 0;  ///< where the pointer was last seen
    double pointer_y_ = 0;
    std::optional<std::int64_t> next_frame_;      ///< of the glide and of motion
    std::optional<std::int64_t> next_edge_step_;  ///< of a drag held where there is more beyond the edge
    int repaints_ = 0;                            ///< areas since the board was last painted
    bool settles_later_ = false;
    bool painted_ = false;
};

}  // namespace tarnwick

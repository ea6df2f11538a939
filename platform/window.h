#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/graphics.h"

namespace tarnwick {

class Form;
class Image;
class Mouse;
class Widget;

/// What a desktop shows of one window. A window without a view (headless, or not loaded) is only kept in
/// memory. A view goes with its window, which may be in the midst of what it hands on to it: behind a press,
/// a key or the close box it must not touch itself any more without looking.
class FormView {
  public:
    virtual ~FormView() = default;
    /// A widget looks different, or lies elsewhere: it was seen at `before`.
    virtual void widget_changed(const Widget& widget, const Rect& before) = 0;
    /// The window was shown or hidden, enabled or disabled, resized, recoloured or given another title by the
    /// program. One that was just shown is in front and has the keyboard; the program disables those that
    /// must wait for it.
    virtual void form_changed() = 0;
    virtual void menu_changed() = 0;
    virtual void raise() = 0;
    /// The lifted images were taken up, moved, or put down.
    virtual void drag_changed() = 0;
    /// The event that is under way shows this image, which is seen to come from the other one's place, or
    /// hides it, which is seen to go there.
    virtual void image_passes(const Image& /*image*/, const Image& /*other*/) {}
    /// All that the event lays out is seen to come from the place of this image.
    virtual void dealt(const Image& /*from*/) {}
    /// The game on this board is over, and a window is shown next, which what the player writes is for. Where
    /// the game is won, these piles show it, each from its top card down: the board may celebrate that before
    /// the eye sees the window.
    virtual void game_over(Form& /*next*/, const std::vector<std::vector<const Image*>>& /*won_piles*/) {}
};

/// What a window is to whatever belongs to it: its widgets, menus and timers, and its mouse. Every window is
/// a Form.
class Window {
  public:
    Window() = default;
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    bool loaded() const { return loaded_; }
    bool visible() const { return visible_; }
    bool enabled() const { return enabled_; }
    /// Not while a question is open, whichever window it is about.
    bool accepts_input() const;
    /// Size inside frame and menu bar, in pixels.
    virtual PixelSize client_size() const = 0;
    virtual Mouse& mouse() = 0;

    const std::vector<Widget*>& widgets() const { return widgets_; }
    /// The controls that take the keyboard, in the order in which Tab visits them.
    const std::vector<Widget*>& tab_order() const { return tab_order_; }
    /// Takes in a widget, above all others; returns its stacking.
    std::uint64_t add_widget(Widget& widget);
    std::uint64_t next_stacking() { return ++front_; }
    /// Whether the widget with this stacking lies above all others.
    bool is_in_front(std::uint64_t stacking) const { return stacking == front_; }

    FormView* view() const { return view_.get(); }
    /// Takes the view off the window, which is only kept in memory from then on: for a desktop that goes, or
    /// that has broken down.
    std::unique_ptr<FormView> take_view() { return std::move(view_); }

  protected:
    void set_tab_order(std::vector<Widget*> order) { tab_order_ = std::move(order); }

    std::unique_ptr<FormView> view_;
    bool loaded_ = false;
    bool visible_ = false;
    bool enabled_ = true;

  private:
    std::vector<Widget*> widgets_;
    std::vector<Widget*> tab_order_;
    std::uint64_t front_ = 0;
};

}  // namespace tarnwick

#pragma once

#include "view/area.h"

namespace tarnwick {

class Form;

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
    /// Whether the desktop, or the player, wants all lines seen in high contrast.
    virtual bool wants_high_contrast() const = 0;
    /// The window that the program shows next is not to be seen, nor to get the keyboard, until it is to.
    virtual void hold_back(Form& next) = 0;
    virtual void show_held_back() = 0;
    /// The keyboard's cursor is on another item, or its hint has changed, for those who have them read out.
    virtual void cursor_moved() = 0;
    /// pointer_shape() has changed.
    virtual void pointer_shape_changed() = 0;
    /// Whether the window covers the whole screen, and to let it.
    virtual bool full_screen() const = 0;
    virtual void set_full_screen(bool on) = 0;
};

}  // namespace tarnwick

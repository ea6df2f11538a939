#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/form.h"

namespace tarnwick {

/// Whether nothing keeps a window from taking a press: it takes input, no event is under way (which may wait
/// for the answer to a message) and nothing is dragged in it.
bool takes_presses(Window& window);

/// Whether a press on a control does anything.
bool is_pressable(const Widget& widget);

/// Does what a click on a control of a dialog does, the mouse's, the keyboard's or a screen reader's; nothing
/// where its window takes no presses. The window, and with it its view, may be gone afterwards.
void press(Widget& widget);

/// Takes a character that was typed into a swatch, in which nothing can be read, for a press. False for Space
/// and for keys that write nothing: these do what they do to any button.
bool press_by_typing(TextBox& swatch, const std::string& text);

/// Tells clicks on a window's own background, between its controls: pressed there and let go there.
class BackgroundPress {
  public:
    explicit BackgroundPress(Form& form) : form_(form) {}

    /// The left mouse button went down or up, on the background or somewhere else.
    void pressed(bool on_background) { pressed_ = on_background; }
    void released(bool on_background);

  private:
    Form& form_;
    bool pressed_ = false;
};

}  // namespace tarnwick

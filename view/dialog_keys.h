#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace tarnwick {

/// How a control comes to the keyboard. The first one in the window's order of Tab has it when a dialog
/// opens.
enum class KeyboardUse {
    none,
    by_click,  ///< not a stop of Tab, but takes the keyboard when it is clicked
    by_tab,
};

/// All options of a frame are one stop of Tab, at the chosen one.
KeyboardUse keyboard_use(const Widget& widget);

/// The option that an arrow key chooses from this one: 1 for the next in its frame (Right, Down), -1 for the
/// one before (Left, Up), counted around.
OptionButton& option_beside(const OptionButton& option, int step);

/// Whether an option now has the keyboard instead of `focused`: among options it stays with the chosen one.
/// `focused` may be null.
bool takes_keyboard_from(const OptionButton& option, const Widget* focused);

// The first to be asked about a key is the text box that has the keyboard (TextBox::key_down).

/// What Escape does to a dialog: presses the button that cancels. Without one there is nothing for it to do:
/// it must not enter half a name.
void press_escape(const Form& form);

/// What Enter does to a dialog, where `focused` (or null) has the keyboard and no use for it: presses that,
/// if it is a button or a swatch, else the default button, if there is one.
void press_enter(const Form& form, Widget* focused);

/// Whether a key, which may only be held, does nothing in any dialog: an Enter that was pressed for what came
/// before must not answer one that the player has hardly seen.
bool is_held_enter(int key_code, bool again);

/// Writes on in the first text box of a window that takes input, for text that was typed before the window
/// had the keyboard. It does not begin with a space; what writes nothing is left out.
void type_into(Form& form, const std::string& text);

}  // namespace tarnwick

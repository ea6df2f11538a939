#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/graphics.h"
#include "platform/questions.h"

namespace tarnwick {

class Form;
class FormView;

/// What carries the windows out: the real desktop, or one that keeps them in memory. There is one at a time.
class Desktop : public Questions {
  public:
    /// The part of the screen that windows may cover, in pixels.
    virtual PixelSize screen_size() const = 0;
    /// A clock that never goes back, in milliseconds.
    virtual std::int64_t now() const = 0;
    /// Today's date as the user's locale writes it short.
    virtual std::string short_date() const = 0;
    /// The longest time between the presses of a two-click event, in milliseconds.
    virtual std::int64_t double_click_time() const { return 500; }

    /// The view of a window that is being loaded, its widgets as stored, before on_load; may be null.
    virtual std::unique_ptr<FormView> make_view(Form& form) = 0;
    /// A timer has started a new period.
    virtual void timers_changed() {}
    /// A window was shown or unloaded. The program is over when none is shown and no question is open.
    virtual void windows_changed() {}

    /// Shows a help file, looked for where the program's files are; false when it is not found, of which the
    /// player is told nothing.
    virtual bool show_help(const std::string& file_name) = 0;
    /// Puts a text on the clipboard.
    virtual void copy_text(const std::string& text) = 0;
    /// Runs an action every second, messages or not, until another one, or null, takes its place: the action
    /// may do that itself, so that what runs is to be a copy. What it does must be no business of the
    /// windows.
    virtual void run_in_background(std::function<void()> action) = 0;
};

/// The desktop in use. Throws std::logic_error where there is none.
Desktop& desktop();
/// Makes this the desktop in use; null for none.
void use_desktop(Desktop* desktop);

}  // namespace tarnwick

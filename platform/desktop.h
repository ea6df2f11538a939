#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/message.h"

namespace tarnwick {

class Form;
class FormView;

/// What carries the windows out: the real desktop, or one that keeps them in memory. There is one at a time.
class Desktop {
  public:
    Desktop() = default;
    virtual ~Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// The part of the screen that windows may cover, in pixels.
    virtual PixelSize screen_size() const = 0;
    /// A clock that never goes back, in milliseconds.
    virtual std::int64_t now() const = 0;
    /// Today's date as the user's locale writes it short.
    virtual std::string short_date() const = 0;
    /// The longest time between the presses of a two-click event, in milliseconds.
    virtual std::int64_t double_click_time() const { return 500; }

    /// The view of a window that is being loaded; may be null.
    virtual std::unique_ptr<FormView> make_view(Form& form) = 0;
    /// A timer has started a new period.
    virtual void timers_changed() {}
    /// A window was shown or unloaded.
    virtual void windows_changed() {}

    /// Lets the player pick a colour, whose name is the title; nothing when the player cancels.
    virtual std::optional<Color> pick_color(const std::string& title) = 0;
    /// Shows a help file, looked for where the program's files are; false when it is not found.
    virtual bool show_help(const std::string& file_name) = 0;

    /// Shows the message and waits for its answer; cancelled at once where nobody is there to answer.
    MessageAnswer message_box(const Message& message);
    /// Whether somebody is there to answer. Once the program is told to end, nobody is.
    bool attended() const { return attended_; }
    void leave_unattended() { attended_ = false; }

    /// Runs the handler of one event. A failure that leaves it is told to the player in one message, and the
    /// program goes on. Timers do not tick meanwhile.
    void event(const std::function<void()>& handler);
    bool in_event() const { return depth_ > 0; }
    /// Runs an action every second, messages or not, until another one, or null, takes its place. What it
    /// does must be no business of the windows.
    virtual void run_in_background(std::function<void()> action) = 0;
    /// Runs an action after the current event, or at once where there is none.
    void after_event(std::function<void()> action);

  protected:
    virtual MessageAnswer show_message(const Message& message) = 0;
    /// A message was meant for a player who is not there.
    virtual void unheard(const Message&) {}
    /// An event has ended.
    virtual void event_ended() {}

  private:
    void run_guarded(const std::function<void()>& handler);
    void finish_event();

    std::deque<std::function<void()>> pending_;
    int depth_ = 0;
    bool attended_ = true;
};

/// The desktop in use. Throws std::logic_error where there is none.
Desktop& desktop();
/// Makes this the desktop in use; null for none.
void use_desktop(Desktop* desktop);

}  // namespace tarnwick

#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/graphics.h"

namespace tarnwick {

class Form;
class FormView;

enum class MessageButtons { ok, ok_cancel };
enum class MessageAnswer { ok, cancel };

/// A question or a notice in a small window that waits for an answer. OK is the default button.
struct Message {
    std::string title;
    std::string text;
    MessageButtons buttons = MessageButtons::ok;
};

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

    /// The view of a window that is being loaded, its widgets as stored, before on_load; may be null.
    virtual std::unique_ptr<FormView> make_view(Form& form) = 0;
    /// A timer has started a new period.
    virtual void timers_changed() {}
    /// A window was shown or unloaded. The program is over when none is shown and no question is open.
    virtual void windows_changed() {}

    /// Shows a help file, looked for where the program's files are; false when it is not found, of which the
    /// player is told nothing.
    virtual bool show_help(const std::string& file_name) = 0;

    // Notices and questions. One is open at a time, and others wait behind it, in order. While one is open,
    // nothing else happens: timers do not tick, and windows take no input. A front end may wait for the
    // answer or come back with it later, so that nothing may depend on the answer but what goes on with it,
    // which runs in an event of its own. A window has no say in the questions about it: while one is open
    // none can go, except at the end of the program, which cancels them all first.

    /// Shows the message.
    void notify(const Message& message) { ask(message, {}); }
    /// Shows the message and goes on with its answer.
    void ask(const Message& message, std::function<void(MessageAnswer)> then);
    /// Lets the player pick a colour, whose name is the title, and goes on with it; with nothing when the
    /// player cancels.
    void pick_color(const std::string& title, std::function<void(std::optional<Color>)> then);
    /// Whether a notice or a question is open.
    bool asking() const { return asking_; }
    /// Takes back what is open and what waits; it counts as cancelled.
    void cancel_questions();

    /// Whether somebody is there to answer. Once the program is told to end, nobody is: what is open and what
    /// is asked from then on is cancelled at once.
    bool attended() const { return attended_; }
    void leave_unattended();

    /// Runs the handler of one event. A failure that leaves it is told to the player in one message, and the
    /// program goes on. Timers do not tick meanwhile. Windows, widgets, menus, timers and the mouse run their
    /// handlers in one themselves.
    void event(const std::function<void()>& handler);
    /// Whether an event is under way, or waits for the answer to a question.
    bool in_event() const { return depth_ > 0 || asking_; }
    /// Runs an action every second, messages or not, until another one, or null, takes its place: the action
    /// may do that itself, so that what runs is to be a copy. What it does must be no business of the
    /// windows.
    virtual void run_in_background(std::function<void()> action) = 0;
    /// Runs an action after the current event, or at once where there is none.
    void after_event(std::function<void()> action);

  protected:
    // Show a question, and have it answered, before they return or later.
    virtual void show_message(const Message& message) = 0;
    virtual void show_color_picker(const std::string& title) = 0;
    /// What a front end calls with the answer; of a colour picker, OK and the colour. Does nothing when the
    /// question has been cancelled meanwhile.
    void answered(MessageAnswer answer, Color color = black);
    /// Takes the open question off the screen, and has it answered with cancel, before it returns or later.
    virtual void take_back_question() { answered(MessageAnswer::cancel); }
    /// A message was meant for a player who is not there.
    virtual void unheard(const Message&) {}
    /// An event has ended.
    virtual void event_ended() {}

  private:
    struct Question {
        std::function<void()> show;
        std::function<void()> tell_nobody;
        std::function<void(MessageAnswer, Color)> then;
    };

    void put(Question question);
    void open_next();
    void run_guarded(const std::function<void()>& handler);
    void finish_event();

    std::deque<std::function<void()>> pending_;
    int depth_ = 0;
    std::deque<Question> waiting_;
    std::function<void(MessageAnswer, Color)> then_;  ///< what goes on with the answer to the open question
    bool asking_ = false;
    bool attended_ = true;
};

/// The desktop in use. Throws std::logic_error where there is none.
Desktop& desktop();
/// Makes this the desktop in use; null for none.
void use_desktop(Desktop* desktop);

}  // namespace tarnwick

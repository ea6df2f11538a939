#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "platform/events.h"
#include "platform/graphics.h"

namespace tarnwick {

enum class MessageButtons { ok, ok_cancel };
enum class MessageAnswer { ok, cancel };

/// A question or a notice in a small window that waits for an answer. OK is the default button.
struct Message {
    std::string title;
    std::string text;
    MessageButtons buttons = MessageButtons::ok;
};

/// The messages and questions of the program to the player.
class Questions : public Events {
  public:
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

    /// Whether an event is under way, or waits for the answer to a question.
    bool in_event() const { return event_is_under_way() || asking_; }

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
    void failed(const std::exception& failure) override;

  private:
    struct Question {
        std::function<void()> show;
        std::function<void()> tell_nobody;
        std::function<void(MessageAnswer, Color)> then;
    };

    void put(Question question);
    void open_next();

    std::deque<Question> waiting_;
    std::function<void(MessageAnswer, Color)> then_;  ///< what goes on with the answer to the open question
    bool asking_ = false;
    bool attended_ = true;
};

}  // namespace tarnwick

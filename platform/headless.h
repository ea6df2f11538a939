#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/form.h"

namespace tarnwick {

/// A desktop in memory: a clock that moves only when told to, and answers that are given beforehand.
/// It takes the same mouse and key entry points of the windows as the real one.
class HeadlessDesktop : public Desktop {
  public:
    /// Becomes the desktop in use until it is destroyed.
    explicit HeadlessDesktop(PixelSize screen = {810, 610});
    ~HeadlessDesktop() override;

    PixelSize screen_size() const override { return screen_; }
    std::int64_t now() const override { return now_; }
    std::string short_date() const override { return date_; }
    std::unique_ptr<FormView> make_view(Form&) override { return nullptr; }
    void run_in_background(std::function<void()> action) override;
    /// There are no help files.
    bool show_help(const std::string&) override { return false; }
    void copy_text(const std::string& text) override { copied_ = text; }

    /// Moves the clock on by so many milliseconds, every timer ticking when it is due.
    void advance(std::int64_t milliseconds);
    /// Moves the clock on without a tick on the way, as a computer that was asleep does.
    void sleep(std::int64_t milliseconds);

    void set_date(const std::string& date) { date_ = date; }
    /// Answers for the messages and colour pickers to come, in order; without one, OK and cancel.
    void answer_message(MessageAnswer answer) { answers_.push_back(answer); }
    void answer_color(Color color) { colors_.push_back(color); }
    /// From now on messages and colour pickers stay open until they are answered.
    void leave_questions_open() { leaves_open_ = true; }
    /// Answers the open one; of a colour picker, OK and the colour.
    void answer(MessageAnswer answer, Color color = black) { answered(answer, color); }

    /// What was copied last.
    const std::string& copied() const { return copied_; }
    /// The messages shown so far.
    const std::vector<Message>& messages() const { return messages_; }
    void forget_messages() { messages_.clear(); }

  protected:
    void show_message(const Message& message) override;
    void show_color_picker(const std::string& title) override;

  private:
    void advance_timers(std::int64_t end);

    PixelSize screen_;
    std::int64_t now_ = 0;
    std::function<void()> background_;
    std::int64_t background_due_ = 0;
    std::string date_ = "1/2/2000";
    std::string copied_;
    std::deque<MessageAnswer> answers_;
    std::deque<Color> colors_;
    std::vector<Message> messages_;
    bool leaves_open_ = false;
};

}  // namespace tarnwick

#include "platform/desktop.h"

#include <exception>
#include <stdexcept>
#include <utility>

namespace tarnwick {
namespace {

Desktop* in_use = nullptr;

}  // namespace

Desktop& desktop() {
    if (!in_use) throw std::logic_error("there is no desktop");
    return *in_use;
}

void use_desktop(Desktop* desktop) { in_use = desktop; }

void Desktop::ask(const Message& message, std::function<void(MessageAnswer)> then) {
    put({[this, message] { show_message(message); },
         [this, message] { unheard(message); },
         [then = std::move(then)](MessageAnswer answer, Color) {
             if (then) then(answer);
         }});
}

void Desktop::pick_color(const std::string& title, std::function<void(std::optional<Color>)> then) {
    put({[this, title] { show_color_picker(title); },
         [] {},
         [then = std::move(then)](MessageAnswer answer, Color color) {
             then(answer == MessageAnswer::ok ? std::optional(color) : std::nullopt);
         }});
}

void Desktop::put(Question question) {
    waiting_.push_back(std::move(question));
    open_next();
}

void Desktop::open_next() {
    if (asking_ || waiting_.empty()) return;
    const Question next = std::move(waiting_.front());
    waiting_.pop_front();
    then_ = next.then;
    asking_ = true;
    if (!attended_) {
        next.tell_nobody();
        answered(MessageAnswer::cancel);
        return;
    }
    try {
        next.show();
    } catch (...) {
        // Nobody could answer what is not seen.
        answered(MessageAnswer::cancel);
        throw;
    }
}

void Desktop::answered(MessageAnswer answer, Color color) {
    if (!asking_) return;
    asking_ = false;
    const auto then = std::exchange(then_, {});
    event([&] {
        after_event([then, answer, color] { then(answer, color); });
        after_event([this] { open_next(); });
    });
}

void Desktop::cancel_questions() {
    const auto waiting = std::exchange(waiting_, {});
    if (asking_) take_back_question();
    for (const Question& question : waiting) {
        question.tell_nobody();
        after_event([then = question.then] { then(MessageAnswer::cancel, black); });
    }
}

void Desktop::leave_unattended() {
    attended_ = false;
    cancel_questions();
}

void Desktop::event(const std::function<void()>& handler) {
    ++depth_;
    run_guarded(handler);
    if (depth_ == 1) finish_event();
    --depth_;
    if (depth_ == 0) event_ended();
}

void Desktop::run_guarded(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& failure) {
        const std::string what = std::string("Something unexpected happened (") + failure.what() + ")";
        const char* advice = attended_ ? ". You can play on, or start a new game with F2."
                                       : " while the program ended: its last game may not be counted.";
        notify({"Tarnwick", what + advice});
    }
}

void Desktop::finish_event() {
    while (!pending_.empty()) {
        const std::function<void()> action = std::move(pending_.front());
        pending_.pop_front();
        run_guarded(action);
    }
}

void Desktop::after_event(std::function<void()> action) {
    pending_.push_back(std::move(action));
    if (depth_ == 0) event([] {});
}

}  // namespace tarnwick

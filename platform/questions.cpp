#include "platform/questions.h"

#include <utility>

namespace tarnwick {

void Questions::ask(const Message& message, std::function<void(MessageAnswer)> then) {
    put({[this, message] { show_message(message); },
         [this, message] { unheard(message); },
         [then = std::move(then)](MessageAnswer answer, Color) {
             if (then) then(answer);
         }});
}

void Questions::pick_color(const std::string& title, std::function<void(std::optional<Color>)> then) {
    put({[this, title] { show_color_picker(title); },
         [] {},
         [then = std::move(then)](MessageAnswer answer, Color color) {
             then(answer == MessageAnswer::ok ? std::optional(color) : std::nullopt);
         }});
}

void Questions::put(Question question) {
    waiting_.push_back(std::move(question));
    open_next();
}

void Questions::open_next() {
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

void Questions::answered(MessageAnswer answer, Color color) {
    if (!asking_) return;
    asking_ = false;
    const auto then = std::exchange(then_, {});
    event([&] {
        after_event([then, answer, color] { then(answer, color); });
        after_event([this] { open_next(); });
    });
}

void Questions::cancel_questions() {
    const auto waiting = std::exchange(waiting_, {});
    if (asking_) take_back_question();
    for (const Question& question : waiting) {
        question.tell_nobody();
        after_event([then = question.then] { then(MessageAnswer::cancel, black); });
    }
}

void Questions::leave_unattended() {
    attended_ = false;
    cancel_questions();
}

void Questions::failed(const std::exception& failure) {
    const std::string what = std::string("Something unexpected happened (") + failure.what() + ")";
    const char* advice = attended_ ? ". You can play on, or start a new game with F2."
                                   : " while the program ended: its last game may not be counted.";
    notify({"Tarnwick", what + advice});
}

}  // namespace tarnwick

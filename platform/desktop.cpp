#include "platform/desktop.h"

#include <exception>
#include <stdexcept>

#include "platform/form.h"

namespace tarnwick {
namespace {

Desktop* in_use = nullptr;

}  // namespace

Desktop& desktop() {
    if (!in_use) throw std::logic_error("there is no desktop");
    return *in_use;
}

void use_desktop(Desktop* desktop) { in_use = desktop; }

MessageAnswer Desktop::message_box(const Message& message) {
    if (!attended_) {
        unheard(message);
        return MessageAnswer::cancel;
    }
    ++depth_;
    const MessageAnswer answer = show_message(message);
    --depth_;
    return answer;
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
        message_box({"Tarnwick", what + advice, MessageButtons::ok});
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

#include "platform/headless.h"

#include <algorithm>

#include "platform/timer.h"

namespace tarnwick {
namespace {

constexpr std::int64_t a_second = 1000;

}  // namespace

HeadlessDesktop::HeadlessDesktop(PixelSize screen) : screen_(screen) { use_desktop(this); }

HeadlessDesktop::~HeadlessDesktop() { use_desktop(nullptr); }

void HeadlessDesktop::show_color_picker(const std::string&) {
    if (leaves_open_) return;
    if (colors_.empty()) return answered(MessageAnswer::cancel);
    const Color color = colors_.front();
    colors_.pop_front();
    answered(MessageAnswer::ok, color);
}

void HeadlessDesktop::show_message(const Message& message) {
    messages_.push_back(message);
    if (leaves_open_) return;
    if (answers_.empty()) return answered(MessageAnswer::ok);
    const MessageAnswer answer = answers_.front();
    answers_.pop_front();
    answered(answer);
}

void HeadlessDesktop::run_in_background(std::function<void()> action) {
    background_ = std::move(action);
    background_due_ = now_ + a_second;
}

void HeadlessDesktop::advance(std::int64_t milliseconds) {
    const std::int64_t end = now_ + milliseconds;
    while (background_ && background_due_ <= end) {
        const std::int64_t due = background_due_;
        advance_timers(due);
        background_due_ = due + a_second;
        // A copy: it may end itself.
        const std::function<void()> action = background_;
        action();
    }
    advance_timers(end);
}

void HeadlessDesktop::advance_timers(std::int64_t end) {
    while (!in_event()) {
        const auto due = timer_queue().next_due();
        if (!due || *due > end) break;
        now_ = std::max(now_, *due);
        timer_queue().run_due();
    }
    now_ = std::max(now_, end);
}

void HeadlessDesktop::sleep(std::int64_t milliseconds) {
    now_ += milliseconds;
    timer_queue().run_due();
}

}  // namespace tarnwick

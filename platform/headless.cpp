#include "platform/headless.h"

#include <algorithm>

#include "platform/timer.h"

namespace tarnwick {
namespace {

constexpr std::int64_t a_second = 1000;

}  // namespace

HeadlessDesktop::HeadlessDesktop(PixelSize screen) : screen_(screen) { use_desktop(this); }

HeadlessDesktop::~HeadlessDesktop() { use_desktop(nullptr); }

std::optional<Color> HeadlessDesktop::pick_color(const std::string&) {
    if (colors_.empty()) return std::nullopt;
    const Color color = colors_.front();
    colors_.pop_front();
    return color;
}

MessageAnswer HeadlessDesktop::show_message(const Message& message) {
    messages_.push_back(message);
    if (answers_.empty()) return MessageAnswer::ok;
    const MessageAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
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
    for (auto due = timer_queue().next_due(); due && *due <= end; due = timer_queue().next_due()) {
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

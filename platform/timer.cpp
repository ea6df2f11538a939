#include "platform/timer.h"

#include <algorithm>

#include "platform/desktop.h"
#include "platform/mouse.h"

namespace tarnwick {

Timer::Timer(Window& window) : window_(window) { timer_queue().add(*this); }

void Timer::set_interval(int milliseconds) {
    if (milliseconds == interval_) return;
    interval_ = milliseconds;
    start_period();
}

void Timer::set_enabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    start_period();
}

bool Timer::runs() const { return enabled_ && interval_ > 0 && window_.loaded(); }

void Timer::start_period() {
    if (!runs()) return;
    due_ = desktop().now() + interval_;
    desktop().timers_changed();
}

std::optional<std::int64_t> TimerQueue::next_due() const {
    std::optional<std::int64_t> next;
    for (const Timer* timer : timers_) {
        if (timer->runs()) next = std::min(next.value_or(timer->due_), timer->due_);
    }
    return next;
}

Timer* TimerQueue::most_overdue(std::int64_t now) const {
    Timer* first = nullptr;
    for (Timer* timer : timers_) {
        if (timer->runs() && timer->due_ <= now && (!first || timer->due_ < first->due_)) first = timer;
    }
    return first;
}

void TimerQueue::run_due() {
    const std::int64_t now = desktop().now();
    // A tick may ask a question, for which the others wait.
    for (Timer* timer = nullptr; !desktop().in_event() && (timer = most_overdue(now));) {
        // Ticks keep their rhythm, but those that a late clock has missed are not made up for.
        timer->due_ = std::max(timer->due_ + timer->interval_, now + 1);
        if (timer->on_tick) desktop().event(timer->on_tick);
        timer->window_.mouse().follow_layout();
    }
}

void TimerQueue::start(const Window& window) {
    for (Timer* timer : timers_) {
        if (&timer->window_ == &window) timer->start_period();
    }
}

TimerQueue& timer_queue() {
    static TimerQueue queue;
    return queue;
}

std::optional<std::int64_t> time_to_next_tick() {
    const std::optional<std::int64_t> due = timer_queue().next_due();
    if (!due || desktop().asking()) return std::nullopt;
    return std::max<std::int64_t>(0, *due - desktop().now());
}

}  // namespace tarnwick

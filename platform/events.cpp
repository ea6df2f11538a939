#include "platform/events.h"

#include <utility>

namespace tarnwick {

void Events::event(const std::function<void()>& handler) {
    ++depth_;
    run_guarded(handler);
    if (depth_ == 1) finish_event();
    --depth_;
    if (depth_ == 0) event_ended();
}

void Events::run_guarded(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& failure) {
        failed(failure);
    }
}

void Events::finish_event() {
    while (!pending_.empty()) {
        const std::function<void()> action = std::move(pending_.front());
        pending_.pop_front();
        run_guarded(action);
    }
}

void Events::after_event(std::function<void()> action) {
    pending_.push_back(std::move(action));
    if (depth_ == 0) event([] {});
}

}  // namespace tarnwick

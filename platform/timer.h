#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/window.h"

namespace tarnwick {

/// Raises on_tick every `interval` milliseconds while it is enabled and its window is loaded.
/// A change of the interval, and every enabling, starts a new period.
class Timer {
  public:
    explicit Timer(Window& window);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int interval() const { return interval_; }
    void set_interval(int milliseconds);
    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);

    std::function<void()> on_tick;

  private:
    friend class TimerQueue;
    void start_period();
    bool runs() const;

    Window& window_;
    std::int64_t due_ = 0;
    int interval_ = 0;
    bool enabled_ = false;
};

/// All timers of the program. A desktop asks when the next one is due and lets the due ones tick.
class TimerQueue {
  public:
    void add(Timer& timer) { timers_.push_back(&timer); }

    /// The time (milliseconds of the desktop's clock) at which the next tick is due, or nothing.
    std::optional<std::int64_t> next_due() const;
    /// Lets every timer that is due tick once, however late it is, the longest due first, each in an event of
    /// its own. None ticks during an event, nor while a question is open.
    void run_due();
    /// Starts new periods for the timers of a window that has just been loaded.
    void start(const Window& window);

  private:
    Timer* most_overdue(std::int64_t now) const;

    std::vector<Timer*> timers_;
};

TimerQueue& timer_queue();

/// Milliseconds until the next timer of the program is due, 0 for one that is late; nothing where none runs,
/// or while a question is open, during which none may tick. To be asked by a front end whenever the desktop
/// is told that its timers have changed, and at the end of an event, during which none of them ticks.
std::optional<std::int64_t> time_to_next_tick();

}  // namespace tarnwick

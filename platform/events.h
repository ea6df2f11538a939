#pragma once

#include <deque>
#include <exception>
#include <functional>

namespace tarnwick {

/// Runs all that the program does, event by event: a failure ends one event, and never the program.
class Events {
  public:
    Events() = default;
    virtual ~Events() = default;
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;

    /// Runs the handler of one event. A failure that leaves it is told to the player in one message, and the
    /// program goes on. Timers do not tick meanwhile. Windows, widgets, menus, timers and the mouse run their
    /// handlers in one themselves.
    void event(const std::function<void()>& handler);
    bool event_is_under_way() const { return depth_ > 0; }
    /// Runs an action after the current event, or at once where there is none.
    void after_event(std::function<void()> action);

  protected:
    /// A handler has failed: the player is to be told.
    virtual void failed(const std::exception& failure) = 0;
    /// An event has ended.
    virtual void event_ended() {}

  private:
    void run_guarded(const std::function<void()>& handler);
    void finish_event();

    std::deque<std::function<void()>> pending_;
    int depth_ = 0;
};

}  // namespace tarnwick

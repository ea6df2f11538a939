#pragma once

#include <chrono>
#include <thread>

namespace tarnwick {

/// How long the program waits while another one holds the file. All that it does within a second shares one
/// short time, so that no click is answered late, however often it asks the file.
class LockPatience {
  public:
    using Clock = std::chrono::steady_clock;

    /// Waits a moment; false, at once, when no patience is left.
    bool wait() {
        const Clock::time_point now = Clock::now();
        if (suspended_) return false;
        if (now >= refill_) {
            left_ = usual;
            refill_ = now + std::chrono::seconds(1);
        }
        if (left_ <= Clock::duration::zero()) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        left_ -= Clock::now() - now;
        return true;
    }

    /// What is tried now and then may fail at once.
    void suspend(bool suspended) { suspended_ = suspended; }
    /// As long as this, once: for the end, when nobody waits for an answer any more.
    void allow(Clock::duration time) {
        left_ = time;
        refill_ = Clock::now() + time + std::chrono::seconds(1);
    }

  private:
    static constexpr Clock::duration usual = std::chrono::milliseconds(100);

    Clock::duration left_ = usual;
    Clock::time_point refill_ = Clock::now() + std::chrono::seconds(1);
    bool suspended_ = false;
};

}  // namespace tarnwick

#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "tools/driver/x_driver.h"

namespace tarnwick {

/// Tells how soon the screen shows a change, by looking at a small part of it again and again. One look costs
/// a few hundredths of a millisecond.
class ScreenWatch {
  public:
    using Clock = std::chrono::steady_clock;

    /// Connects to the display that the environment names. Throws std::runtime_error.
    ScreenWatch();
    ~ScreenWatch();
    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;

    /// Remembers what this part of the screen looks like, and the time.
    void begin(const XPlace& part);
    /// Milliseconds from begin() until the part looked different; nothing when it did not within a second.
    std::optional<double> wait_for_change();
    /// Waits until the part has looked the same for a tenth of a second.
    void wait_for_rest(const XPlace& part);

  private:
    std::vector<char> look() const;

    std::unique_ptr<XConnection> connection_;
    XPlace part_;
    std::vector<char> before_;
    Clock::time_point start_;
};

/// The small part of the screen around a place.
inline XPlace around(int x, int y) { return {x - 2, y - 2, 4, 4}; }

double median(std::vector<double> values);

/// What a process, all its threads taken together, has used so far.
struct Usage {
    double milliseconds = 0;  ///< of the processor
    long wake_ups = 0;        ///< how often it has gone to sleep, to be woken again
};
Usage usage_of(pid_t process);

}  // namespace tarnwick

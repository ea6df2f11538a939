#pragma once

namespace tarnwick {

class QtDesktop;
class Store;

/// When the connection to the display breaks, the toolkit ends the process from where it happens to be: on
/// X11 with exit(), on Wayland, in any thread, with _exit() after a warning. While this object lives, the
/// program ends first, with nothing of the toolkit touched and without the destruction of anything; the exit
/// status is 1.
class DisplayLoss {
  public:
    /// The program has been started. There is one of these at a time.
    DisplayLoss(QtDesktop& desktop, Store& store);
    ~DisplayLoss();
    DisplayLoss(const DisplayLoss&) = delete;
    DisplayLoss& operator=(const DisplayLoss&) = delete;
};

}  // namespace tarnwick

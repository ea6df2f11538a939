#pragma once

#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

struct XConnection;

using XWindow = unsigned long;

/// A place on the screen, in device pixels.
struct XPlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const XPlace&) const = default;
};

/// What is seen in a window, row by row as 0xRRGGBB; empty when it cannot be seen.
struct XPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> rgb;
    bool operator==(const XPixels&) const = default;
};

enum class XButton : unsigned { left = 1, middle = 2, right = 3 };

/// Sees and handles other programs' windows as a user at the screen does, with real pointer and key events.
class XDriver {
  public:
    /// Connects to the display that the environment names. Throws std::runtime_error.
    XDriver();
    ~XDriver();
    XDriver(const XDriver&) = delete;
    XDriver& operator=(const XDriver&) = delete;

    XPlace screen() const;

    /// The windows that a process shows or has minimised, the oldest first.
    std::vector<XWindow> windows_of(pid_t process) const;
    /// The process's window with this title; 0 when there is none.
    XWindow find(pid_t process, const std::string& title) const;
    std::string title(XWindow window) const;
    /// The inside of the window, without its frame.
    XPlace place(XWindow window) const;
    /// What of the window lies on the screen.
    XPixels pixels(XWindow window) const;
    /// The window that has the keyboard; 0 for none.
    XWindow active() const;
    bool minimized(XWindow window) const;
    /// The windows of all programs as they are stacked, the lowest first.
    std::vector<XWindow> stacking() const;

    void move_pointer(int x, int y);
    void press(XButton button = XButton::left);
    /// Returns when the display has taken note.
    void release(XButton button = XButton::left);
    void click(int x, int y);
    /// Presses and releases a key, such as "F2", "ctrl+q" or "alt+f".
    void key(const std::string& combination);
    void type(const std::string& text);

    /// What the window's buttons and edges do.
    void close(XWindow window);
    /// Breaks the connection that the window's program has to the display.
    void cut_off(XWindow window);
    void minimize(XWindow window);
    /// Brings the window back, and to the front with the keyboard.
    void restore(XWindow window);
    void resize(XWindow window, int width, int height);

  private:
    std::vector<unsigned long> numbers(XWindow window, const char* property) const;
    void send(XWindow target, XWindow window, const char* message, long first, long second) const;
    bool is_down(XButton button) const;
    void key_event(unsigned long symbol, bool down);

    std::unique_ptr<XConnection> connection_;
};

}  // namespace tarnwick

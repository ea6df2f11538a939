#pragma once

#include <X11/Xlib.h>

#include <stdexcept>

namespace tarnwick {

/// A connection to the display that the environment names. Apart from the headers of those who have one, so
/// that the display's macros stay out of their users' way.
struct XConnection {
    /// Throws std::runtime_error when there is no such display.
    XConnection() : display(XOpenDisplay(nullptr)) {
        if (!display) throw std::runtime_error("the display cannot be opened");
        // A display that goes must not take this program with it, as the toolkit's own handler would.
        XSetIOErrorHandler([](Display*) { return 0; });
        XSetIOErrorExitHandler(
            display, [](Display*, void*) {}, nullptr);
    }
    ~XConnection() { XCloseDisplay(display); }
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    Display* const display;
};

}  // namespace tarnwick

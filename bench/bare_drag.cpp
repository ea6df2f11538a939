// The yardstick for drags: a rectangle of a card's size that follows the pressed pointer, without any
// toolkit.
//
//     bare_drag CARD_WIDTH CARD_HEIGHT

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <unistd.h>

#include <cstdlib>

int main(int argc, char** argv) {
    Display* display = XOpenDisplay(nullptr);
    if (!display || argc != 3) return EXIT_FAILURE;
    const int screen = DefaultScreen(display);
    const int width = std::atoi(argv[1]);
    const int height = std::atoi(argv[2]);
    const Window window = XCreateSimpleWindow(display,
                                              DefaultRootWindow(display),
                                              0,
                                              0,
                                              static_cast<unsigned>(DisplayWidth(display, screen) - 18),
                                              static_cast<unsigned>(DisplayHeight(display, screen) - 60),
                                              0,
                                              0,
                                              0x008000);
    XSelectInput(display, window, ButtonPressMask | ButtonMotionMask);
    // By this the process that has the window is known.
    const long process = getpid();
    XChangeProperty(display,
                    window,
                    XInternAtom(display, "_NET_WM_PID", False),
                    XA_CARDINAL,
                    32,
                    PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&process),
                    1);
    XMapWindow(display, window);
    const GC card = XCreateGC(display, window, 0, nullptr);
    XSetForeground(display, card, 0xFFFFFF);
    const auto area = [&](int x, int y, auto draw) {
        draw(x - width / 2, y - height / 2, static_cast<unsigned>(width), static_cast<unsigned>(height));
    };
    for (int x = -width, y = -height;;) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type != MotionNotify) continue;
        // Of many moves only the last one is to be seen.
        while (XCheckTypedEvent(display, MotionNotify, &event)) {
        }
        area(x, y, [&](auto... place) { XClearArea(display, window, place..., False); });
        x = event.xmotion.x;
        y = event.xmotion.y;
        area(x, y, [&](auto... place) { XFillRectangle(display, window, card, place...); });
        XFlush(display);
    }
}

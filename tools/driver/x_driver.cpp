#include "tools/driver/x_driver.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <algorithm>
#include <map>
#include <stdexcept>

#include "tools/driver/eventually.h"
#include "tools/driver/x_connection.h"

namespace tarnwick {
namespace {

template <class T>
using XPointer = std::unique_ptr<T, decltype(&XFree)>;

// A window may be gone by the time it is asked about; what was asked then says so by its result.
int ignore_error(Display*, XErrorEvent*) { return 0; }

Atom atom(Display* display, const char* name) { return XInternAtom(display, name, False); }

XWindow root(Display* display) { return DefaultRootWindow(display); }

KeySym symbol_of(const std::string& name) {
    static const std::map<std::string, KeySym> modifiers{
        {"ctrl", XK_Control_L}, {"alt", XK_Alt_L}, {"shift", XK_Shift_L}};
    const auto modifier = modifiers.find(name);
    if (modifier != modifiers.end()) return modifier->second;
    const KeySym symbol = XStringToKeysym(name.c_str());
    if (symbol == NoSymbol) throw std::invalid_argument("there is no key \"" + name + '"');
    return symbol;
}

}  // namespace

XDriver::XDriver() : connection_(std::make_unique<XConnection>()) {
    int ignored = 0;
    if (!XTestQueryExtension(connection_->display, &ignored, &ignored, &ignored, &ignored)) {
        throw std::runtime_error("the display takes no events from programs");
    }
    XSetErrorHandler(ignore_error);
}

XDriver::~XDriver() = default;

XPlace XDriver::screen() const {
    const int number = DefaultScreen(connection_->display);
    return {0, 0, DisplayWidth(connection_->display, number), DisplayHeight(connection_->display, number)};
}

std::vector<unsigned long> XDriver::numbers(XWindow window, const char* property) const {
    constexpr long most = 1024;
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(connection_->display,
                           window,
                           atom(connection_->display, property),
                           0,
                           most,
                           False,
                           AnyPropertyType,
                           &type,
                           &format,
                           &count,
                           &left,
                           &data) != Success) {
        return {};
    }
    const XPointer<unsigned char> owner(data, XFree);
    constexpr int bits_of_number = 32;
    if (!data || format != bits_of_number) return {};
    const auto* first = reinterpret_cast<const unsigned long*>(data);
    return {first, first + count};
}

std::vector<XWindow> XDriver::windows_of(pid_t process) const {
    std::vector<XWindow> windows = numbers(root(connection_->display), "_NET_CLIENT_LIST");
    std::erase_if(windows, [&](XWindow window) {
        const auto owner = numbers(window, "_NET_WM_PID");
        return owner.empty() || static_cast<pid_t>(owner[0]) != process;
    });
    return windows;
}

XWindow XDriver::find(pid_t process, const std::string& wanted) const {
    for (const XWindow window : windows_of(process)) {
        if (title(window) == wanted) return window;
    }
    return 0;
}

std::string XDriver::title(XWindow window) const {
    XTextProperty text{};
    if (!XGetTextProperty(connection_->display, window, &text, atom(connection_->display, "_NET_WM_NAME")))
        return {};
    const XPointer<unsigned char> owner(text.value, XFree);
    return {reinterpret_cast<const char*>(text.value), text.nitems};
}

XPlace XDriver::place(XWindow window) const {
    XWindowAttributes attributes{};
    XPlace place;
    XWindow child = None;
    if (!XGetWindowAttributes(connection_->display, window, &attributes)) return place;
    XTranslateCoordinates(
        connection_->display, window, root(connection_->display), 0, 0, &place.x, &place.y, &child);
    place.width = attributes.width;
    place.height = attributes.height;
    return place;
}

XPixels XDriver::pixels(XWindow window) const {
    XPlace seen = place(window);
    seen.width = std::min(seen.width, screen().width - seen.x);
    seen.height = std::min(seen.height, screen().height - seen.y);
    if (seen.width <= 0 || seen.height <= 0) return {};
    XImage* image = XGetImage(connection_->display,
                              window,
                              0,
                              0,
                              static_cast<unsigned>(seen.width),
                              static_cast<unsigned>(seen.height),
                              AllPlanes,
                              ZPixmap);
    if (!image) return {};
    XPixels pixels{seen.width, seen.height, {}};
    pixels.rgb.reserve(static_cast<std::size_t>(seen.width) * static_cast<std::size_t>(seen.height));
    constexpr unsigned long color_bits = 0xFFFFFF;
    for (int y = 0; y < seen.height; ++y) {
        for (int x = 0; x < seen.width; ++x) {
            pixels.rgb.push_back(static_cast<std::uint32_t>(XGetPixel(image, x, y) & color_bits));
        }
    }
    XDestroyImage(image);
    return pixels;
}

XWindow XDriver::active() const {
    const auto windows = numbers(root(connection_->display), "_NET_ACTIVE_WINDOW");
    return windows.empty() ? 0 : windows[0];
}

bool XDriver::minimized(XWindow window) const {
    const auto state = numbers(window, "WM_STATE");
    return !state.empty() && state[0] == IconicState;
}

std::vector<XWindow> XDriver::stacking() const {
    return numbers(root(connection_->display), "_NET_CLIENT_LIST_STACKING");
}

void XDriver::move_pointer(int x, int y) {
    XTestFakeMotionEvent(connection_->display, -1, x, y, CurrentTime);
    XSync(connection_->display, False);
}

void XDriver::press(XButton button) {
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), True, CurrentTime);
    XSync(connection_->display, False);
}

void XDriver::release(XButton button) {
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), False, CurrentTime);
    // The pointer stands still while the window manager looks at the press. A key would overtake it.
    eventually([&] { return !is_down(button); });
}

bool XDriver::is_down(XButton button) const {
    XWindow ignored = None;
    int unused = 0;
    unsigned state = 0;
    XQueryPointer(connection_->display,
                  root(connection_->display),
                  &ignored,
                  &ignored,
                  &unused,
                  &unused,
                  &unused,
                  &unused,
                  &state);
    return (state & (Button1Mask << (static_cast<unsigned>(button) - 1U))) != 0;
}

void XDriver::click(int x, int y) {
    move_pointer(x, y);
    press();
    release();
}

void XDriver::key_event(unsigned long symbol, bool down) {
    const KeyCode code = XKeysymToKeycode(connection_->display, symbol);
    XTestFakeKeyEvent(connection_->display, code, down ? True : False, CurrentTime);
}

void XDriver::key(const std::string& combination) {
    std::vector<KeySym> symbols;
    std::size_t start = 0;
    for (std::size_t plus = combination.find('+'); plus != std::string::npos;
         plus = combination.find('+', start)) {
        symbols.push_back(symbol_of(combination.substr(start, plus - start)));
        start = plus + 1;
    }
    symbols.push_back(symbol_of(combination.substr(start)));
    std::for_each(symbols.begin(), symbols.end(), [this](KeySym symbol) { key_event(symbol, true); });
    std::for_each(symbols.rbegin(), symbols.rend(), [this](KeySym symbol) { key_event(symbol, false); });
    XSync(connection_->display, False);
}

void XDriver::type(const std::string& text) {
    for (const char letter : text) {
        const std::string name = letter == ' ' ? "space" : std::string(1, letter);
        key(letter >= 'A' && letter <= 'Z' ? "shift+" + name : name);
    }
}

void XDriver::send(XWindow target, XWindow window, const char* message, long first, long second) const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom(connection_->display, message);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    event.xclient.data.l[1] = second;
    const bool to_manager = target != window;
    XSendEvent(connection_->display,
               target,
               False,
               to_manager ? SubstructureRedirectMask | SubstructureNotifyMask : NoEventMask,
               &event);
    XSync(connection_->display, False);
}

// What the window manager sends when its close button is clicked. Sent by way of the window manager, it could
// be overtaken by the key that comes after it.
void XDriver::close(XWindow window) {
    const auto request = static_cast<long>(atom(connection_->display, "WM_DELETE_WINDOW"));
    send(window, window, "WM_PROTOCOLS", request, CurrentTime);
}

void XDriver::cut_off(XWindow window) {
    XKillClient(connection_->display, window);
    XSync(connection_->display, False);
}

void XDriver::minimize(XWindow window) {
    XIconifyWindow(connection_->display, window, DefaultScreen(connection_->display));
    XSync(connection_->display, False);
}

void XDriver::restore(XWindow window) {
    // Asked by a pager, the window manager obeys as it obeys the user.
    constexpr long pager = 2;
    send(root(connection_->display), window, "_NET_ACTIVE_WINDOW", pager, CurrentTime);
}

void XDriver::resize(XWindow window, int width, int height) {
    XResizeWindow(connection_->display, window, static_cast<unsigned>(width), static_cast<unsigned>(height));
    XSync(connection_->display, False);
}

}  // namespace tarnwick

#include "bench/screen_watch.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "tools/driver/x_connection.h"

namespace tarnwick {

ScreenWatch::ScreenWatch() : connection_(std::make_unique<XConnection>()) {}
ScreenWatch::~ScreenWatch() = default;

std::vector<char> ScreenWatch::look() const {
    Display* display = connection_->display;
    XImage* image = XGetImage(display,
                              DefaultRootWindow(display),
                              part_.x,
                              part_.y,
                              static_cast<unsigned>(part_.width),
                              static_cast<unsigned>(part_.height),
                              AllPlanes,
                              ZPixmap);
    if (!image) throw std::runtime_error("that part of the screen cannot be seen");
    const std::ptrdiff_t size = std::ptrdiff_t{image->bytes_per_line} * image->height;
    std::vector<char> pixels(image->data, image->data + size);
    XDestroyImage(image);
    return pixels;
}

void ScreenWatch::begin(const XPlace& part) {
    part_ = part;
    before_ = look();
    start_ = Clock::now();
}

std::optional<double> ScreenWatch::wait_for_change() {
    while (true) {
        const bool changed = look() != before_;
        const std::chrono::duration<double, std::milli> time = Clock::now() - start_;
        if (changed) return time.count();
        if (time > std::chrono::seconds(1)) return std::nullopt;
    }
}

void ScreenWatch::wait_for_rest(const XPlace& part) {
    constexpr std::chrono::milliseconds rest{100};
    constexpr std::chrono::milliseconds pause{5};
    begin(part);
    while (Clock::now() - start_ < rest) {
        std::this_thread::sleep_for(pause);
        if (look() != before_) begin(part);
    }
}

double median(std::vector<double> values) {
    if (values.empty()) throw std::runtime_error("nothing was measured");
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Usage usage_of(pid_t process) {
    constexpr double nanoseconds = 1e6;
    Usage usage;
    for (const auto& task :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        double time = 0;
        std::ifstream(task.path() / "schedstat") >> time;
        usage.milliseconds += time / nanoseconds;
        std::ifstream status(task.path() / "status");
        for (std::string word; status >> word;) {
            long count = 0;
            if (word == "voluntary_ctxt_switches:" && status >> count) usage.wake_ups += count;
        }
    }
    return usage;
}

}  // namespace tarnwick

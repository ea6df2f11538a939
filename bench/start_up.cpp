// How long programs take from their start to a painted window, and how much memory they have then.
//
//     start_up RUNS PROGRAM [ARGUMENT ...] -- YARDSTICK [ARGUMENT ...]
//
// The two are started in turn on the display in use, whose middle must show nothing else. Printed are the
// medians, and the ratio of the program to its yardstick.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "bench/screen_watch.h"

namespace {

using namespace tarnwick;
using Clock = std::chrono::steady_clock;
using Command = std::vector<std::string>;

struct Figures {
    std::vector<double> milliseconds;
    std::vector<double> processor;
    std::vector<double> kibibytes;
};

// The colour at a place that every window of nearly the screen's size covers, below the cards.
unsigned long colour_of_screen(Display* display) {
    const int screen = DefaultScreen(display);
    XImage* image = XGetImage(display,
                              DefaultRootWindow(display),
                              DisplayWidth(display, screen) / 2,
                              DisplayHeight(display, screen) - 120,
                              1,
                              1,
                              AllPlanes,
                              ZPixmap);
    const unsigned long colour = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return colour;
}

pid_t start(const Command& command) {
    const pid_t child = fork();
    if (child != 0) return child;
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    std::vector<char*> arguments;
    for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

// Memory of a process by its fair share of what it shares with others.
double proportional_set_size(pid_t process) {
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; rollup >> word;) {
        double kibibytes = 0;
        if (word == "Pss:" && rollup >> kibibytes) return kibibytes;
    }
    return 0;
}

bool wait_for_colour(Display* display, unsigned long colour, bool equal) {
    const Clock::time_point limit = Clock::now() + std::chrono::seconds(10);
    while (Clock::now() < limit) {
        if ((colour_of_screen(display) == colour) == equal) return true;
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return false;
}

bool measure(Display* display, const Command& command, Figures& figures) {
    const unsigned long bare = colour_of_screen(display);
    const Clock::time_point begin = Clock::now();
    const pid_t child = start(command);
    const bool painted = wait_for_colour(display, bare, false);
    const std::chrono::duration<double, std::milli> time = Clock::now() - begin;
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    const double memory = proportional_set_size(child);
    const double processor = usage_of(child).milliseconds;
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    if (!painted || !wait_for_colour(display, bare, true)) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    figures.milliseconds.push_back(time.count());
    figures.processor.push_back(processor);
    figures.kibibytes.push_back(memory);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const Command arguments(argv + 1, argv + argc);
    const auto separator = std::find(arguments.begin(), arguments.end(), "--");
    Display* display = XOpenDisplay(nullptr);
    const int runs = arguments.empty() ? 0 : std::atoi(arguments[0].c_str());
    if (!display || runs < 1 || separator == arguments.end() || separator + 1 == arguments.end()) {
        std::cerr
            << "usage: start_up RUNS PROGRAM [ARGUMENT ...] -- YARDSTICK [ARGUMENT ...], on a display\n";
        return 2;
    }
    const Command program(arguments.begin() + 1, separator);
    const Command yardstick(separator + 1, arguments.end());
    Figures program_figures;
    Figures yardstick_figures;
    for (int run = 0; run < runs; ++run) {
        if (!measure(display, program, program_figures) || !measure(display, yardstick, yardstick_figures)) {
            std::cerr << "start_up: a window was not painted, or did not go\n";
            return 1;
        }
    }
    const double time = median(program_figures.milliseconds);
    const double time_yardstick = median(yardstick_figures.milliseconds);
    const double memory = median(program_figures.kibibytes);
    const double memory_yardstick = median(yardstick_figures.kibibytes);
    std::cout << "start_ms " << time << '\n'
              << "start_yardstick_ms " << time_yardstick << '\n'
              << "start_ratio " << time / time_yardstick << '\n'
              << "start_processor_ms " << median(program_figures.processor) << '\n'
              << "start_yardstick_processor_ms " << median(yardstick_figures.processor) << '\n'
              << "memory_kib " << memory << '\n'
              << "memory_ratio " << memory / memory_yardstick << '\n';
    XCloseDisplay(display);
    return 0;
}

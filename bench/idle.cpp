// What the program costs while nobody plays: processor time and wake-ups a second, in its window and
// minimised. On the display in use.

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <thread>

#include "bench/screen_watch.h"
#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"
#include "windows/frmcards.h"

namespace {

using namespace tarnwick;

constexpr std::chrono::seconds span{8};
constexpr std::chrono::seconds settling{2};

void measure(const std::string& name, pid_t process) {
    std::this_thread::sleep_for(settling);
    const Usage before = usage_of(process);
    std::this_thread::sleep_for(span);
    const Usage after = usage_of(process);
    const auto seconds = static_cast<double>(span.count());
    std::cout << name << "_processor_ms " << (after.milliseconds - before.milliseconds) / seconds << '\n'
              << name << "_wake_ups " << static_cast<double>(after.wake_ups - before.wake_ups) / seconds
              << '\n';
}

}  // namespace

int main() {
    try {
        TwinGame game({.program = TARNWICK_PROGRAM});
        measure("idle", game.program().pid());
        game.screen().minimize(game.window());
        if (!eventually([&] { return game.screen().minimized(game.window()); })) {
            throw std::runtime_error("the window cannot be minimised");
        }
        measure("minimised", game.program().pid());
        // The timer for the glint of an ace ticks all the time.
        std::cout << "ticks " << 1000.0 / frmcards.Timer1.interval() << '\n';
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "idle: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}

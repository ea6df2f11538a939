// How soon the screen shows a card that is dragged, how much of the processor a move of the pointer costs,
// and both once more for a rectangle that a program without a toolkit drags, and one with the toolkit and
// nothing else. On the display in use.
//
//     drag [SCALE [ROUNDS]]      SCALE device pixels for a pixel of the board

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <thread>

#include "bench/screen_watch.h"
#include "state/variables.h"
#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"
#include "windows/frmcards.h"

namespace {

using namespace tarnwick;

constexpr int usual_rounds = 5;
constexpr int moves = 60;
constexpr int flood_moves = 5000;
constexpr std::uint32_t deal = 26;
constexpr int column = 6;

struct Figures {
    std::vector<double> latency;    ///< milliseconds from a move to its pixels
    std::vector<double> processor;  ///< milliseconds for a move
    std::vector<double> flood;      ///< milliseconds of the processor for thousands of moves at once
};

// Two places on the bare table under the cards, and the pointer that goes from one to the other.
class Pointer {
  public:
    explicit Pointer(const XPlace& window)
        : display_(XOpenDisplay(nullptr)),
          left_{window.x + window.width / 10, window.y + window.height * 9 / 10},
          right_{window.x + window.width * 6 / 10, left_.y} {
        if (!display_) throw std::runtime_error("the display cannot be opened");
    }
    ~Pointer() { XCloseDisplay(display_); }
    Pointer(const Pointer&) = delete;
    Pointer& operator=(const Pointer&) = delete;

    Spot target(int move) const { return move % 2 == 0 ? left_ : right_; }
    void go(Spot to) {
        XTestFakeMotionEvent(display_, -1, to.x, to.y, CurrentTime);
        XFlush(display_);
    }
    // Many moves on the way, which the program finds in its queue all at once.
    void flood(Spot to) {
        for (int i = 1; i <= flood_moves; ++i) {
            XTestFakeMotionEvent(
                display_, -1, to.x + (flood_moves - i) % 40, to.y - (flood_moves - i) % 40, CurrentTime);
        }
        XSync(display_, False);
    }

  private:
    Display* display_;
    Spot left_;
    Spot right_;
};

double needed(const std::optional<double>& time) {
    if (!time) throw std::runtime_error("a dragged card was not seen");
    return *time;
}

// The pointer's button is down on something that follows it.
void measure(pid_t process, const XPlace& window, Figures& figures) {
    ScreenWatch watch;
    Pointer pointer(window);
    pointer.go(pointer.target(1));
    const Usage before = usage_of(process);
    for (int move = 0; move < moves; ++move) {
        const Spot target = pointer.target(move);
        watch.begin(around(target.x, target.y));
        pointer.go(target);
        const double time = needed(watch.wait_for_change());
        // The first moves also draw what is used for all the others.
        if (move > 2) figures.latency.push_back(time);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    const Usage after = usage_of(process);
    figures.processor.push_back((after.milliseconds - before.milliseconds) / moves);
    const Spot target = pointer.target(moves);
    watch.begin(around(target.x, target.y));
    pointer.flood(target);
    needed(watch.wait_for_change());
    watch.wait_for_rest(around(target.x, target.y));
    figures.flood.push_back(usage_of(process).milliseconds - after.milliseconds);
}

void measure_game(int scale, Figures& figures, XPlace& card) {
    TwinGame game(
        {.program = TARNWICK_PROGRAM, .deal = deal, .settings = {}, .environment = {}, .scale = scale});
    const Image& top = top_image(column);
    card.width = static_cast<int>(top.width()) * scale;
    card.height = static_cast<int>(top.height()) * scale;
    game.press(TwinGame::spot_on(top));
    measure(game.program().pid(), game.screen().place(game.window()), figures);
    game.screen().release();
}

void measure_yardstick(const char* yardstick, const XPlace& card, Figures& figures) {
    ChildProcess program(yardstick, {std::to_string(card.width), std::to_string(card.height)});
    XDriver screen;
    const auto windows = [&] { return screen.windows_of(program.pid()); };
    if (!eventually([&] { return !windows().empty() && screen.active() == windows().front(); })) {
        throw std::runtime_error("the yardstick does not get the keyboard");
    }
    const XPlace place = screen.place(windows().front());
    screen.move_pointer(place.x + place.width / 2, place.y + place.height / 2);
    screen.press();
    measure(program.pid(), place, figures);
    screen.release();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const int scale = argc > 1 ? std::atoi(argv[1]) : 1;
        const int rounds = argc > 2 ? std::atoi(argv[2]) : usual_rounds;
        Figures game;
        Figures yardstick;
        Figures toolkit;
        XPlace card;
        for (int round = 0; round < rounds; ++round) {
            measure_game(scale, game, card);
            measure_yardstick(TARNWICK_BARE_DRAG, card, yardstick);
            measure_yardstick(TARNWICK_TOOLKIT_DRAG, card, toolkit);
        }
        std::cout << "drag_ms " << median(game.latency) << '\n'
                  << "drag_yardstick_ms " << median(yardstick.latency) << '\n'
                  << "drag_toolkit_ms " << median(toolkit.latency) << '\n'
                  << "drag_toolkit_ratio " << median(game.latency) / median(toolkit.latency) << '\n'
                  << "drag_ratio " << median(game.latency) / median(yardstick.latency) << '\n'
                  << "drag_processor_ms " << median(game.processor) << '\n'
                  << "drag_yardstick_processor_ms " << median(yardstick.processor) << '\n'
                  << "drag_flood_processor_ms " << median(game.flood) << '\n';
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "drag: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}

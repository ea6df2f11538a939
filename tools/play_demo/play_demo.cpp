// Starts the program on the current display, plays a few moves with real pointer and key events, and saves a
// picture of its window: shows that the whole program works, and what it looks like.

#include <QImage>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

#include "state/variables.h"
#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"
#include "windows/frmcards.h"

namespace {

using namespace tarnwick;

// A deal in which an ace can go up, and another card from column to column, from the start.
constexpr std::uint32_t deal = 26;

void require(bool condition, const std::string& failure) {
    if (!condition) throw std::runtime_error(failure);
}

// Waits until the board has changed from `before` and has stood still for longer than a step of an animation.
void wait_for_change(TwinGame& game, const XPixels& before, const std::string& what) {
    using Clock = std::chrono::steady_clock;
    XPixels last;
    Clock::time_point changed = Clock::now();
    const auto is_still = [&] {
        const XPixels now = game.board_pixels();
        if (now != last) changed = Clock::now();
        last = now;
        return now != before && Clock::now() - changed > std::chrono::milliseconds(200);
    };
    require(eventually(is_still), what + " changes nothing in the window");
}

template <class Action>
void act(TwinGame& game, const std::string& what, Action action) {
    const XPixels before = game.board_pixels();
    action();
    game.headless().desktop.advance(1000);
    wait_for_change(game, before, what);
}

bool fits(int c, int target) {
    return c != target && top_card(c).rank != ace && builds_on(top_card(c), top_card(target));
}

// Drags the first card that fits on another column, from the left; the ace is for its pile.
void drag_a_card(TwinGame& game) {
    for (int c = 0; c <= last_column; ++c) {
        for (int target = 0; target <= last_column; ++target) {
            if (!fits(c, target)) continue;
            game.drag(c, target);
            return;
        }
    }
    throw std::runtime_error("no card of the deal fits on another column");
}

void send_up_an_ace(TwinGame& game) {
    for (int c = 0; c <= last_column; ++c) {
        if (top_card(c).rank != ace) continue;
        game.click(c);
        return;
    }
    throw std::runtime_error("no ace lies on a column of the deal");
}

// Two points are a best score in an empty store, which the program asks a name for and shows.
void close_game(TwinGame& game) {
    game.screen().close(game.window());
    for (const char* title : {win_title, "Scores"}) {
        require(game.gets_keyboard(game.wait_for(title)), "a dialog does not get the keyboard");
        game.screen().key("Return");
    }
}

void play(const std::string& program, const std::string& picture) {
    TwinGame game({program, deal});
    wait_for_change(game, {}, "starting the program");
    act(game, "a click on the tablet", [&] { game.click_stock(); });
    act(game, "the space bar", [&] { game.space(); });
    act(game, "a drag from column to column", [&] { drag_a_card(game); });
    act(game, "a click on an ace", [&] { send_up_an_ace(game); });
    const XPixels all = game.screen().pixels(game.window());
    const QImage image(
        reinterpret_cast<const uchar*>(all.rgb.data()), all.width, all.height, QImage::Format_RGB32);
    require(image.save(QString::fromStdString(picture)), "cannot write " + picture);
    close_game(game);
    require(game.program().exit_code() == EXIT_SUCCESS,
            "the program does not end when its windows are closed");
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 3) throw std::runtime_error("usage: play_demo PROGRAM PICTURE.png");
        play(argv[1], argv[2]);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "play_demo: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}

// The program is told to end with a game in hand, and killed while it does so, again and again.

#include <gtest/gtest.h>
#include <signal.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>

#include "state/variables.h"
#include "tests/desktop/tested_program.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"

namespace tarnwick {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int column_of_ace = 4;
constexpr int points = 2;
const std::map<std::string, std::string> without_slides{{"anamate", "False"}};

// What is stored of the games played: how many, their total, the games won, and the best scores with their
// names.
struct Results {
    int games = 0;
    std::array<std::string, 5> table{"-,-", "-,-", "-,-", "-,-", "-,-"};

    Results counted() const { return {games + 1, table}; }
    Results entered(const std::string& name) const {
        return {games, {std::to_string(points) + ',' + name, table[0], table[1], table[2], table[3]}};
    }
    std::string text() const {
        std::string text =
            games == 0 ? "- - -" : std::to_string(games) + ' ' + std::to_string(points * games) + " -";
        for (const std::string& entry : table) text += ' ' + entry;
        return text;
    }
};

std::string stored_results(const TwinGame& game) {
    std::string text =
        game.stored("games played") + ' ' + game.stored("average score") + ' ' + game.stored("games won");
    for (int place = 1; place <= 5; ++place) {
        const std::string number = std::to_string(place);
        // An entry that moves down takes its empty places along.
        const std::string best = game.stored("high score " + number);
        text += ' ' + (best == "0" ? "-,-" : best + ',' + game.stored("high score name " + number));
    }
    return text;
}

void score_points(TwinGame& game) {
    game.click(column_of_ace);
    ASSERT_EQ(score, points);
    ASSERT_EQ(board_faults(game), "");
}

void ask_for_name(TwinGame& game, const std::string& name) {
    game.screen().key("F2");
    ASSERT_TRUE(game.gets_keyboard(game.wait_for(win_title)));
    game.screen().type(name);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

// How long the program takes to end.
std::chrono::microseconds time_to_end(TwinGame& game) {
    score_points(game);
    const Clock::time_point begin = Clock::now();
    kill(game.program().pid(), SIGTERM);
    while (game.program().running()) std::this_thread::sleep_for(std::chrono::microseconds(50));
    return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin);
}

int how_many() {
    const char* number = std::getenv("TARNWICK_KILLS");
    return number ? std::atoi(number) : 20;
}

TEST(KilledAtItsEnd, TheProgramHasCountedTheGameWhollyOrNotAtAll) {
    const int kills = how_many();
    TwinGame game({tested_program(), 26, without_slides});
    const std::chrono::microseconds whole = time_to_end(game);
    Results results = Results().counted().entered("");
    ASSERT_EQ(stored_results(game), results.text());
    std::mt19937 engine(1);
    int too_late = 0;
    int unfinished = 0;
    for (int round = 0; round < kills; ++round) {
        game.restart(without_slides);
        score_points(game);
        const bool named = round % 4 == 0;
        const std::string name = named ? "N" + std::to_string(round) : "";
        if (named) {
            ask_for_name(game, name);
            results = results.counted();
        }
        ASSERT_FALSE(HasFatalFailure());
        kill(game.program().pid(), SIGTERM);
        std::this_thread::sleep_for(
            std::chrono::microseconds(engine() % static_cast<unsigned>(whole.count())));
        kill(game.program().pid(), SIGKILL);
        const bool ended = game.program().exit_code() == 128 + SIGTERM;
        const Results next = (named ? results : results.counted()).entered(name);
        const std::string stored = stored_results(game);
        const bool whole_game = stored == next.text();
        ASSERT_TRUE(whole_game || (!ended && stored == results.text()))
            << "round " << round << ": " << stored << "\nafter " << results.text();
        too_late += ended ? 1 : 0;
        unfinished += whole_game ? 0 : 1;
        if (whole_game) results = next;
    }
    // A few may all come too late.
    constexpr int many = 10;
    EXPECT_TRUE(kills < many || too_late < kills) << "no kill came before the end";
    std::cout << kills << " kills in " << whole.count() << " microseconds: " << too_late << " after the end, "
              << unfinished << " before the game was stored\n";
}

}  // namespace
}  // namespace tarnwick

// The program is told to end with a game in hand, and killed while it does so, again and again.

#include <signal.h>

#include <iostream>
#include <random>

#include "tests/desktop/reach.h"

namespace tarnwick {
namespace {

using Clock = std::chrono::steady_clock;
using Names = std::vector<std::string>;

// What is stored of so many games of two points each, the latest entered first: how many, their total, the
// games won, and the best scores with their names.
std::string results(int games, const Names& names) {
    std::string text = games == 0 ? "- - -" : std::to_string(games) + ' ' + std::to_string(2 * games) + " -";
    for (std::size_t place = 0; place < 5; ++place) {
        text += place < names.size() ? " 2," + names[place] : " -,-";
    }
    return text;
}

std::string stored_results(const TwinGame& game) {
    std::string text =
        game.stored("games played") + ' ' + game.stored("average score") + ' ' + game.stored("games won");
    for (const char* place : {"1", "2", "3", "4", "5"}) {
        // An entry that moves down takes its empty places along.
        const std::string best = game.stored(std::string("high score ") + place);
        text +=
            best == "0" ? " -,-" : ' ' + best + ',' + game.stored(std::string("high score name ") + place);
    }
    return text;
}

// How long the program takes to end.
std::chrono::microseconds time_to_end(TwinGame& game) {
    score_two(game);
    const Clock::time_point begin = Clock::now();
    kill(game.program().pid(), SIGTERM);
    while (game.program().running()) std::this_thread::sleep_for(std::chrono::microseconds(50));
    return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin);
}

TEST(KilledAtItsEnd, TheProgramHasCountedTheGameWhollyOrNotAtAll) {
    const char* number = std::getenv("TARNWICK_KILLS");
    const int kills = number ? std::atoi(number) : 20;
    TwinGame game({tested_program(), 26, without_slides});
    const std::chrono::microseconds whole = time_to_end(game);
    int games = 1;
    Names names{""};
    ASSERT_EQ(stored_results(game), results(games, names));
    std::mt19937 engine(1);
    int too_late = 0;
    int unfinished = 0;
    for (int round = 0; round < kills; ++round) {
        game.restart(without_slides);
        score_two(game);
        const bool named = round % 4 == 0;
        const std::string name = named ? "N" + std::to_string(round) : "";
        if (named) ask_for_name(game, name);
        ASSERT_FALSE(HasFatalFailure());
        kill(game.program().pid(), SIGTERM);
        const auto pause = engine() % static_cast<unsigned>(whole.count());
        std::this_thread::sleep_for(std::chrono::microseconds(pause));
        kill(game.program().pid(), SIGKILL);
        const bool ended = game.program().exit_code() == 128 + SIGTERM;
        // A game whose name is asked for is counted before.
        const std::string before = results(named ? games + 1 : games, names);
        Names entered = names;
        entered.insert(entered.begin(), name);
        const std::string stored = stored_results(game);
        const bool whole_game = stored == results(games + 1, entered);
        ASSERT_TRUE(whole_game || (!ended && stored == before))
            << "round " << round << ": " << stored << "\nafter " << before;
        if (whole_game) names = entered;
        if (whole_game || named) ++games;
        too_late += ended ? 1 : 0;
        unfinished += whole_game ? 0 : 1;
    }
    // A few may all come too late.
    constexpr int many = 10;
    EXPECT_TRUE(kills < many || too_late < kills) << "no kill came before the end";
    std::cout << kills << " kills in " << whole.count() << " microseconds: " << too_late << " after the end, "
              << unfinished << " before the game was stored\n";
}

}  // namespace
}  // namespace tarnwick

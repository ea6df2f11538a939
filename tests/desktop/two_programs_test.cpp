// Two real programs on one file of settings and scores.

#include <sqlite3.h>

#include <iostream>

#include "tests/desktop/reach.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// A second program that plays the same deal on the store of a game, without a headless twin.
class SecondProgram {
  public:
    explicit SecondProgram(TwinGame& game)
        : screen_(game.screen()),
          menu_bar_(game.board().y),
          process_(tested_program(), {"--deal", "26", "--store", game.store_file()},
                   {{"QT_QPA_PLATFORM", "xcb"}, {"WAYLAND_DISPLAY", ""}}) {
        window_ = wait_for(main_title);
        EXPECT_TRUE(eventually([&] { return screen_.active() == window_; }));
    }

    XWindow wait_for(const std::string& title) {
        XWindow found = 0;
        EXPECT_TRUE(eventually([&] { return (found = screen_.find(process_.pid(), title)) != 0; })) << title;
        EXPECT_TRUE(eventually([&] { return screen_.active() == found; })) << title;
        return found;
    }
    void drag(Spot from, Spot to) {
        const XPlace window = screen_.place(window_);
        screen_.move_pointer(window.x + from.x, window.y + menu_bar_ + from.y);
        screen_.press();
        screen_.move_pointer(window.x + to.x, window.y + menu_bar_ + to.y);
        screen_.release();
    }
    ChildProcess& process() { return process_; }

  private:
    XDriver& screen_;
    int menu_bar_;
    ChildProcess process_;
    XWindow window_ = 0;
};

TEST(TwoPrograms, EnterTheirScoresIntoOneTableInOrder) {
    TwinGame game({tested_program(), 26});
    const Spot ace = TwinGame::spot_on(top_image(column_of_ace));
    const Spot run = TwinGame::spot_on(top_image(6));
    const Spot target = TwinGame::spot_on(top_image(9));
    game.click(column_of_ace);
    open(game, {"F2"}, win_title);
    {
        SecondProgram other(game);
        other.drag(ace, ace);
        other.drag(run, target);
        other.drag(ace, ace);
        game.screen().key("ctrl+q");
        other.wait_for(win_title);
        game.screen().type("Bob");
        game.screen().key("Return");
        other.wait_for("Scores");
        game.screen().key("Return");
        EXPECT_EQ(other.process().exit_code(), 0);
    }
    ASSERT_TRUE(game.bring_to_front(game.wait_for(win_title)));
    game.screen().type("Ann");
    open(game, {"Return"}, "Scores");
    EXPECT_EQ(game.stored("high score name 1") + ' ' + game.stored("high score name 2"), "Bob Ann");
    EXPECT_GT(game.stored("high score 1"), game.stored("high score 2"));
    EXPECT_EQ(game.stored("games played"), "2");
}

TEST(TwoPrograms, WaitForEachOtherWithoutStandingStill) {
    TwinGame game({tested_program(), 26});
    game.click(column_of_ace);
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(game.store_file().c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    const auto begin = std::chrono::steady_clock::now();
    open(game, {"F2"}, win_title);
    game.screen().type("Ann");
    open(game, {"Return"}, "Scores");
    game.screen().key("Return");
    ASSERT_TRUE(game.goes("Scores"));
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(spent.count(), 4);
    std::cout << "a game was counted and entered in " << spent.count() << " s under a lock\n";
    // A lock that lasts is told; what waits does not wait for the answer.
    game.wait_for("Tarnwick");
    sqlite3_close(holder);
    EXPECT_TRUE(eventually([&] { return game.stored("high score name 1") == "Ann"; }))
        << "with nobody's help";
    EXPECT_EQ(game.stored("games played"), "1");
    EXPECT_TRUE(game.has("Tarnwick"));
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "tests/desktop/reach.h"

namespace tarnwick {
namespace {

TEST(Endings, AClosedGameWithABestScoreStillAsksForTheName) {
    TwinGame game({tested_program(), 26});
    score_two(game);
    game.screen().key("ctrl+q");
    const XWindow dialog = game.wait_for(win_title);
    EXPECT_TRUE(game.goes(main_title));
    ASSERT_TRUE(game.gets_keyboard(dialog));
    game.screen().close(dialog);
    ASSERT_TRUE(game.gets_keyboard(game.wait_for("Scores")));
    game.screen().key("Return");
    EXPECT_EQ(game.program().exit_code(), 0);
}

TEST(Endings, AfterAnErrorThePlayerClosesTheGame) {
    TwinGame game({tested_program(), 26});
    score_two(game);
    // A number of games that is no number makes the end of a game fail.
    game.store("games played", "many");
    open(game, {"F2"}, "Error");
    // The table is not disabled by an error.
    ASSERT_TRUE(game.bring_to_front(game.window()));
    game.space();
    ASSERT_TRUE(game.bring_to_front(game.wait_for("Error")));
    // The keys are the dialog's now, and none of the table's menus answers.
    game.screen().key("ctrl+q");
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_TRUE(game.has(main_title));
    game.screen().key("Tab");
    game.screen().key("space");
    EXPECT_EQ(game.program().exit_code(), 0);
    EXPECT_EQ(game.stored("games played"), "many");
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "state/variables.h"
#include "tests/desktop/tested_program.h"
#include "tools/driver/board_picture.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

const char* const program = tested_program();
constexpr int column_of_ace = 4;

// Scores a point for the ace, and one for the card under it.
void score_two(TwinGame& game) {
    game.click(column_of_ace);
    game.headless().desktop.advance(1000);
    ASSERT_EQ(score, 2);
    ASSERT_EQ(board_faults(game), "");
}

TEST(Endings, AClosedGameWithABestScoreStillAsksForTheName) {
    TwinGame game({program, 26});
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
    // A number of games that is no number makes the end of a game fail.
    TwinGame game({program, 26});
    score_two(game);
    game.store("games played", "many");
    game.screen().key("F2");
    ASSERT_TRUE(game.gets_keyboard(game.wait_for("Error")));
    // The table is not disabled by an error.
    ASSERT_TRUE(game.bring_to_front(game.window()));
    game.space();
    EXPECT_TRUE(game.has("Error"));
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

#include <gtest/gtest.h>

#include <QDate>
#include <QLocale>

#include "notation/record_text.h"
#include "platform/key_codes.h"
#include "state/variables.h"
#include "tests/store/scratch_folder.h"
#include "tools/driver/board_picture.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

void act(TwinGame& game, const Action& action) {
    if (action.kind == ActionKind::turn) return game.space();
    action.source == action.target ? game.click(action.source) : game.drag(action.source, action.target);
}

TEST(WinningGame, IsPlayedToTheNameAndTheNextDeal) {
    std::vector<Action> record = parse_record(ScratchFolder::contents(TARNWICK_WINNING_GAME));
    TwinGame game({TARNWICK_PROGRAM, record[0].deal, {{"anamate", "False"}}});
    record.erase(record.begin());
    int done = 0;
    for (const Action& action : record) {
        ASSERT_FALSE(frmyouwin.visible()) << "the game is over before it is";
        act(game, action);
        constexpr int often_enough = 40;
        // The ace of Spades glints after it has moved.
        game.headless().desktop.advance(400);
        if (++done % often_enough == 0 && !frmyouwin.visible()) {
            ASSERT_EQ(board_faults(game), "") << "after action " << done;
        }
    }
    ASSERT_TRUE(frmyouwin.lblYouWin.visible()) << "the game is not won";
    const XWindow dialog = game.wait_for(win_title);
    ASSERT_TRUE(game.gets_keyboard(dialog));
    EXPECT_EQ(game.stored("games won"), "1");
    EXPECT_EQ(game.stored("high score 1"), "-") << "stored before the name is known";
    game.screen().type("Ann Other");
    game.screen().key("Return");

    const XWindow scores = game.wait_for("Scores");
    EXPECT_TRUE(game.goes(win_title));
    ASSERT_TRUE(game.gets_keyboard(scores));
    EXPECT_EQ(game.stored("high score 1"), "200");
    EXPECT_EQ(game.stored("high score name 1"), "Ann Other");
    EXPECT_EQ(game.stored("high score date 1"),
              QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString());
    EXPECT_EQ(game.stored("high score 2"), "0");
    EXPECT_EQ(game.stored("games played"), "1");
    EXPECT_EQ(game.stored("average score"), "200");
    game.screen().key("Return");
    EXPECT_TRUE(game.goes("Scores"));

    frmyouwin.txtYourName.key_down(enter_key);
    frmBestScore.cmdOk.click();
    ASSERT_EQ(score, 0);
    EXPECT_TRUE(game.gets_keyboard(game.window()));
    EXPECT_EQ(board_faults(game), "") << "the next deal";
    game.space();
    EXPECT_EQ(board_faults(game), "") << "the next game's first turn";
}

}  // namespace
}  // namespace tarnwick

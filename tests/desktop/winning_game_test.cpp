#include <gtest/gtest.h>

#include <QDate>
#include <QLocale>

#include "notation/record_text.h"
#include "platform/key_codes.h"
#include "state/variables.h"
#include "tests/store/scratch_folder.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

void act(TwinGame& game, const Action& action) {
    if (action.kind == ActionKind::turn) return game.space();
    action.source == action.target ? game.click(action.source) : game.drag(action.source, action.target);
}

// The card that is played next slides, and the game that it wins is celebrated.
void celebrate(TwinGame& game) {
    game.store("anamate", "True");
    game.headless().save("anamate", "True");
}

// Whether something lies in the middle of the board, where the table is bare.
bool shows_celebration(const TwinGame& game) {
    const QImage seen = image_of(game.board_pixels());
    const QImage bare = expected_board();
    const QRect middle(bare.width() / 2 - 20, bare.height() / 2 - 20, 40, 40);
    return seen.size() == bare.size() && seen.copy(middle) != bare.copy(middle);
}

TEST(WinningGame, IsPlayedToTheNameAndTheNextDeal) {
    std::vector<Action> record = parse_record(ScratchFolder::contents(TARNWICK_WINNING_GAME));
    TwinGame game({TARNWICK_PROGRAM, record[0].deal, {{"anamate", "False"}}});
    record.erase(record.begin());
    int done = 0;
    for (const Action& action : record) {
        if (&action == &record.back()) celebrate(game);
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
    ASSERT_TRUE(eventually([&] { return game.stored("games won") == "1"; }));
    EXPECT_EQ(game.stored("high score 1"), "-") << "stored before the name is known";
    EXPECT_TRUE(eventually([&] { return shows_celebration(game); }));
    EXPECT_FALSE(game.has(win_title)) << "not seen before it is over";
    // What ends it is the first letter of the name, whichever window the others find.
    game.screen().type("Ann Other");
    const XWindow dialog = game.wait_for(win_title);
    ASSERT_TRUE(game.gets_keyboard(dialog));
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

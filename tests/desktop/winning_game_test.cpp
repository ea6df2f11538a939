#include <gtest/gtest.h>

#include <QDate>
#include <QLocale>
#include <fstream>
#include <sstream>

#include "state/variables.h"
#include "tools/driver/board_picture.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int enter_key = 13;

struct Record {
    std::uint32_t deal = 0;
    std::vector<std::string> actions;
};

Record read_record(const std::string& file) {
    Record record;
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line[0] == '#') continue;
        if (line.rfind("deal ", 0) == 0) {
            record.deal = static_cast<std::uint32_t>(std::stoul(line.substr(5)));
        } else {
            record.actions.push_back(line);
        }
    }
    return record;
}

void act(TwinGame& game, const std::string& line) {
    std::istringstream words(line);
    std::string action;
    int from = 0;
    int to = 0;
    words >> action >> from >> to;
    if (action == "turn") {
        game.space();
    } else if (action == "click") {
        game.click(from);
    } else if (action == "drag") {
        game.drag(from, to);
    } else {
        FAIL() << "cannot do \"" << line << '"';
    }
}

TEST(WinningGame, IsPlayedToTheNameAndTheNextDeal) {
    const Record record = read_record(TARNWICK_WINNING_GAME);
    ASSERT_FALSE(record.actions.empty());
    TwinGame game({TARNWICK_PROGRAM, record.deal, {{"anamate", "False"}}});
    int done = 0;
    for (const std::string& action : record.actions) {
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

#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

TEST(Statistics, ShowAnEmptyStoreAsNothingPlayed) {
    Play play;
    play.start();
    frmcards.mnuScore.choose();
    EXPECT_EQ(frmBestScore.lblGamesPlayed.caption(), "0");
    EXPECT_EQ(frmBestScore.lblGamesWon.caption(), "0");
    EXPECT_EQ(frmBestScore.lblAverageScore.caption(), "");
    for (int place = 1; place <= 5; ++place) {
        EXPECT_EQ(frmBestScore.lblHighScore(place).caption(), "0");
        EXPECT_EQ(frmBestScore.lblHighScoreName(place).caption(), "");
        EXPECT_EQ(frmBestScore.lblHighScoreDate(place).caption(), "");
    }
    EXPECT_FALSE(frmBestScore.shpBestSquare.visible());
}

TEST(Statistics, RoundTheAverageToOneDecimal) {
    const struct {
        const char* total;
        const char* played;
        const char* average;
    } cases[] = {{"120", "2", "60"}, {"127", "2", "63.5"}, {"100", "3", "33.3"}, {"200", "3", "66.7"},
                 {"1", "4", "0.2"},  {"3", "4", "0.8"},    {"5", "0", ""},       {"0", "7", "0"}};
    for (const auto& [total, played, average] : cases) {
        Play play;
        play.save("average score", total);
        play.save("games played", played);
        play.start();
        frmcards.mnuScore.choose();
        EXPECT_EQ(frmBestScore.lblAverageScore.caption(), average) << total << " / " << played;
    }
}

TEST(Statistics, OpenedFromTheMenuLeaveTheGameAlone) {
    const auto ways_to_close = {+[] { frmBestScore.cmdOk.click(); }, +[] { frmBestScore.click_background(); },
                                +[] { frmBestScore.close(); }};
    for (const auto close : ways_to_close) {
        Play play;
        play.start();
        const std::string deal = position_text();
        frmcards.mnuScore.choose();
        EXPECT_FALSE(frmcards.enabled());
        // The disabled table takes no input at all.
        play.click_stock();
        play.space();
        frmcards.mnuNew.choose();
        frmcards.close();
        EXPECT_EQ(position_text(), deal);
        close();
        EXPECT_FALSE(frmBestScore.loaded());
        EXPECT_TRUE(frmcards.accepts_input());
        EXPECT_EQ(position_text(), deal) << "no new deal";
    }
}

TEST(Statistics, AreClearedExceptForTheGamesWonWhenThePlayerAgrees) {
    for (const MessageAnswer answer : {MessageAnswer::cancel, MessageAnswer::ok}) {
        const bool cleared = answer == MessageAnswer::ok;
        Play play;
        play.save("average score", "120");
        play.save("games played", "2");
        play.save("games won", "1");
        for (int place = 1; place <= 5; ++place) {
            play.save("high score " + std::to_string(place), "60");
            play.save("high score name " + std::to_string(place), "A");
            play.save("high score date " + std::to_string(place), "1/1/2000");
        }
        play.start();
        frmcards.mnuScore.choose();
        play.desktop.answer_message(answer);
        frmBestScore.cmdClearScore.click();
        ASSERT_EQ(play.desktop.messages().size(), 1U);
        EXPECT_EQ(play.desktop.messages()[0].title, "Clear Scores?");
        EXPECT_EQ(play.desktop.messages()[0].buttons, MessageButtons::ok_cancel);
        EXPECT_EQ(play.message(), "Are you sure you want to clear the high scores?");
        EXPECT_EQ(play.stored("average score"), cleared ? "0" : "120");
        EXPECT_EQ(play.stored("games played"), cleared ? "0" : "2");
        EXPECT_EQ(play.stored("games won"), "1");
        EXPECT_EQ(frmBestScore.lblGamesPlayed.caption(), cleared ? "" : "2");
        EXPECT_EQ(frmBestScore.lblAverageScore.caption(), cleared ? "" : "60");
        EXPECT_EQ(frmBestScore.lblGamesWon.caption(), "1");
        for (int place = 1; place <= 5; ++place) {
            EXPECT_EQ(play.stored("high score " + std::to_string(place)), cleared ? "0" : "60");
            EXPECT_EQ(play.stored("high score name " + std::to_string(place)), cleared ? "" : "A");
            EXPECT_EQ(play.stored("high score date " + std::to_string(place)), cleared ? "" : "1/1/2000");
            EXPECT_EQ(frmBestScore.lblHighScore(place).caption(), cleared ? "0" : "60");
            EXPECT_EQ(frmBestScore.lblHighScoreName(place).caption(), cleared ? "" : "A");
        }
        EXPECT_TRUE(frmBestScore.visible());
    }
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// What the dialog says: games played and won, the average, and the best scores with names and dates.
std::string statistics() {
    std::string text = frmBestScore.lblGamesPlayed.caption() + " played, " +
                       frmBestScore.lblGamesWon.caption() + " won, " + frmBestScore.lblAverageScore.caption();
    for (int place = 1; place <= 5; ++place) {
        text += "; " + frmBestScore.lblHighScore(place).caption() + ' ' +
                frmBestScore.lblHighScoreName(place).caption() + ' ' +
                frmBestScore.lblHighScoreDate(place).caption();
    }
    return text;
}

TEST(Statistics, RoundTheAverageToOneDecimal) {
    const struct {
        const char* total;
        const char* played;
        const char* average;
    } cases[] = {{"120", "2", "60"},
                 {"127", "2", "63.5"},
                 {"200", "3", "66.7"},
                 {"1", "4", "0.2"},
                 {"5", "0", ""},
                 {"0", "7", "0"}};
    for (const auto& [total, played, average] : cases) {
        Play play;
        play.save("average score", total);
        play.save("games played", played);
        play.start();
        frmcards.mnuScore.choose();
        EXPECT_EQ(statistics(),
                  std::string(played) + " played, 0 won, " + average + "; 0  ; 0  ; 0  ; 0  ; 0  ");
        EXPECT_FALSE(frmBestScore.shpBestSquare.visible());
    }
}

TEST(Statistics, AreClosedByAClickBesideTheButtons) {
    Play play;
    play.start();
    frmcards.mnuScore.choose();
    play.space();
    frmBestScore.click_background();
    EXPECT_FALSE(frmBestScore.loaded());
    EXPECT_TRUE(frmcards.accepts_input());
    EXPECT_EQ(turned_slot(), -1) << "the disabled table takes no input";
}

TEST(Statistics, AreClearedExceptForTheGamesWonWhenThePlayerAgrees) {
    for (const MessageAnswer answer : {MessageAnswer::cancel, MessageAnswer::ok}) {
        Play play;
        play.save("average score", "120");
        play.save("games played", "2");
        play.save("games won", "1");
        for (int place = 1; place <= 5; ++place) {
            play.save("high score " + std::to_string(place), "60");
            play.save("high score name " + std::to_string(place), "A");
            play.save("high score date " + std::to_string(place), "1/1");
        }
        play.start();
        frmcards.mnuScore.choose();
        const std::string before = statistics();
        EXPECT_EQ(before, "2 played, 1 won, 60; 60 A 1/1; 60 A 1/1; 60 A 1/1; 60 A 1/1; 60 A 1/1");
        play.desktop.answer_message(answer);
        frmBestScore.cmdClearScore.click();
        ASSERT_EQ(play.desktop.messages().size(), 1U);
        EXPECT_EQ(play.desktop.messages()[0].title, "Clear Scores?");
        EXPECT_EQ(play.desktop.messages()[0].buttons, MessageButtons::ok_cancel);
        EXPECT_EQ(play.message(), "Are you sure you want to clear the high scores?");
        const bool cleared = answer == MessageAnswer::ok;
        EXPECT_EQ(statistics(), cleared ? " played, 1 won, ; 0  ; 0  ; 0  ; 0  ; 0  " : before);
        EXPECT_EQ(play.stored("games played") + play.stored("average score"), cleared ? "00" : "2120");
        EXPECT_EQ(play.stored("games won"), "1");
        frmBestScore.close();
        frmcards.mnuScore.choose();
        EXPECT_EQ(statistics(), cleared ? "0 played, 1 won, ; 0  ; 0  ; 0  ; 0  ; 0  " : before);
    }
}

}  // namespace
}  // namespace tarnwick

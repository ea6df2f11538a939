#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int enter_key = 13;

std::string key(const char* name, int place) { return std::string(name) + std::to_string(place); }

// Stores best scores, the best first, of players called A, B, C ...
void store_table(Play& play, const std::vector<int>& scores) {
    for (std::size_t i = 0; i < scores.size(); ++i) {
        const int place = static_cast<int>(i) + 1;
        play.save(key("high score ", place), std::to_string(scores[i]));
        play.save(key("high score name ", place), std::string(1, static_cast<char>('A' + i)));
        play.save(key("high score date ", place), "1/1/1999");
    }
}

// The stored table as "90 A, 50 B, ..."
std::string table(Play& play) {
    std::string text;
    for (int place = 1; place <= 5; ++place) {
        text += (place > 1 ? ", " : "") + play.stored(key("high score ", place)) + " " +
                play.stored(key("high score name ", place));
    }
    return text;
}

void start_with_score(Play& play, int points) {
    play.start();
    set_position("0: 7♠\nscore: " + std::to_string(points));
}

void enter_name(const char* name) {
    frmyouwin.txtYourName.type(name);
    EXPECT_FALSE(frmyouwin.txtYourName.key_down('x'));
    EXPECT_TRUE(frmyouwin.txtYourName.key_down(enter_key));
}

TEST(EndOfGame, EntersTheScoreWhereItBelongs) {
    const struct {
        int score;
        const char* table;
        int marked_top;  // twips; 0: the dialogs do not appear
    } cases[] = {
        {95, "95 New, 90 A, 70 B, 50 C, 30 D", 480},  {90, "90 New, 90 A, 70 B, 50 C, 30 D", 480},
        {89, "90 A, 89 New, 70 B, 50 C, 30 D", 840},  {50, "90 A, 70 B, 50 New, 50 C, 30 D", 1200},
        {30, "90 A, 70 B, 50 C, 30 New, 30 D", 1560}, {10, "90 A, 70 B, 50 C, 30 D, 10 New", 1920},
        {9, "90 A, 70 B, 50 C, 30 D, 10 E", 0},
    };
    for (const auto& [points, expected, marked_top] : cases) {
        Play play;
        play.desktop.set_date("31/12/2024");
        store_table(play, {90, 70, 50, 30, 10});
        start_with_score(play, points);
        frmcards.mnuNew.choose();
        EXPECT_EQ(frmyouwin.visible(), marked_top != 0) << points;
        EXPECT_EQ(frmcards.enabled(), marked_top == 0) << points;
        if (marked_top != 0) {
            EXPECT_TRUE(frmyouwin.lblNewHighScore.visible());
            EXPECT_FALSE(frmyouwin.lblYouWin.visible());
            EXPECT_TRUE(shows("0: 7♠")) << "the table stays until the dialogs are closed";
            enter_name("New");
            EXPECT_FALSE(frmyouwin.loaded());
            EXPECT_TRUE(frmBestScore.shpBestSquare.visible());
            EXPECT_EQ(frmBestScore.shpBestSquare.top(), pixels(marked_top)) << points;
            EXPECT_EQ(play.stored(key("high score date ", (marked_top - 120) / 360)), "31/12/2024");
            frmBestScore.cmdOk.click();
        }
        EXPECT_EQ(table(play), expected);
        EXPECT_EQ(play.stored("games played"), "1");
        EXPECT_EQ(play.stored("average score"), std::to_string(points));
        EXPECT_EQ(play.stored("games won"), "-");
        EXPECT_TRUE(frmcards.enabled());
        EXPECT_EQ(state_faults(), "") << "a new game is dealt";
        EXPECT_EQ(display_faults(), "");
    }
}

TEST(EndOfGame, WithoutAScoreChangesNoStatistic) {
    Play play;
    play.start();
    const std::string deal = position_text();
    frmcards.mnuNew.choose();
    EXPECT_NE(position_text(), deal);
    EXPECT_EQ(play.stored("games played"), "-");
    EXPECT_FALSE(frmyouwin.visible());
}

TEST(EndOfGame, AddsUpTheScores) {
    Play play;
    store_table(play, {200, 200, 200, 200, 200});
    play.start();
    for (const int points : {50, 70}) {
        set_position("0: 7♠\nscore: " + std::to_string(points));
        frmcards.mnuNew.choose();
    }
    EXPECT_EQ(play.stored("games played"), "2");
    EXPECT_EQ(play.stored("average score"), "120");
}

TEST(EndOfGame, IsReportedWhenTheStoredStatisticsAreNoNumbers) {
    Play play;
    play.save("games played", "many");
    start_with_score(play, 20);
    frmcards.mnuNew.choose();
    EXPECT_EQ(frmError.LblError.caption(), "Fatel Error in Subroutine end_game");
    EXPECT_TRUE(shows("0: 7♠")) << "left without a new game";
    EXPECT_EQ(play.stored("games played"), "many");
}

TEST(EndOfGame, OfAGameNotWonNeverCountsAsWon) {
    Play play;
    play.start("ace 0: .. K♠ K♠'\nace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣\n5: K♣'");
    frmcards.mnuNew.choose();
    EXPECT_TRUE(frmyouwin.lblNewHighScore.visible());
    EXPECT_EQ(play.stored("games won"), "-");
}

TEST(WinDialog, ClosedWithoutEnterKeepsTheScoreAndLetsThePlayerOn) {
    Play play;
    start_with_score(play, 40);
    frmcards.mnuNew.choose();
    frmyouwin.close();
    EXPECT_TRUE(frmBestScore.visible());
    EXPECT_EQ(table(play).substr(0, 5), "40 , ") << "an empty name is stored as empty text";
    frmBestScore.close();
    EXPECT_TRUE(frmcards.enabled());
    EXPECT_EQ(state_faults(), "");
}

TEST(ShutDown, CountsTheGameInHand) {
    for (const bool by_menu : {true, false}) {
        Play play;
        store_table(play, {200, 200, 200, 200, 200});
        start_with_score(play, 40);
        by_menu ? frmcards.mnuExit.choose() : frmcards.close();
        EXPECT_FALSE(frmcards.loaded());
        EXPECT_EQ(play.stored("games played"), "1");
    }
}

TEST(ShutDown, WithABestScoreInHandStillAsksForTheName) {
    Play play;
    start_with_score(play, 40);
    frmcards.mnuExit.choose();
    EXPECT_FALSE(frmcards.loaded());
    ASSERT_TRUE(frmyouwin.visible());
    enter_name("Last");
    EXPECT_EQ(table(play).substr(0, 7), "40 Last");
    frmBestScore.cmdOk.click();
    EXPECT_FALSE(frmBestScore.loaded());
    EXPECT_FALSE(frmcards.loaded()) << "nothing is dealt any more";
    EXPECT_EQ(play.message(), "");
}

}  // namespace
}  // namespace tarnwick

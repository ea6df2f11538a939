#include <gtest/gtest.h>

#include <functional>

#include "board/display.h"
#include "game/end_game.h"
#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tools/driver/play.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int enter_key = 13;

std::string key(const char* name, int place) { return std::string(name) + std::to_string(place); }

class EndOfGame : public testing::Test {
  protected:
    // Begins with best scores of players called A, B, C ...
    void start(const std::vector<int>& scores, int points) {
        for (std::size_t i = 0; i < scores.size(); ++i) {
            const int place = static_cast<int>(i) + 1;
            play.save(key("high score ", place), std::to_string(scores[i]));
            play.save(key("high score name ", place), std::string(1, static_cast<char>('A' + i)));
        }
        play.start();
        set_position("0: 7♠\nscore: " + std::to_string(points));
    }
    // The stored table as "90 A, 50 B, ..."
    std::string table() {
        std::string text;
        for (int place = 1; place <= 5; ++place) {
            text += (place > 1 ? ", " : "") + play.stored(key("high score ", place)) + " " +
                    play.stored(key("high score name ", place));
        }
        return text;
    }
    static void enter_name(const char* name) {
        frmyouwin.txtYourName.type(name);
        EXPECT_FALSE(frmyouwin.txtYourName.key_down('x'));
        EXPECT_TRUE(frmyouwin.txtYourName.key_down(enter_key));
    }

    Play play;
};

struct Result {
    int score;
    const char* table;
    int marked_top;  // twips; 0: the dialogs do not appear
};

class ScoreTable : public EndOfGame, public testing::WithParamInterface<Result> {};

TEST_P(ScoreTable, TakesTheScoreWhereItBelongs) {
    const auto& [points, expected, marked_top] = GetParam();
    play.desktop.set_date("31/12/2024");
    start({90, 70, 50, 30, 10}, points);
    frmcards.mnuNew.choose();
    EXPECT_EQ(frmyouwin.visible(), marked_top != 0);
    EXPECT_EQ(frmcards.enabled(), marked_top == 0);
    if (marked_top != 0) {
        EXPECT_TRUE(frmyouwin.lblNewHighScore.visible() && !frmyouwin.lblYouWin.visible());
        EXPECT_TRUE(shows("0: 7♠")) << "the table stays until the dialogs are closed";
        enter_name("New");
        EXPECT_TRUE(frmBestScore.shpBestSquare.visible());
        EXPECT_EQ(frmBestScore.shpBestSquare.top(), pixels(marked_top));
        EXPECT_EQ(play.stored(key("high score date ", (marked_top - 120) / 360)), "31/12/2024");
        frmBestScore.cmdOk.click();
    }
    EXPECT_EQ(table(), expected);
    EXPECT_EQ(play.stored("games played"), "1");
    EXPECT_EQ(play.stored("average score"), std::to_string(points));
    EXPECT_EQ(play.stored("games won"), "-");
    EXPECT_TRUE(frmcards.enabled());
    EXPECT_EQ(state_faults() + display_faults(), "") << "a new game is dealt";
    set_position("0: 7♠\nscore: 5");
    frmcards.mnuNew.choose();
    EXPECT_EQ(play.stored("games played"), "2");
    EXPECT_EQ(play.stored("average score"), std::to_string(points + 5));
    frmcards.mnuNew.choose();
    EXPECT_EQ(play.stored("games played"), "2") << "a game without a point is not counted";
}

INSTANTIATE_TEST_SUITE_P(Places, ScoreTable,
                         testing::Values(Result{95, "95 New, 90 A, 70 B, 50 C, 30 D", 480},
                                         Result{90, "90 New, 90 A, 70 B, 50 C, 30 D", 480},
                                         Result{89, "90 A, 89 New, 70 B, 50 C, 30 D", 840},
                                         Result{10, "90 A, 70 B, 50 C, 30 D, 10 New", 1920},
                                         Result{9, "90 A, 70 B, 50 C, 30 D, 10 E", 0}));

TEST_F(EndOfGame, WithoutANameKeepsTheScoreAndLetsThePlayerOn) {
    start({}, 40);
    frmcards.mnuNew.choose();
    frmyouwin.close();
    EXPECT_TRUE(frmBestScore.visible());
    EXPECT_EQ(table().substr(0, 5), "40 , ") << "an empty name is stored as empty text";
    frmBestScore.close();
    EXPECT_TRUE(frmcards.enabled());
    EXPECT_EQ(state_faults(), "");
}

TEST_F(EndOfGame, IsCountedOnceWhenTheGameIsClosedBehindItsDialogs) {
    start({}, 40);
    frmcards.mnuNew.choose();
    end_game();
    enter_name("New");
    end_game();
    redisplay_column(10);
    frmError.Command2.click();
    EXPECT_EQ(play.stored("games played"), "1");
}

TEST_F(EndOfGame, ByShutDownCountsTheGameAndStillAsksForTheName) {
    start({}, 40);
    frmcards.mnuExit.choose();
    EXPECT_FALSE(frmcards.loaded());
    EXPECT_EQ(play.stored("games played"), "1");
    ASSERT_TRUE(frmyouwin.visible());
    enter_name("Last");
    EXPECT_EQ(table().substr(0, 7), "40 Last");
    frmBestScore.cmdOk.click();
    EXPECT_FALSE(frmBestScore.loaded() || frmcards.loaded()) << "nothing is dealt any more";
}

TEST_F(EndOfGame, WithoutThePlayerCountsTheGameAndRecordsTheNameTypedSoFar) {
    struct {
        const char* name;
        std::function<void()> before;
        const char* table;
    } const cases[] = {
        {"a game in hand", [] {}, "40 "},
        {"a low score", [] { score = 9; }, "90 A"},
        {"behind the settings", [] { frmcards.mnuSetings.choose(); }, "40 "},
        {"behind an error", [] { redisplay_column(10); }, "40 "},
        {"a name half typed",
         [] {
             frmcards.mnuNew.choose();
             frmyouwin.txtYourName.type("Ann");
         },
         "40 Ann"},
        {"a name half typed after the main window",
         [] {
             frmcards.mnuExit.choose();
             frmyouwin.txtYourName.type("Ann");
         },
         "40 Ann"},
        {"the table of the entry",
         [] {
             frmcards.mnuNew.choose();
             enter_name("Bob");
         },
         "40 Bob"},
    };
    for (const auto& [name, before, expected] : cases) {
        SCOPED_TRACE(name);
        Play other;
        const bool low = std::string(expected) == "90 A";
        for (int place = 1; low && place <= 5; ++place) other.save(key("high score ", place), "90");
        if (low) other.save("high score name 1", "A");
        other.start();
        set_position("0: 7♠\nscore: 40");
        before();
        shut_down_program();
        EXPECT_FALSE(frmcards.loaded() || frmyouwin.loaded() || frmBestScore.loaded() || frmError.loaded());
        EXPECT_EQ(other.stored("games played"), "1");
        EXPECT_EQ(other.stored("average score"), low ? "9" : "40");
        EXPECT_EQ(other.stored("high score 1") + ' ' + (low ? "A" : other.stored("high score name 1")),
                  expected);
        EXPECT_EQ(other.stored("high score 2"), low ? "90" : "0");
        EXPECT_EQ(other.message(), "");
    }
}

TEST_F(EndOfGame, CountsAFinishedGameOnceOrNotAtAll) {
    start({90, 70, 50, 30, 10}, 40);
    play.save("high score 4", "lots");
    for (int i = 0; i < 3; ++i) {
        frmcards.mnuNew.choose();
        EXPECT_TRUE(frmError.visible());
        frmError.Command1.click();
        EXPECT_EQ(play.stored("games played") + play.stored("average score"), "--") << "nothing is counted";
        EXPECT_TRUE(shows("0: 7♠"));
    }
    play.save("high score 4", "30");
    frmcards.mnuNew.choose();
    enter_name("New");
    EXPECT_EQ(play.stored("games played") + ' ' + play.stored("average score"), "1 40");
    EXPECT_EQ(table(), "90 A, 70 B, 50 C, 40 New, 30 D");
}

TEST_F(EndOfGame, FindsThePlaceOfAnEntryWhenItIsEntered) {
    // Another window enters a score while the name is typed.
    for (const int other : {60, 20}) {
        start({90, 70, 50, 30, 10}, 40);
        frmcards.mnuNew.choose();
        play.save("high score 5", "30");
        play.save("high score 4", other == 60 ? "50" : "30");
        play.save("high score 3", other == 60 ? "60" : "50");
        enter_name("New");
        const int place = other == 60 ? 5 : 4;
        EXPECT_EQ(play.stored(key("high score name ", place)), "New");
        EXPECT_EQ(frmBestScore.shpBestSquare.top(), pixels(120 + 360 * place));
        frmBestScore.cmdOk.click();
        end_program();
    }
    start({90, 70, 50, 30, 10}, 20);
    frmcards.mnuNew.choose();
    play.save("high score 5", "21");
    enter_name("New");
    EXPECT_NE(play.message().find("Your score of 20 is not among the best"), std::string::npos);
    EXPECT_FALSE(frmBestScore.loaded());
    EXPECT_TRUE(frmcards.accepts_input());
    EXPECT_EQ(state_faults(), "") << "the next game is dealt";
    EXPECT_EQ(play.stored("high score 5"), "21");
}

TEST_F(EndOfGame, ShowsTheEntryInATableThatIsOpenAlready) {
    start({}, 40);
    frmBestScore.load();
    frmBestScore.show();
    frmcards.mnuNew.choose();
    enter_name("New");
    EXPECT_EQ(frmBestScore.lblHighScoreName(1).caption(), "New");
    EXPECT_TRUE(frmBestScore.shpBestSquare.visible());
    EXPECT_EQ(high_score_place, none);
    frmBestScore.cmdOk.click();
    EXPECT_EQ(state_faults(), "") << "the next game is dealt";
}

}  // namespace
}  // namespace tarnwick

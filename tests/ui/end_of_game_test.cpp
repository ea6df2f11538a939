#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "board/display.h"
#include "game/end_game.h"
#include "notation/position.h"
#include "platform/key_codes.h"
#include "platform/random.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

std::string key(const char* name, int place) { return std::string(name) + std::to_string(place); }

struct Game : Play {
    // Begins with best scores of players called A, B, C ...
    void start(const std::vector<int>& scores, int points) {
        int place = 0;
        for (const int best : scores) {
            const char name = static_cast<char>('A' + place++);
            save(key("high score ", place), std::to_string(best));
            save(key("high score name ", place), std::string(1, name));
        }
        Play::start();
        set_position("0: 7♠\nscore: " + std::to_string(points));
    }
    // The stored table as "90 A, 50 B, ..."
    std::string table() {
        std::string text;
        for (int place = 1; place <= 5; ++place) {
            text += (place > 1 ? ", " : "") + stored(key("high score ", place)) + " " +
                    stored(key("high score name ", place));
        }
        return text;
    }
    // The number of games, and the sum of their scores.
    std::string counted() { return stored("games played") + ' ' + stored("average score"); }
};

void enter_name(const char* name) {
    frmyouwin.txtYourName.type(name);
    EXPECT_FALSE(frmyouwin.txtYourName.key_down('x'));
    EXPECT_TRUE(frmyouwin.txtYourName.key_down(enter_key));
}

struct EndOfGame : testing::Test {
    Game play;
};

TEST(ScoreTable, TakesTheScoreWhereItBelongs) {
    const struct {
        int points;
        const char* table;
        int place;  // 0: the dialogs do not appear
    } cases[] = {{95, "95 New, 90 A, 70 B, 50 C, 30 D", 1},
                 {90, "90 New, 90 A, 70 B, 50 C, 30 D", 1},
                 {89, "90 A, 89 New, 70 B, 50 C, 30 D", 2},
                 {10, "90 A, 70 B, 50 C, 30 D, 10 New", 5},
                 {9, "90 A, 70 B, 50 C, 30 D, 10 E", 0}};
    for (const auto& [points, expected, place] : cases) {
        SCOPED_TRACE(points);
        Game play;
        play.desktop.set_date("31/12/2024");
        play.start({90, 70, 50, 30, 10}, points);
        frmcards.mnuNew.choose();
        EXPECT_EQ(frmyouwin.visible(), place != 0);
        EXPECT_EQ(frmcards.enabled(), place == 0);
        if (place != 0) {
            EXPECT_TRUE(frmyouwin.lblNewHighScore.visible() && !frmyouwin.lblYouWin.visible());
            EXPECT_TRUE(shows("0: 7♠")) << "the table stays until the dialogs are closed";
            enter_name("New");
            EXPECT_TRUE(frmBestScore.shpBestSquare.visible());
            EXPECT_EQ(frmBestScore.shpBestSquare.top(), pixels(120 + 360 * place));
            EXPECT_EQ(play.stored(key("high score date ", place)), "31/12/2024");
            frmBestScore.cmdOk.click();
        }
        EXPECT_EQ(play.table(), expected);
        EXPECT_EQ(play.counted(), "1 " + std::to_string(points));
        EXPECT_EQ(play.stored("games won"), "-");
        EXPECT_TRUE(frmcards.enabled());
        EXPECT_EQ(state_faults() + display_faults(), "") << "a new game is dealt";
        set_position("0: 7♠\nscore: 5");
        frmcards.mnuNew.choose();
        frmcards.mnuNew.choose();
        EXPECT_EQ(play.counted(), "2 " + std::to_string(points + 5)) << "not one without a point";
    }
}

TEST_F(EndOfGame, IsCountedOnceWhenTheGameIsClosedBehindItsDialogs) {
    play.start({}, 40);
    frmcards.mnuNew.choose();
    end_game();
    enter_name("Bob");
    end_game();
    redisplay_column(10);
    frmError.Command2.click();
    EXPECT_EQ(play.counted(), "1 40");
    EXPECT_EQ(play.table().find("40 Bob, 0 "), 0U) << play.table();
}

TEST_F(EndOfGame, ByShutDownCountsTheGameAndStillAsksForTheName) {
    play.start({}, 40);
    frmcards.mnuExit.choose();
    EXPECT_FALSE(frmcards.loaded());
    EXPECT_EQ(play.stored("games played"), "1");
    ASSERT_TRUE(frmyouwin.visible());
    enter_name("Last");
    EXPECT_EQ(play.table().substr(0, 7), "40 Last");
    frmBestScore.cmdOk.click();
    EXPECT_FALSE(frmBestScore.loaded() || frmcards.loaded()) << "nothing is dealt any more";
}

void type_half_a_name(MenuEntry& entry) {
    entry.choose();
    frmyouwin.txtYourName.type("Ann");
}

TEST(EndOfGameWithoutThePlayer, CountsTheGameAndRecordsTheNameTypedSoFar) {
    const struct {
        const char* name;
        std::function<void()> before;
        const char* table;
    } cases[] = {
        {"a game in hand", [] {}, "40 , 0 "},
        {"a low score", [] { score = 9; }, "90 A, 90 B"},
        {"behind the settings", [] { frmcards.mnuSetings.choose(); }, "40 , 0 "},
        {"behind an error", [] { redisplay_column(10); }, "40 , 0 "},
        {"a name half typed", [] { type_half_a_name(frmcards.mnuNew); }, "40 Ann, 0 "},
        {"after the main window", [] { type_half_a_name(frmcards.mnuExit); }, "40 Ann, 0 "},
    };
    for (const auto& [name, before, table] : cases) {
        SCOPED_TRACE(name);
        Game play;
        const bool low = table[0] == '9';
        play.start(low ? std::vector{90, 90, 90, 90, 90} : std::vector<int>{}, 40);
        before();
        const bool table_is_free = frmcards.enabled();
        const std::uint64_t deals = random_generator().seedings();
        shut_down_program();
        EXPECT_FALSE(frmcards.loaded() || frmyouwin.loaded() || frmBestScore.loaded() || frmError.loaded());
        EXPECT_EQ(play.counted(), low ? "1 9" : "1 40");
        EXPECT_EQ(play.table().find(table), 0U) << play.table();
        EXPECT_EQ(play.message(), "");
        EXPECT_EQ(random_generator().seedings() - deals, table_is_free ? 1 : 0) << "none behind a dialog";
    }
}

TEST_F(EndOfGame, CountsAFinishedGameOnceOrNotAtAll) {
    play.start({90, 70, 50, 30, 10}, 40);
    play.save("high score 4", "lots");
    for (int i = 0; i < 3; ++i) {
        frmcards.mnuNew.choose();
        EXPECT_TRUE(frmError.visible());
        frmError.Command1.click();
        EXPECT_EQ(play.counted(), "- -");
        EXPECT_TRUE(shows("0: 7♠"));
    }
    play.save("high score 4", "30");
    frmcards.mnuNew.choose();
    enter_name("New");
    EXPECT_EQ(play.counted(), "1 40");
    EXPECT_EQ(play.table(), "90 A, 70 B, 50 C, 40 New, 30 D");
}

TEST_F(EndOfGame, FindsThePlaceOfAnEntryWhenItIsEntered) {
    // Another window enters a score while the name is typed.
    for (const auto& [third, fourth, place] : {std::array{"60", "50", "5"}, {"50", "30", "4"}}) {
        play.start({90, 70, 50, 30, 10}, 40);
        frmcards.mnuNew.choose();
        play.save("high score 5", "30");
        play.save("high score 4", fourth);
        play.save("high score 3", third);
        enter_name("New");
        EXPECT_EQ(play.stored(std::string("high score name ") + place), "New");
        EXPECT_EQ(frmBestScore.shpBestSquare.top(), pixels(120 + 360 * (place[0] - '0')));
        frmBestScore.cmdOk.click();
        end_program();
    }
    play.start({90, 70, 50, 30, 10}, 20);
    frmcards.mnuNew.choose();
    play.save("high score 5", "21");
    enter_name("New");
    EXPECT_NE(play.message().find("Your score of 20 is not among the best"), std::string::npos);
    EXPECT_FALSE(frmBestScore.loaded());
    EXPECT_TRUE(frmcards.accepts_input());
    EXPECT_EQ(state_faults(), "") << "the next game is dealt";
    EXPECT_EQ(play.stored("high score 5"), "21");
}

TEST_F(EndOfGame, WithoutANameKeepsTheScoreInATableThatMayBeOpenAlready) {
    for (const bool open : {false, true}) {
        play.start({}, open ? 60 : 40);
        if (open) frmBestScore.load();
        if (open) frmBestScore.show();
        frmcards.mnuNew.choose();
        frmyouwin.close();
        EXPECT_TRUE(frmBestScore.visible() && frmBestScore.shpBestSquare.visible());
        EXPECT_EQ(play.table().find(open ? "60 , 40 , 0 " : "40 , 0 "), 0U) << "an empty name is stored";
        EXPECT_EQ(frmBestScore.lblHighScore(1).caption(), open ? "60" : "40");
        EXPECT_EQ(high_score_place, none);
        frmBestScore.close();
        EXPECT_TRUE(frmcards.enabled());
        EXPECT_EQ(state_faults(), "") << "the next game is dealt";
        end_program();
    }
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr const char* last_king =
    "2: K♠'\nace 0: .. K♠\nace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\ntablet: -\n";
constexpr const char* last_two_kings =
    "2: K♠'\n3: K♥'\nace 0: .. K♠\nace 1: .. K♥\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\ntablet: -\n";

TEST(Won, ByADropEndsTheGameAtOnce) {
    Play play;
    play.start(last_king);
    play.drag(2, ace_pile(0));
    EXPECT_TRUE(frmyouwin.visible());
    EXPECT_TRUE(frmyouwin.lblYouWin.visible());
    EXPECT_FALSE(frmyouwin.lblNewHighScore.visible());
    EXPECT_FALSE(frmcards.enabled());
    EXPECT_EQ(score, 200);
    EXPECT_EQ(play.stored("games won"), "1");
    EXPECT_EQ(play.stored("average score"), "200");
}

TEST(Won, FromTheTabletWithoutSliding) {
    Play play;
    play.start("ace 0: .. K♠\nace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\ntablet: (K♠')");
    play.click(tablet_pile);
    EXPECT_TRUE(frmyouwin.lblYouWin.visible());
    EXPECT_EQ(score, 200);
}

TEST(Won, ByASlideEndsTheGameWhenTheCardHasArrived) {
    Play play;
    play.start(last_king);
    play.save("anamate", "True");
    play.click(2);
    while (frmcards.Timer3.enabled()) {
        EXPECT_FALSE(frmyouwin.visible());
        play.desktop.advance(30);
    }
    EXPECT_TRUE(frmyouwin.visible());
    EXPECT_EQ(display_faults(), "") << "the pile is laid out by then";
}

TEST(Won, ByASlideThatAnotherDropLandsEarly) {
    Play play;
    play.start(last_king);
    play.save("anamate", "True");
    play.click(2);
    play.drag(ace_pile(1), ace_pile(2));
    EXPECT_TRUE(frmyouwin.visible());
    EXPECT_EQ(play.stored("games played"), "1");
    play.desktop.advance(1000);
    EXPECT_EQ(play.stored("games played"), "1") << "counted once";
}

TEST(Won, NotWhenTheDropThatLandsTheSlideTakesAKingBack) {
    Play play;
    play.start(last_king);
    play.save("anamate", "True");
    play.click(2);
    play.drag(ace_pile(1), 5);
    EXPECT_FALSE(frmyouwin.visible());
    EXPECT_TRUE(shows("5: K♥'\nace 0: A♠ .. K♠ K♠'"));
    play.desktop.advance(1000);
    EXPECT_FALSE(frmyouwin.visible());
    play.click(5);
    play.desktop.advance(1000);
    EXPECT_TRUE(frmyouwin.visible());
}

TEST(Won, NotWhenTheWinningSlideIsUndone) {
    Play play;
    play.start(last_two_kings);
    play.save("anamate", "True");
    play.click(3);
    play.desktop.advance(1000);
    play.click(2);
    play.undo();
    EXPECT_TRUE(shows("2: K♠'\n3: -"));
    play.desktop.advance(5000);
    EXPECT_FALSE(frmyouwin.visible());
    EXPECT_EQ(score, 199);
    // Another card that slides by itself wins nothing.
    play.undo();
    play.click(3);
    play.desktop.advance(1000);
    EXPECT_FALSE(frmyouwin.visible());
    play.drag(2, ace_pile(0));
    EXPECT_TRUE(frmyouwin.visible());
    EXPECT_EQ(score, 200);
}

TEST(Won, AndDealtAnewLeavesNoUndoRecord) {
    // With five better scores stored, which there cannot be, the next game is dealt at once.
    for (const bool slides : {true, false}) {
        Play play;
        for (int place = 1; place <= 5; ++place) play.save("high score " + std::to_string(place), "500");
        play.start(last_king);
        play.save("anamate", slides ? "True" : "False");
        play.click(2);
        play.desktop.advance(1000);
        EXPECT_FALSE(frmyouwin.visible());
        EXPECT_EQ(undo_records(), "");
        EXPECT_FALSE(frmcards.mnuUndo.visible());
        EXPECT_EQ(state_faults(), "");
        EXPECT_EQ(display_faults(), "");
        EXPECT_EQ(play.stored("games played"), "1");
        EXPECT_EQ(play.stored("games won"), "-")
            << "only a game that enters the table at place 1 counts as won";
    }
}

}  // namespace
}  // namespace tarnwick

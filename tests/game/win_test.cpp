#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tools/driver/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

const std::string complete = "ace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\n";
const std::string last_king = "2: K♠'\nace 0: .. K♠\nace 1: .. K♥ K♥'\n" + complete;
const std::string king_in_tablet = "tablet: (K♠')\nace 0: .. K♠\nace 1: .. K♥ K♥'\n" + complete;
const std::string last_two_kings = "2: K♠'\n3: K♥'\nace 0: .. K♠\nace 1: .. K♥\n" + complete;

TEST(Won, ByADropEndsTheGameAtOnce) {
    for (const auto& [position, played] : {std::pair{last_king, "drag 2 ace 0"},
                                           {last_king, "drag 2 2"},
                                           {king_in_tablet, "drag tablet tablet"}}) {
        Play play;
        play.start(position);
        play.act(played);
        EXPECT_TRUE(frmyouwin.visible() && frmyouwin.lblYouWin.visible()) << played;
        EXPECT_FALSE(frmyouwin.lblNewHighScore.visible() || frmcards.enabled());
        EXPECT_EQ(play.stored("games won"), "1");
        EXPECT_EQ(play.stored("average score"), "200");
    }
}

// A card that slides to its ace pile, with what happens on its way.
class WonBySlide : public testing::Test {
  protected:
    void slide(const std::string& position, int from) {
        play.start(position);
        play.save("anamate", "True");
        play.click(from);
        ASSERT_TRUE(frmcards.Timer3.enabled());
        EXPECT_FALSE(frmyouwin.visible());
    }
    Play play;
};

TEST_F(WonBySlide, NotWhenTheDropThatLandsItTakesAKingBack) {
    slide(last_king, 2);
    play.act("drag ace 1 5");
    EXPECT_TRUE(shows("5: K♥'\nace 0: A♠ .. K♠ K♠'"));
    play.desktop.advance(1000);
    EXPECT_FALSE(frmyouwin.visible());
    play.click(5);
    play.act("drag ace 1 ace 2");
    EXPECT_TRUE(frmyouwin.visible()) << "another drop lands the King";
}

TEST_F(WonBySlide, BeforeADialogOpens) {
    slide(last_king, 2);
    frmcards.mnuScore.choose();
    EXPECT_TRUE(frmyouwin.visible() && !frmBestScore.visible());
}

TEST_F(WonBySlide, NotWhenItIsUndone) {
    slide(last_two_kings, 3);
    play.desktop.advance(1000);
    play.act("drag 2 2, undo");
    play.desktop.advance(5000);
    // Another card that slides by itself wins nothing.
    play.act("undo, drag 3 3");
    play.desktop.advance(1000);
    EXPECT_FALSE(frmyouwin.visible());
    play.act("drag 2 ace 0");
    EXPECT_TRUE(frmyouwin.visible());
    EXPECT_EQ(score, 200);
}

TEST(Won, AndDealtAnewLeavesNoUndoRecord) {
    // With five better scores stored, which there cannot be, the next game is dealt at once.
    for (const char* slides : {"True", "False"}) {
        Play play;
        for (int place = 1; place <= 5; ++place) play.save("high score " + std::to_string(place), "500");
        play.start(last_king);
        play.save("anamate", slides);
        play.click(2);
        // While the winning card slides, another can be taken up.
        frmcards.mouse().press(top_image(ace_pile(1)).left() + 30, 40);
        frmcards.mouse().move(300, 300);
        EXPECT_EQ(frmcards.mouse().dragged() != nullptr, frmcards.Timer3.enabled());
        play.desktop.advance(1000);
        EXPECT_EQ(frmcards.mouse().dragged(), nullptr);
        EXPECT_EQ(undo_records(), "");
        EXPECT_EQ(state_faults() + display_faults(), "");
        EXPECT_EQ(play.stored("games played"), "1");
        EXPECT_EQ(play.stored("games won"), "-") << "only a game that enters at place 1 counts as won";
    }
}

}  // namespace
}  // namespace tarnwick

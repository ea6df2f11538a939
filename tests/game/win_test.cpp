#include <gtest/gtest.h>

#include <functional>

#include "board/slide.h"
#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmFeatures.h"
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
        ASSERT_TRUE(slide_is_under_way());
        EXPECT_FALSE(frmyouwin.visible());
    }
    Play play;
};

TEST_F(WonBySlide, WhateverCutsTheSlideShort) {
    const struct {
        const char* name;
        std::function<void()> cut;
    } ways[] = {{"a drop that would take a King back", [this] { play.act("drag ace 1 5"); }},
                {"a drop that nobody takes", [this] { play.act("drag ace 1 ace 2"); }},
                {"undo", [this] { play.undo(); }},
                {"restart", [] { frmcards.mnuRestart.choose(); }},
                {"a new game", [] { frmcards.mnuNew.choose(); }},
                {"the best scores", [] { frmcards.mnuScore.choose(); }},
                {"the settings", [] { frmcards.mnuSetings.choose(); }},
                {"the end of the program", [] { frmcards.mnuExit.choose(); }}};
    for (const auto& [name, cut] : ways) {
        SCOPED_TRACE(name);
        for (const char* key : {"high score 1", "games played", "games won"}) play.save(key, "0");
        slide(last_king, 2);
        cut();
        EXPECT_TRUE(frmyouwin.visible() && frmyouwin.lblYouWin.visible());
        EXPECT_FALSE(frmBestScore.visible() || frmFeatures.visible());
        EXPECT_TRUE(shows("ace 0: A♠ .. K♠ K♠'"));
        const Image& landed = top_image(ace_pile(0));
        EXPECT_EQ(landed.left(), frmcards.Shape1(0).left()) << "it has landed behind the dialog";
        EXPECT_EQ(landed.top(), 10);
        play.desktop.advance(1000);
        EXPECT_EQ(play.stored("games played") + play.stored("games won"), "11") << "once";
        end_program();
    }
}

TEST_F(WonBySlide, NotByAnotherCardThatSlides) {
    slide(last_two_kings, 3);
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
        EXPECT_EQ(frmcards.mouse().dragged() != nullptr, slide_is_under_way());
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

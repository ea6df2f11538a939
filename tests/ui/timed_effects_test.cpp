#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "platform/random.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

Picture shown_by(int image) { return frmcards.Image1(image).picture(); }

TEST(Slide, TakesAStraightLineInAsManyStepsAsTheDistanceAsksFor) {
    const struct {
        const char* position;
        int from;
        int steps;
        float first_left, first_top;
    } cases[] = {
        // From the tablet 2p + 3 steps; from a column 3 and one for every 175 pixels across and down.
        {"ace 0: A♠\ntablet: 9♥ (2♠)", tablet_pile, 3, 83 + 158 / 3.0F, 10},
        {"ace 2: A♠\ntablet: 9♥ (2♠)", tablet_pile, 7, 83 + 474 / 7.0F, 10},
        {"0: 2♠\nace 3: A♠", 0, 7, 4 + 711 / 7.0F, 120 - 110 / 7.0F},
        {"3: 9♥ 8♠ 7♥ 6♠ 5♥ 4♠ 3♥ 2♠\nace 0: A♠", 3, 4, 241, 260 - 250 / 4.0F},
        {"4: A♠", 4, 3, 320 - 79 / 3.0F, 120 - 110 / 3.0F},
    };
    for (const auto& [position, from, steps, first_left, first_top] : cases) {
        Play play;
        play.start(position);
        play.save("anamate", "True");
        const Image& card = top_image(from);
        play.click(from);
        EXPECT_TRUE(frmcards.Timer3.enabled());
        EXPECT_EQ(animation(slide_steps), steps) << position;
        play.desktop.advance(30);
        EXPECT_NEAR(card.left(), first_left, 0.01) << position;
        EXPECT_NEAR(card.top(), first_top, 0.01) << position;
        play.desktop.advance(30 * (steps - 2));
        EXPECT_TRUE(frmcards.Timer3.enabled());
        play.desktop.advance(30);
        EXPECT_FALSE(frmcards.Timer3.enabled());
        EXPECT_EQ(display_faults(), "") << position;
    }
}

TEST(Slide, IsAskedForByAnAutomaticMoveOnly) {
    Play play;
    play.start("0: 2♠\n1: 2♠'\nace 3: A♠");
    play.click(0);
    EXPECT_FALSE(frmcards.Timer3.enabled()) << "animation is off";
    play.save("anamate", "True");
    play.drag(1, ace_pile(3));
    EXPECT_FALSE(frmcards.Timer3.enabled()) << "a drop";
    EXPECT_EQ(display_faults(), "");
}

TEST(Slide, LandsWhenAnotherCardIsDropped) {
    Play play;
    play.start("0: 2♠\n1: 8♦\n2: 7♠\n3: K♦\nace 3: A♠\nace 0: A♦");
    play.save("anamate", "True");
    play.click(0);
    play.desktop.advance(60);
    play.drag(2, 1);
    EXPECT_FALSE(frmcards.Timer3.enabled());
    EXPECT_TRUE(shows("1: 8♦ 7♠\nace 3: A♠ 2♠"));
    EXPECT_EQ(display_faults(), "");
}

TEST(Slide, ACardInFlightThatIsClickedHasArrived) {
    Play play;
    play.start("0: 2♠\n4: 3♥\nace 3: A♠");
    play.save("anamate", "True");
    play.click(0);
    play.desktop.advance(95);
    play.drag_image(frmcards.Image1(226), frmcards.Image1(226));
    EXPECT_TRUE(shows("0: -\nace 3: A♠ 2♠"));
    EXPECT_FALSE(frmcards.Timer3.enabled());
    EXPECT_EQ(display_faults(), "");
}

TEST(Twinkle, PlaysTenFramesWhenTheAceOfSpadesArrives) {
    Play play;
    play.start("4: A♠");
    play.desktop.advance(10);
    play.drag(4, ace_pile(1));
    for (int frame = 0; frame < twinkle_frame_count; ++frame) {
        EXPECT_EQ(shown_by(ace_of_spades_image), twinkle_picture(frame));
        play.desktop.advance(30);
    }
    EXPECT_EQ(shown_by(ace_of_spades_image), face_picture(spades, ace));
    EXPECT_EQ(frmcards.Timer1.interval(), 1000);
    frmcards.user_resized({1000, 700});
    EXPECT_EQ(shown_by(ace_of_spades_image), twinkle_picture(0)) << "a resize plays it again";
}

// Whether the twinkle starts by itself within five minutes: 1 tick in 45 would start it.
bool twinkles_now_and_then(const char* position) {
    Play play;
    play.start(position);
    for (int i = 0; i < 3000; ++i) {
        play.desktop.advance(100);
        if (animation(twinkle_frame) != no_twinkle) return true;
    }
    return false;
}

TEST(Twinkle, StartsNowAndThenOnlyWhileTheAceOfSpadesLiesOnTopOfAnAcePile) {
    EXPECT_TRUE(twinkles_now_and_then("ace 0: A♠"));
    EXPECT_TRUE(twinkles_now_and_then("ace 3: A♠"));
    EXPECT_FALSE(twinkles_now_and_then("ace 0: A♠ 2♠"));
    EXPECT_FALSE(twinkles_now_and_then("tablet: (A♠)"));
    EXPECT_FALSE(twinkles_now_and_then("5: A♠"));
}

TEST(Peek, ShowsAFaceDownCardForOneAndAHalfSeconds) {
    Play play;
    play.start("5: [2♣] [3♣] [4♦'] 9♠");
    const std::string before = position_text();
    const Picture back = shown_by(152);
    play.double_click(frmcards.Image1(152));
    EXPECT_EQ(shown_by(152), face_picture(diamonds, 3));
    play.desktop.advance(1499);
    EXPECT_EQ(shown_by(152), face_picture(diamonds, 3));
    play.desktop.advance(1);
    EXPECT_EQ(shown_by(152), back);
    play.desktop.advance(5000);
    EXPECT_EQ(display_faults(), "");
    EXPECT_EQ(position_text(), before);
}

TEST(Peek, AtASecondCardCoversTheFirstAndLastsItsFullTime) {
    Play play;
    play.start("5: [2♣] [3♣] [4♦'] 9♠");
    const Picture back = shown_by(151);
    play.double_click(frmcards.Image1(151));
    play.desktop.advance(1000);
    play.double_click(frmcards.Image1(152));
    EXPECT_EQ(shown_by(151), back);
    play.desktop.advance(1400);
    EXPECT_EQ(shown_by(152), face_picture(diamonds, 3));
    play.desktop.advance(100);
    EXPECT_EQ(shown_by(152), back);
    EXPECT_FALSE(frmcards.Timer2.enabled());
}

TEST(Peek, IsEndedByTheEndOfTheGame) {
    Play play;
    play.start("5: [2♣] [3♣] [4♦'] 9♠");
    play.save("card back", "3");
    play.double_click(frmcards.Image1(152));
    frmcards.mnuNew.choose();
    EXPECT_FALSE(frmcards.Timer2.enabled());
    EXPECT_EQ(animation(peeked_image), no_peek);
    EXPECT_EQ(shown_by(152), back_picture(3));
}

}  // namespace
}  // namespace tarnwick

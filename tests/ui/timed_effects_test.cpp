#include <gtest/gtest.h>

#include "board/peek.h"
#include "board/slide.h"
#include "board/twinkle.h"
#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
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
        {"ace 2: A♠\ntablet: 9♥ (2♠)", tablet_pile, 7, 83 + 474 / 7.0F, 10},
        {"0: 2♠\nace 3: A♠", 0, 7, 4 + 711 / 7.0F, 120 - 110 / 7.0F},
        {"3: 5♥ 4♠ 3♥ 2♠\nace 0: A♠", 3, 3, 241, 180 - 170 / 3.0F},
        {"4: A♠", 4, 3, 320 - 79 / 3.0F, 120 - 110 / 3.0F},
    };
    for (const auto& [position, from, steps, first_left, first_top] : cases) {
        Play play;
        play.start(position);
        play.click(from);
        EXPECT_FALSE(slide_is_under_way()) << "animation is off";
        play.undo();
        play.save("anamate", "True");
        const Image& card = top_image(from);
        play.click(from);
        play.desktop.advance(30);
        EXPECT_NEAR(card.left(), first_left, 0.01) << position;
        EXPECT_NEAR(card.top(), first_top, 0.01) << position;
        play.desktop.advance(std::int64_t{30} * (steps - 2));
        EXPECT_TRUE(slide_is_under_way());
        play.desktop.advance(30);
        EXPECT_FALSE(slide_is_under_way());
        EXPECT_EQ(display_faults(), "") << position;
        play.undo();
        play.drag(from, ace_pile(0));
        EXPECT_FALSE(slide_is_under_way()) << "a drop";
    }
}

// What may happen while a card is on its way; the slide is over then, or its card arrives later.
class SlideUnderWay : public testing::Test {
  protected:
    void slide(const char* position, int from, int time) {
        play.start(position);
        play.save("anamate", "True");
        play.click(from);
        play.desktop.advance(time);
        ASSERT_TRUE(slide_is_under_way());
    }
    Play play;
};

TEST_F(SlideUnderWay, LandsWhenItsCardIsClicked) {
    slide("0: 2♠\n4: 3♥\nace 3: A♠", 0, 95);
    drag_image(frmcards.Image1(226), frmcards.Image1(226));
    EXPECT_TRUE(shows("ace 3: A♠ 2♠"));
}

TEST_F(SlideUnderWay, TakesADropOnItsCardAlongToTheAcePile) {
    // Between tablet and ace piles it passes places that belong to no pile.
    slide("0: 2♠'\nace 3: A♠\ntablet: (2♠) ..", tablet_pile, 0);
    const Image& flying = frmcards.Image1(226);
    while (flying.left() <= 150) play.desktop.advance(30);
    ASSERT_TRUE(slide_is_under_way() && flying.left() < 162);
    drag_image(top_image(0), flying);
    EXPECT_TRUE(shows("ace 3: A♠ 2♠ 2♠'"));
}

TEST_F(SlideUnderWay, IsInFrontFromItsStartAndBelongsToItsPile) {
    slide("0: 2♠'\n6: [9♣] 2♠\nace 3: A♠", 6, 0);
    const Image* flying = &frmcards.Image1(226);
    EXPECT_EQ(frmcards.mouse().image_at(flying->left() + 5, flying->top() + 5), flying)
        << "before the card that was turned up";
    drag_image(top_image(0), *flying);
    EXPECT_TRUE(shows("ace 3: A♠ 2♠ 2♠'")) << "dropped on it over its column";
    slide("ace 3: A♠\ntablet: 9♣ (2♠) ..", tablet_pile, 0);
    flying = &frmcards.Image1(226);
    EXPECT_EQ(frmcards.mouse().image_at(flying->left() + 5, flying->top() + 5), flying);
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

// The interval of the twinkle's clock once it has started by itself, within five minutes: 1 tick in 45 would
// start it. 0 when it has not.
int twinkles_now_and_then(const char* position) {
    Play play;
    play.start(position);
    for (int i = 0; i < 3000; ++i) {
        play.desktop.advance(100);
        if (twinkle_is_under_way()) return frmcards.Timer1.interval();
    }
    return 0;
}

TEST(Twinkle, StartsNowAndThenOnlyWhileTheAceOfSpadesLiesOnTopOfAnAcePile) {
    EXPECT_EQ(twinkles_now_and_then("ace 0: A♠"), 30);
    EXPECT_EQ(twinkles_now_and_then("ace 3: A♠"), 30);
    EXPECT_EQ(twinkles_now_and_then("ace 0: A♠ 2♠"), 0);
    EXPECT_EQ(twinkles_now_and_then("tablet: (A♠)"), 0);
    EXPECT_EQ(twinkles_now_and_then("5: A♠"), 0);
}

class Peek : public testing::Test {
  protected:
    Peek() { play.start("5: [2♣] [3♣] [4♦'] 9♠"); }
    Play play;
    const Picture back = back_picture(0);
    const Picture face = face_picture(diamonds, 3);
};

TEST_F(Peek, AtASecondCardCoversTheFirstAndLastsItsFullTime) {
    play.double_click(frmcards.Image1(151));
    play.desktop.advance(1000);
    play.double_click(frmcards.Image1(152));
    EXPECT_EQ(shown_by(151), back);
    play.desktop.advance(1400);
    EXPECT_EQ(shown_by(152), face);
    play.desktop.advance(100);
    EXPECT_EQ(shown_by(152), back);
    EXPECT_FALSE(peek_is_under_way());
}

}  // namespace
}  // namespace tarnwick

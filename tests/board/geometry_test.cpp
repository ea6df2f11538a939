#include <gtest/gtest.h>

#include "board/display.h"
#include "notation/position_text.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void expect_place(const Widget& widget, const Rect& place) {
    EXPECT_FLOAT_EQ(widget.left(), place.left);
    EXPECT_FLOAT_EQ(widget.top(), place.top);
    EXPECT_FLOAT_EQ(widget.width(), place.width);
    EXPECT_FLOAT_EQ(widget.height(), place.height);
}

// Widths are those of the window with its frame.
void widen(int width) { frmcards.user_resized({width - frame_of(frmcards).width, 600}); }

constexpr const char* position =
    "0: K♠\n1: [7♠] Q♥\n9: [5♣] 9♠\nace 0: A♥\nace 3: A♦ 2♦ 2♦'\ntablet: 3♠ 3♥ (3♣) ..";

TEST(Board, IsLaidOutForItsWidth) {
    const struct {
        int width;
        const char* scale_cards;
        float x;
        float card;
    } cases[] = {
        {800, "False", 1, 1},
        {800, "True", 1, 1},
        {799, "False", 0.99875F, 0.99875F},
        {1600, "False", 2, 1},
        {1600, "True", 2, 2},
        {640, "False", 0.8F, 0.8F},
        {1014, "True", 1.2675F, 1.2675F},
        {1014, "False", 1.2675F, 1},
    };
    for (const auto& [width, scale_cards, x, card] : cases) {
        Play play;
        play.save("scale cards", scale_cards);
        play.start(position);
        widen(1200);
        widen(width);
        EXPECT_FLOAT_EQ(x_scale, x);
        EXPECT_FLOAT_EQ(card_scale, card);
        EXPECT_EQ(display_faults(), "") << width << ' ' << scale_cards;
        EXPECT_EQ(frmcards.Image1(200).stretch(), width < 800 || scale_cards == std::string("True"));
        for (const int image : {stock_image, 4, 29, 198, 299}) {
            EXPECT_EQ(frmcards.Image1(image).stretch(), frmcards.Image1(200).stretch()) << image;
        }
        expect_place(frmcards.Image1(stock_image), {4 * x, 10, 71 * card, 96 * card});
        expect_place(frmcards.Shape1(stock_outline), {4 * x, 10, 71 * card, 96 * card});
        for (int p = 0; p <= 3; ++p) {
            const auto left = static_cast<float>(158 * p);
            expect_place(frmcards.Image1(first_ace_zone + p), {(left + 216) * x, 5, 120 * card, 106 * card});
            expect_place(frmcards.Shape1(p), {(left + 241) * x, 10, 71 * card, 96 * card});
        }
        for (int c = 0; c <= 9; ++c) {
            const auto left = static_cast<float>(79 * c);
            expect_place(frmcards.Image1(first_column_zone + c),
                         {left * x, 115 * card, 79 * card, 470 * card});
            EXPECT_NEAR(frmcards.Shape1(first_column_outline + c).left(), (left + 4) * x, 0.5);
            EXPECT_FLOAT_EQ(frmcards.Shape1(first_column_outline + c).top(), 120 * card);
        }
    }
}

TEST(Board, PutsEveryCardOnWholePixels) {
    Play play;
    play.start(position);
    widen(1014);
    // 715, 694 and 83 times 1.2675, and a card of 71 x 96.
    expect_place(top_image(9), {906, 177.45F, 90, 122});
    expect_place(top_image(ace_pile(3)), {906, 10, 89.9925F, 121.68F});
    expect_place(frmcards.Image1(aces(3, beneath_picture_field)), {880, 10, 89.9925F, 121.68F});
    play.space();
    EXPECT_FLOAT_EQ(top_image(tablet_pile).left(), 105);
}

TEST(Board, StaysAsItIsWhileTheWindowIsMinimized) {
    Play play;
    play.start(position);
    widen(1200);
    frmcards.user_changed_state(WindowState::minimized);
    x_scale = 1.25F;
    frmcards.user_resized({100, 30});
    EXPECT_EQ(x_scale, 1.25F) << "nothing is measured";
    frmcards.user_changed_state(WindowState::normal);
    EXPECT_EQ(x_scale, 1.5F);
    EXPECT_EQ(display_faults(), "");
}

TEST(Board, ResizedDuringASlideLetsTheCardArrive) {
    Play play;
    play.start("9: 3♥ 2♠\nace 0: A♠");
    play.save("anamate", "True");
    play.click(9);
    play.desktop.advance(65);
    widen(1600);
    ASSERT_TRUE(frmcards.Timer3.enabled());
    play.desktop.advance(1000);
    EXPECT_FALSE(frmcards.Timer3.enabled());
    EXPECT_EQ(display_faults(), "");
}

TEST(Board, TurnsACardUpOnceOnly) {
    Play play;
    play.start("4: [2♣] 6♥");
    const int points = score;
    column_top(4) = 0;
    frmcards.Image1(205).hide();
    redisplay_column(4);
    redisplay_column(4);
    EXPECT_EQ(score, points + 1);
    EXPECT_EQ(undo_records(), "(99 99 99)");
    EXPECT_EQ(display_faults(), "");
}

TEST(CardBack, ChangesOnTheStockAndOnEveryFaceDownCard) {
    Play play;
    play.start();
    for (int back = 5; back >= 0; --back) {
        play.save("card back", std::to_string(back));
        change_back(back);
        EXPECT_EQ(frmcards.Image1(stock_image).picture(), frmcards.ImgCardBacks(back).picture());
        EXPECT_EQ(display_faults(), "");
    }
}

}  // namespace
}  // namespace tarnwick

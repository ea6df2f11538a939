#include <gtest/gtest.h>

#include "board/display.h"
#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void expect_place(const Widget& widget, const Rect& place) {
    EXPECT_NEAR(widget.left(), place.left, 0.5);
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
        bool scale_cards;
        float card;
    } cases[] = {{800, false, 1}, {799, false, 0.99875F}, {1600, false, 1}, {1014, true, 1.2675F}};
    for (const auto& [width, scale_cards, card] : cases) {
        Play play;
        play.save("scale cards", scale_cards ? "True" : "False");
        play.start(position);
        widen(1200);
        widen(width);
        const float x = static_cast<float>(width) / 800;
        EXPECT_FLOAT_EQ(x_scale, x);
        EXPECT_FLOAT_EQ(card_scale, card);
        EXPECT_EQ(display_faults(), "") << width << ' ' << scale_cards;
        for (const int image : {stock_image, 4, 29, 198, 200, 299}) {
            EXPECT_EQ(frmcards.Image1(image).stretch(), width < 800 || scale_cards) << image;
        }
        expect_place(frmcards.Image1(stock_image), {4 * x, 10, 71 * card, 96 * card});
        expect_place(frmcards.Shape1(stock_outline), {4 * x, 10, 71 * card, 96 * card});
        for (int p = 0; p <= 3; ++p) {
            const auto left = static_cast<float>(158 * p);
            const float width = std::max(120 * card, 25 * x + 71 * card);
            expect_place(frmcards.Image1(first_ace_zone + p), {(left + 216) * x, 5, width, 106 * card});
            expect_place(frmcards.Shape1(p), {(left + 241) * x, 10, 71 * card, 96 * card});
        }
        for (int c = 0; c <= 9; ++c) {
            const float left = static_cast<float>(79 * c) * x;
            expect_place(frmcards.Image1(first_column_zone + c), {left, 115 * card, 79 * card, 470 * card});
            EXPECT_NEAR(frmcards.Shape1(first_column_outline + c).left(), left + 4 * x, 0.5);
        }
    }
}

TEST(Board, PutsEveryCardOnWholePixels) {
    Play play;
    play.start(position);
    widen(1014);
    // 715, 694 and 83 times 1.2675.
    EXPECT_EQ(top_image(9).left(), 906);
    EXPECT_EQ(top_image(9).width(), 90);
    EXPECT_EQ(top_image(ace_pile(3)).left(), 906);
    EXPECT_EQ(frmcards.Image1(aces(3, beneath_picture_field)).left(), 880);
    play.space();
    EXPECT_EQ(top_image(tablet_pile).left(), 105);
}

}  // namespace
}  // namespace tarnwick

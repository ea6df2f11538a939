// What those see who do not tell red from green, or see little.

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "board/display.h"
#include "board/table_colors.h"
#include "notation/position.h"
#include "tests/view/grid_window.h"
#include "view/contrast.h"
#include "view/four_colors.h"

namespace tarnwick {
namespace {

constexpr Color white = color_of(255, 255, 255);

using Three = std::array<double, 3>;
using Matrix = std::array<Three, 3>;

// How much of red, green and blue light is left of each, after Machado, Oliveira and Fernandes (2009).
constexpr Matrix usual{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix deuteranope{
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.01182, 0.04294, 0.968881}}};
constexpr Matrix protanope{
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
// From light to the coordinates of CIE XYZ, whose white is 1.
constexpr Matrix to_xyz{
    {{0.43395, 0.37622, 0.18983}, {0.21267, 0.71515, 0.07217}, {0.01776, 0.10948, 0.87277}}};

Three times(const Matrix& matrix, const Three& light) {
    Three result{};
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] =
            std::max(0.0, matrix[i][0] * light[0] + matrix[i][1] * light[1] + matrix[i][2] * light[2]);
    }
    return result;
}

// The place of a colour, as "#12ab9f", in CIE L*a*b*, where distances are as large as they seem.
Three lab(const std::string& color, const Matrix& eyes) {
    Three light{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double part = std::stoi(color.substr(1 + 2 * i, 2), nullptr, 16) / 255.0;
        light[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    Three xyz = times(to_xyz, times(eyes, light));
    for (double& part : xyz) part = part > 0.008856 ? std::cbrt(part) : 7.787 * part + 16.0 / 116;
    return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

TEST(FourColors, AreFourToEyesThatDoNotTellRedFromGreen) {
    const std::array<std::string, 4> suits{"#e03a1e",
                                           in_four_colors("faces/diamonds-7", "#e03a1f"),
                                           "#141c28",
                                           in_four_colors("faces/clubs-7", "#141c29")};
    for (const Matrix& eyes : {usual, deuteranope, protanope}) {
        for (std::size_t a = 0; a < 4; ++a) {
            for (std::size_t b = 0; b < a; ++b) {
                const Three first = lab(suits.at(a), eyes);
                const Three second = lab(suits.at(b), eyes);
                EXPECT_GT(std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]), 20)
                    << suits.at(a) << " and " << suits.at(b);
            }
        }
    }
}

TEST(FourColors, ChangeTheSignsOfTwoSuitsAlone) {
    const std::string all = "#141c28 #141c29 #e03a1e #e03a1f #141c29";
    EXPECT_EQ(in_four_colors("faces/clubs-king", all), "#141c28 #137a60 #e03a1e #e03a1f #137a60");
    EXPECT_EQ(in_four_colors("faces/diamonds-2", all), "#141c28 #141c29 #e03a1e #1448e0 #141c29");
    for (const char* other :
         {"faces/hearts-2", "faces/spades-ace", "backs/rose", "twinkle/frame-3", "logo"}) {
        EXPECT_EQ(in_four_colors(other, all), all) << other;
    }
}

// Whether a line is solid and wide, and stands out from what it adjoins.
void expect_strong(double width, int opacity, Color color, const std::optional<PaintedRim>& rim,
                   Color table) {
    EXPECT_GE(width, high_contrast_line);
    EXPECT_EQ(opacity, 255);
    EXPECT_GE(contrast(color, rim ? rim->color : table), high_contrast);
    EXPECT_EQ(rim ? rim->opacity : 255, 255);
    EXPECT_GE(rim ? rim->width : 1, 1);
}

TEST(HighContrast, MakesLinesSolidWideAndSeenOnATableOfAnyColor) {
    GridGame game{26};
    set_position("0: K♠\n1: Q♥\n2: 9♣\ntablet: 2♣ 3♣ 4♣ 5♣ 6♣ (7♣)\nace 1: A♥");
    game.view().high_contrast_wanted = true;
    game.stage().contrast_changed();
    const Image& queen = top_image(1);
    for (const Color table : {Color{32768}, black, white, color_of(128, 128, 128), color_of(255, 230, 0)}) {
        set_table_color(table);
        set_text_color(table);
        EXPECT_TRUE(game.view().shows_all());
        for (const PaintedOutline& outline : game.layers().outlines) {
            const PaintedOutline::Look& look = outline.look;
            expect_strong(look.line, look.line_opacity, look.color, look.rim, table);
            EXPECT_EQ(look.sign_opacity, 255);
        }
        const PaintedLabel& label = game.layers().labels[0];
        EXPECT_GE(contrast(label.color, label.rim.value().color), 4.5) << "as well as it can be";
        game.stage().press(double{queen.left()} + 30, double{queen.top()} + 8, MouseButton::left);
        game.stage().move(double{frmcards.Image1(20).left()} + 40, double{queen.top()} + 20, true);
        EXPECT_TRUE(game.view().shows_all());
        game.view().repaint({0, 0, 800, 9});
        EXPECT_TRUE(game.view().shows_all()) << "where only a rim could be seen of what a card covers";
        ASSERT_TRUE(game.layers().mark);
        const PaintedMark& mark = *game.layers().mark;
        ASSERT_TRUE(mark.rim) << "it lies on cards";
        expect_strong(mark.line, mark.line_opacity, mark.color, mark.rim, table);
        game.stage().cancel();
    }
}

TEST(HighContrast, IsWantedByDesktopsInBlackAndWhite) {
    EXPECT_TRUE(is_high_contrast(black, white));
    EXPECT_TRUE(is_high_contrast(white, black));
    EXPECT_FALSE(is_high_contrast(black, color_of(239, 239, 239))) << "the toolkit's own";
    EXPECT_FALSE(is_high_contrast(color_of(46, 52, 54), white));
    EXPECT_FALSE(is_high_contrast(color_of(252, 252, 252), color_of(49, 54, 59)));
}

}  // namespace
}  // namespace tarnwick

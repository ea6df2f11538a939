// The table without its cards: empty places, the light on it, the score.

#include <gtest/gtest.h>

#include "board/table_colors.h"
#include "notation/position.h"
#include "settings/settings.h"
#include "tests/view/grid_window.h"
#include "view/contrast.h"
#include "view/table_light.h"

namespace tarnwick {
namespace {

constexpr Color table_green = 32768;
constexpr Color white = color_of(255, 255, 255);
constexpr Color gray = color_of(128, 128, 128);

// What the outlines that are seen say, from left to right and from the top row down.
std::string signs(const BoardLayers& layers) {
    std::vector<const PaintedOutline*> outlines;
    for (const PaintedOutline& outline : layers.outlines) outlines.push_back(&outline);
    std::sort(outlines.begin(), outlines.end(), [](const PaintedOutline* a, const PaintedOutline* b) {
        return std::pair(a->place.top, a->place.left) < std::pair(b->place.top, b->place.left);
    });
    std::string text;
    for (const PaintedOutline* outline : outlines) {
        const std::size_t lines = outline->look.sign.lines.size();
        if (lines == 0) text += '-';
        // A letter begins at the left of its first line, the arrow runs around its middle.
        if (lines == 2) text += outline->look.sign.lines[0].size() > 4 ? '>' : 'A';
        if (lines == 3) text += 'K';
    }
    return text;
}

TEST(EmptyPlaces, SayWhatTheyTake) {
    GridGame game{26};
    const auto seen_at = [&](const char* position) {
        set_position(position);
        EXPECT_TRUE(game.view().shows_all()) << position;
        return signs(game.layers());
    };
    EXPECT_EQ(signs(game.layers()), "AAAA") << "cards cover the others";
    const std::string columns = "0: K♠\n1: K♥\n2: K♣\n3: K♦\n4: Q♠\n5: Q♥\n6: Q♣\n7: Q♦\n";
    EXPECT_EQ(seen_at((columns + "ace 1: A♥\ntablet: (2♣) 3♣ 4♣ 5♣ 6♣ 7♣").c_str()), "AAAKK");
    EXPECT_EQ(seen_at((columns + "ace 1: A♥\ntablet: 2♣ 3♣ 4♣ 5♣ 6♣ (7♣)").c_str()), ">AAAKK");
    frmcards.Image1(stock_image).click();
    EXPECT_TRUE(game.view().shows_all());
    EXPECT_EQ(signs(game.layers()), "AAAKK") << "turned over";
    EXPECT_EQ(seen_at((columns + "tablet: 2♣ 3♣ 4♣ 5♣ (6♣)").c_str()), "-AAAAKK") << "turned for good";
}

TEST(EmptyPlaces, AreDrawnInTheMiddleOfTheirPlaceAtAnyScale) {
    GridGame game{26};
    BoardScene scene(frmcards, game.view().texts);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        for (const PaintedOutline& outline : scene.layers(ratio).outlines) {
            const PaintedSign& sign = outline.look.sign;
            EXPECT_EQ(sign.width, std::floor(sign.width));
            Box around_lines;
            for (const auto& line : sign.lines) {
                for (const Point& point : line)
                    around_lines = united(around_lines, Box{point.x, point.y, 1e-9, 1e-9});
            }
            const Box& place = outline.look.middle;
            EXPECT_NEAR(around_lines.left + around_lines.width / 2, place.left + place.width / 2, 1.5);
            EXPECT_NEAR(around_lines.top + around_lines.height / 2, place.top + place.height / 2, 1.5);
            EXPECT_GT(around_lines.height, place.height / 5);
        }
    }
}

TEST(EmptyPlacesAndLabels, GetARimWhereTheirColorIsTooNearThatOfTheTable) {
    GridGame game{26};
    // That of an empty place, and that of a label, which has to be read.
    const auto rims = [&](Color table, Color text) {
        set_table_color(table);
        set_text_color(text);
        EXPECT_TRUE(game.view().shows_all());
        const auto color = [](const auto& rim) { return rim ? std::optional(rim->color) : std::nullopt; };
        return std::pair(color(game.layers().outlines[0].look.rim), color(game.layers().labels[0].rim));
    };
    using Rims = std::pair<std::optional<Color>, std::optional<Color>>;
    EXPECT_EQ(rims(table_green, white), Rims()) << "5.14 to 1";
    EXPECT_EQ(rims(table_green, black), Rims(std::nullopt, white)) << "4.09 to 1";
    EXPECT_EQ(rims(black, black), Rims(white, white));
    EXPECT_EQ(rims(white, white), Rims(black, black));
    EXPECT_EQ(rims(table_green, gray).first, white);
    EXPECT_EQ(rims(gray, gray).second, black);
    const int opacity = game.layers().outlines[0].look.rim->opacity;
    EXPECT_GT(opacity, 100) << "3 to 1";
    EXPECT_LT(opacity, 255) << "no more";
}

// The table's colour at a place of a window that is scrolled so far down.
std::uint32_t ground_at(TableLight& light, PixelSize window, int x, int y, Color table, int scrolled = 0) {
    const PaintedGround& ground = light.ground({x, y, 1, 1}, window, scrolled, table);
    EXPECT_EQ(ground.strips.size(), 1U);
    const auto& [place, column, row] = ground.strips.at(0);
    EXPECT_EQ(place, (Area{x, y + scrolled, 1, 1}));
    return ground.sheet.pixels.at(static_cast<std::size_t>(row) *
                                      static_cast<std::size_t>(ground.sheet.width) +
                                  static_cast<std::size_t>(column));
}

TEST(TableLight, IsFaintAndLeavesTheMiddleAsItWas) {
    TableLight light;
    for (const PixelSize window : {PixelSize{640, 480}, {1275, 901}, {2560, 1440}}) {
        // The mean of a part of the table, of one colour part in 255.
        const auto green = [&](int left, int top) {
            int sum = 0;
            for (int y = top; y < top + 16; ++y) {
                for (int x = left; x < left + 16; ++x) {
                    sum += static_cast<int>(ground_at(light, window, x, y, table_green) >> 8 & 0xFF);
                }
            }
            return sum / 256.0;
        };
        const int middle = window.width / 2 - 8;
        const int right = window.width - 16;
        const int bottom = window.height - 16;
        EXPECT_NEAR(green(middle, window.height / 2 - 8), 128, 0.06) << "its very colour";
        EXPECT_NEAR(green(middle, 0), 128 * 1.03, 0.25);
        EXPECT_NEAR(green(middle, bottom), 128 * 0.97, 0.25);
        EXPECT_NEAR(green(0, bottom), 128 * 0.99, 0.25);
        EXPECT_NEAR(green(right, bottom), 128 * 0.95, 0.25);
        EXPECT_EQ(ground_at(light, window, 0, 0, black), 0xFF000000);
        EXPECT_EQ(ground_at(light, window, middle, 0, white), 0xFFFFFFFF);
        EXPECT_EQ(ground_at(light, window, right, bottom, table_green),
                  ground_at(light, window, right, bottom, table_green, 40))
            << "stays in the window";
    }
}

TEST(ScoreLabels, GrowWithTheBoardFromTheirLowerLeftCorner) {
    GridGame game{26};
    game.view().texts.scale = 0.7F;  // fits the labels as they are
    for (const bool scaled : {true, false}) {
        save_setting(key_scale_cards, scaled ? "True" : "False");
        for (const auto& [width, height, scale] :
             {std::tuple{640, 480, 1.0}, {800, 600, 1.0}, {2560, 1440, 3.2}}) {
            game.view().resize({width, height});
            EXPECT_TRUE(game.view().shows_all());
            const double wanted = scaled ? scale : 1;
            const std::vector<PaintedLabel>& labels = game.layers().labels;
            ASSERT_EQ(labels.size(), 3U);
            const double left = static_cast<double>(frmcards.lblScoreText.left());
            for (std::size_t i = 0; i < labels.size(); ++i) {
                const Box place = box_of(frmcards.score_labels().at(i)->place());
                EXPECT_NEAR(labels[i].font_scale, wanted, 0.01) << width;
                EXPECT_NEAR(labels[i].place.width, place.width * labels[i].font_scale, 0.01);
                EXPECT_NEAR(labels[i].place.left, left + (place.left - left) * labels[i].font_scale, 0.01);
                EXPECT_NEAR(labels[i].place.bottom(), place.bottom(), 0.01);
            }
        }
    }
}

TEST(Contrast, IsThatOfTheGuidelinesForReadableText) {
    EXPECT_NEAR(contrast(black, white), 21, 1e-9);
    EXPECT_NEAR(contrast(table_green, black), 4.09, 0.01);
    EXPECT_EQ(contrast(gray, gray), 1);
    for (int shade = 0; shade < 256; ++shade) {
        const Color color = color_of(shade, shade, shade);
        EXPECT_GE(contrast(farthest_from(color), color), 4.5) << shade;
    }
    EXPECT_EQ(opacity_for(4.5, white, white, white), 255);
}

}  // namespace
}  // namespace tarnwick

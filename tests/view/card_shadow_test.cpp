#include <gtest/gtest.h>

#include "board/display.h"
#include "notation/position.h"
#include "tests/view/grid_window.h"
#include "view/card_shadow.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// How many cards throw a shadow on a pixel.
int shadows_at(const std::vector<PaintedImage>& cards, int x, int y) {
    int count = 0;
    for (const PaintedImage& card : cards) {
        if (!card.shadow) continue;
        for (const Area& part : shadowed_parts(card)) count += part.meets({x, y, 1, 1}) ? 1 : 0;
    }
    return count;
}

TEST(CardShadow, IsThrownOnceByWhateverIsSeen) {
    GridGame game{26};
    set_position("0: K♠ Q♥ J♣ 10♦\n1: Q♠\ntablet: (2♣) ..");
    EXPECT_TRUE(game.view().shows_all());
    const Area stock = snapped(box_of(frmcards.Image1(stock_image).place()), 1);
    const BoardLayers& layers = game.layers();
    int edges = 0;
    for (const PaintedImage& card : layers.images) {
        if (card.shadow) continue;
        EXPECT_TRUE(card.place.meets(stock)) << card.place.left << ", " << card.place.top;
        ++edges;
    }
    EXPECT_GT(edges, 0) << "the lowest card of a pile throws that of all";
    const Area top = snapped(box_of(top_image(0).place()), 1);
    int doubled = 0;
    for (int y = top.top - 40; y < top.bottom(); ++y) {
        EXPECT_GE(shadows_at(layers.images, top.right(), y), 1) << "beside a column, " << y;
        doubled += shadows_at(layers.images, top.right(), y) - 1;
    }
    EXPECT_LE(doubled, 3 * card_shadow(top).reach)
        << "where that of one card goes over into that of the next";
    EXPECT_EQ(shadows_at(layers.images, top.left + 9, top.top - 1), 4) << "on the three cards below";

    game.stage().press(top.left + 9.0, top.top - 30.0, MouseButton::left);
    game.stage().move(300, 400, true);
    game.layers();
    ASSERT_EQ(layers.lifted.size(), 4U);
    EXPECT_FALSE(layers.lifted[0].shadow) << "the pile has a larger one";
    for (std::size_t i = 1; i < 4; ++i) {
        EXPECT_TRUE(layers.lifted[i].shadow);
        EXPECT_TRUE(shadowed_parts(layers.lifted[i])[1].empty()) << "only on the card below";
    }
    EXPECT_TRUE(game.view().shows_all());
}

TEST(CardShadow, IsThrownByCardsOnTheirWay) {
    const std::vector<PaintedImage> below{{face_picture(0, 0), {9, 9, 71, 96}, true}};
    EXPECT_FALSE(throws_shadow(below, {9, 9, 71, 96})) << "covered exactly";
    EXPECT_TRUE(throws_shadow(below, {9, 10, 71, 96}));
    Celebration celebration;
    celebration.begin({{{9, 9, 71, 96}, {face_picture(0, 0), face_picture(0, 1)}}}, {800, 600}, 0);
    celebration.step(1000);
    BoardLayers layers;
    layers.area = {0, 0, 800, 600};
    celebration.add_to(layers, 0, 1);
    ASSERT_EQ(layers.celebration.size(), 3U);
    for (const PaintedImage& image : layers.celebration) {
        EXPECT_EQ(image.shadow, image.picture != logo_picture());
    }
}

}  // namespace
}  // namespace tarnwick

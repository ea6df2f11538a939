// What keeps its place in the window whatever lies or is scrolled below: the score, and the bar at the edge.

#include <gtest/gtest.h>

#include <QScrollBar>

#include "desktop/board_painter.h"
#include "notation/position_text.h"
#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "tools/driver/board_picture.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr const char* program = TARNWICK_PROGRAM;

// Where the labels are, without the rounded edges of the plate under them.
QRect labels() { return BoardPainter(frmcards).plate().adjusted(4, 2, -4, -2); }

TEST(Score, IsReadAboveEveryCard) {
    // A short column, and one that ends below the score.
    QImage free;
    for (const char* column : {"0: K♠", "0: K♠ Q♥ J♠ 10♥ 9♠ 8♥ 7♠ 6♥ 5♠ 4♥ 3♠"}) {
        Play play({1366, 768});
        play.start(std::string(column) + "\n1: 9♦\nscore: 81");
        const QImage seen = expected_board().copy(labels());
        if (free.isNull()) free = seen;
        EXPECT_EQ(seen, free);
        if (std::string(column).size() < 10) continue;
        EXPECT_NE(expected_board().copy(labels().translated(0, -60)), free) << "cards lie around it";
        // They can be taken hold of there.
        const Image* card = frmcards.mouse().image_at(static_cast<float>(labels().center().x()),
                                                      static_cast<float>(labels().center().y()));
        EXPECT_EQ(card, &top_image(0));
    }
}

TEST(Score, StaysInTheWindowWhenTheBoardIsScrolled) {
    TwinGame game({program, 26});
    game.resize(800, 300 + game.board().y);
    const QRect place = labels();
    const QRect upper(0, 0, 700, 300);
    const auto seen = [&] { return image_of(game.board_pixels()).copy(upper); };
    const QImage home = expected_board().copy(upper);
    ASSERT_TRUE(eventually([&] { return seen() == home; }));
    game.screen().key("Next");
    ASSERT_TRUE(eventually([&] { return seen() != home; }));
    EXPECT_TRUE(eventually([&] { return seen().copy(place) == home.copy(place); })) << "above the cards";
    game.screen().key("Home");
    EXPECT_TRUE(eventually([&] { return seen() == home; }));
    game.screen().key("End");
    EXPECT_TRUE(eventually([&] { return seen() != home; }));
    game.screen().key("Home");
    EXPECT_TRUE(eventually([&] { return seen() == home; }));
    ASSERT_GT(TwinGame::spot_on(top_image(9)).y, 300);
    game.drag(6, 9);
    EXPECT_EQ(column_top(9), 9) << "nobody receives what is let go below the window";
    game.screen().key("Home");
    EXPECT_TRUE(eventually([&] { return seen() == home; }));
}

TEST(ScrollBar, CoversNoCardAtRest) {
    InnerGame game(26);
    QWidget* board = shown_widget("board");
    auto* bar = board->findChild<QScrollBar*>();
    for (const int width : {640, 800, 1200}) {
        board->window()->resize(width, 300);
        ASSERT_TRUE(
            comes_true([&] { return board->width() == width && bar->maximum() > 0 && bar->isVisible(); }));
        ASSERT_TRUE(comes_true([&] { return bar->geometry().right() == width - 1; }));
        for (int pile : {9, 15}) {
            const Rect place = (pile == 15 ? frmcards.Shape1(3).place() : top_image(pile).place());
            EXPECT_LE(place.right(), static_cast<float>(bar->x())) << width;
        }
        EXPECT_EQ(bar->width(), 8);
    }
}

}  // namespace
}  // namespace tarnwick

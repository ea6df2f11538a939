// What keeps its place in the window whatever lies or is scrolled below: the score, and the bar at the edge.

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <cmath>

#include "desktop/shared/qt_convert.h"
#include "desktop/shared/qt_texts.h"
#include "notation/position.h"
#include "tests/desktop/inner_game.h"
#include "tests/desktop/reach.h"
#include "tests/play/play.h"
#include "view/board_scene.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// Where the labels are, without the rounded corners of the plate under them.
QRect labels() {
    const int radius = static_cast<int>(std::ceil(4 * frmcards.Shape1(0).width() / card_width));
    return to_qt(BoardScene(frmcards, qt_texts()).plate()).adjusted(radius, 2, -radius, -2);
}

TEST(Score, LooksTheSameWhateverWasWrittenBefore) {
    Play play({1366, 768});
    play.start("score: 81");
    const QImage before = expected_board().copy(labels());
    QImage paper(100, 100, QImage::Format_RGB32);
    for (const int pixels : {8, 11, 12, 40}) {
        QFont font = QApplication::font();
        font.setPixelSize(pixels);
        QPainter painter(&paper);
        painter.setFont(font);
        painter.drawText(0, 50, "Score: 0123456789/");
        painter.end();
        EXPECT_EQ(expected_board().copy(labels()), before) << pixels;
    }
}

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
    TwinGame game({tested_program(), 26});
    game.resize(800, 300 + game.board().y);
    const QRect place = labels();
    const QRect upper(0, 0, 700, 300);
    const auto seen = [&] { return image_of(game.board_pixels()).copy(upper); };
    const QImage home = expected_board().copy(upper);
    ASSERT_TRUE(eventually([&] { return seen() == home; }));
    for (const char* key : {"Next", "End"}) {
        game.screen().key(key);
        ASSERT_TRUE(eventually([&] { return seen() != home; })) << key;
        EXPECT_TRUE(eventually([&] { return seen().copy(place) == home.copy(place); })) << "above the cards";
        game.screen().key("Home");
        EXPECT_TRUE(eventually([&] { return seen() == home; }));
    }
}

TEST(ScrollBar, CoversNoCardAtRest) {
    InnerGame game(26);
    QWidget* board = shown_widget("board");
    const auto* bar = board->findChild<QScrollBar*>();
    for (const int width : {640, 1200}) {
        board->window()->resize(width, 300);
        ASSERT_TRUE(comes_true([&] { return bar->isVisible() && bar->geometry().right() == width - 1; }));
        for (const Rect& place : {frmcards.Shape1(3).place(), top_image(9).place()}) {
            EXPECT_LE(place.right(), static_cast<float>(bar->x())) << width;
        }
        EXPECT_EQ(bar->width(), 8);
    }
}

}  // namespace
}  // namespace tarnwick

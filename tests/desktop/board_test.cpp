#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>

#include "desktop/shared/outline_pictures.h"
#include "desktop/shared/picture_cache.h"
#include "state/variables.h"
#include "tests/play/known_deal.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "view/help_page.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

constexpr const char* program = TARNWICK_PROGRAM;

// The ace of Spades, which glints at times of its own, is never played in this deal.
constexpr std::uint32_t deal = known_deal;

Image& back(int c, int k) { return frmcards.Image1(face_down_image(c, k)); }

TEST(Board, IsThereFromTheStart) {
    TwinGame game({program, deal});
    EXPECT_EQ(game.screen().title(game.window()), main_title);
    const XPlace window = game.screen().place(game.window());
    EXPECT_EQ(board_faults(game), "");
    EXPECT_EQ(window.width, game.board().width);
    for (const Label* label : {&frmcards.lblScoreText, &frmcards.LblScore, &frmcards.LblScoreMax}) {
        EXPECT_LE(label->place().bottom(), static_cast<float>(game.board().height)) << label->caption();
    }
    const XPlace screen = game.screen().screen();
    EXPECT_TRUE(window.x >= 0 && window.x + window.width <= screen.width) << window.x;
    EXPECT_TRUE(window.y >= 0 && window.y + window.height <= screen.height) << window.y;
}

TEST(Board, APeekLastsAMomentAndAHalf) {
    TwinGame game({program, deal});
    const QImage before = expected_board();
    const Spot spot = TwinGame::spot_on(back(5, 2));
    game.click(spot);
    const auto start = std::chrono::steady_clock::now();
    game.click(spot);
    ASSERT_NE(expected_board(), before);
    EXPECT_EQ(board_faults(game), "") << "the face";
    game.headless().desktop.advance(1500);
    ASSERT_EQ(expected_board(), before);
    EXPECT_EQ(board_faults(game), "") << "the back again";
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1500));
}

TEST(Board, FollowsTheSizeOfTheWindow) {
    TwinGame game({program, deal});
    for (const auto& [width, height] : {std::pair{900, 700}, {700, 500}, {1100, 900}}) {
        game.resize(width, height);
        EXPECT_EQ(frmcards.client_size().width, width);
        EXPECT_EQ(board_faults(game), "") << width;
    }
}

TEST(Board, CopiesTheNumberOfItsDeal) {
    TwinGame game({program, deal});
    game.screen().key("ctrl+c");
    EXPECT_TRUE(eventually([] {
        QApplication::processEvents();
        return QApplication::clipboard()->text() == "26";
    }));
    EXPECT_EQ(board_faults(game), "");
}

TEST(OutlinePictures, AreHandedOutInAnotherSizeOnlyInHaste) {
    const auto look = [](const char* sign, int width) {
        return picture_of_place(sign, {width, width + 30}, 1)->outline.look;
    };
    OutlinePictures pictures;
    const auto width_of = [&](const PaintedOutline::Look& wanted) { return pictures.pixmap(wanted).width(); };
    const int small = width_of(look("ace", 80));
    EXPECT_EQ(width_of(look("ace", 100)), small + 20);
    pictures.begin_haste();
    EXPECT_EQ(width_of(look("ace", 80)), small);
    EXPECT_EQ(width_of(look("king", 90)), small + 10) << "nothing else says that";
    EXPECT_FALSE(pictures.end_haste());
    pictures.begin_haste();
    EXPECT_NE(width_of(look("ace", 90)), small + 10);
    EXPECT_TRUE(pictures.end_haste());
    EXPECT_EQ(width_of(look("ace", 90)), small + 10) << "sharp again";
}

TEST(PictureCache, ScalesOnlyInHasteAndOnlyWhatItHas) {
    const Picture lower = face_picture(hearts, king - 1);
    const Picture highest = face_picture(hearts, king);
    const QSize small(71, 96);
    const QSize large(142, 192);
    PictureCache pictures;
    pictures.pixmap(lower, small);
    pictures.begin_haste();
    EXPECT_EQ(pictures.pixmap(lower, large).size(), small);
    EXPECT_EQ(pictures.pixmap(highest, large).size(), large) << "there is nothing to scale";
    EXPECT_TRUE(pictures.end_haste());
    EXPECT_EQ(pictures.pixmap(lower, large).size(), large);
    pictures.begin_haste();
    EXPECT_EQ(pictures.pixmap(lower, large).size(), large);
    EXPECT_FALSE(pictures.end_haste()) << "every picture was sharp";
    pictures.pixmap(lower, small);
    pictures.begin_haste();
    EXPECT_EQ(pictures.pixmap(lower, {150, 203}).size(), large) << "the nearest size";
}

TEST(Board, ComesBackFromBeingMinimisedInTheSizeItWasGiven) {
    TwinGame game({program, deal});
    // Only a window that has settled is minimised for good.
    ASSERT_EQ(board_faults(game), "");
    game.screen().minimize(game.window());
    ASSERT_TRUE(eventually([&] { return game.screen().minimized(game.window()); }));
    game.resize(700, 600);
    game.screen().restore(game.window());
    ASSERT_TRUE(game.gets_keyboard(game.window()));
    EXPECT_EQ(board_faults(game), "");
    game.click_stock();
    EXPECT_EQ(turned_slot(), 4);
    EXPECT_EQ(board_faults(game), "");
}

TEST(Board, IsSharpAtTwiceTheSize) {
    TwinGame game({.program = program, .deal = deal, .settings = {}, .environment = {}, .scale = 2});
    game.resize(1200, 900);
    EXPECT_EQ(board_faults(game), "");
    game.space();
    EXPECT_EQ(board_faults(game), "");
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "state/variables.h"
#include "tests/play/known_deal.h"
#include "tests/play/play.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr const char* program = TARNWICK_PROGRAM;

// The table under the shortest column; a drop there is one on that column.
constexpr Spot below_first_column{60, 820};

TEST(Drag, LiftedCardsFollowThePointerToAColumn) {
    TwinGame game({program, known_deal});
    game.drag(column_of_jack, column_of_queen);
    EXPECT_EQ(board_faults(game), "");
    const Image& queen = frmcards.Image1(layout(column_of_queen, column_of_queen, column_picture_field));
    game.press(TwinGame::spot_on(queen));
    EXPECT_EQ(frmcards.mouse().lifted().size(), 2U);
    EXPECT_EQ(board_faults(game), "") << "taken up";
    game.move(below_first_column);
    EXPECT_EQ(board_faults(game), "") << "on the way";
    game.release(TwinGame::spot_on(top_image(column_of_king)));
    EXPECT_EQ(column_top(column_of_king), column_of_king + 2);
    EXPECT_EQ(board_faults(game), "") << "put down";
}

TEST(Drag, EscapeEndsADrag) {
    TwinGame game({program, known_deal});
    game.press(TwinGame::spot_on(top_image(column_of_jack)));
    game.move(below_first_column);
    ASSERT_EQ(board_faults(game), "");
    game.screen().key("Escape");
    frmcards.mouse().cancel();
    EXPECT_EQ(board_faults(game), "") << "at Escape";
    game.release(TwinGame::spot_on(top_image(column_of_queen)));
    game.space();
    EXPECT_EQ(column_top(column_of_queen), column_of_queen);
    EXPECT_EQ(board_faults(game), "") << "at the release after it";
}

TEST(Drag, TheReceiverIsMarkedWhileThePointerIsOverIt) {
    TwinGame game({program, known_deal});
    game.press(TwinGame::spot_on(top_image(column_of_jack)));
    game.move(below_first_column);
    const QImage unmarked = expected_board();
    const Spot queen = TwinGame::spot_on(top_image(column_of_queen));
    game.move(queen);
    ASSERT_EQ(frmcards.mouse().receiver(), &top_image(column_of_queen));
    EXPECT_EQ(board_faults(game), "") << "over the Queen";
    game.move(TwinGame::spot_on(top_image(column_of_king)));
    EXPECT_EQ(board_faults(game), "") << "over the King, who takes no Jack";
    game.move(below_first_column);
    EXPECT_EQ(expected_board(), unmarked);
    game.press(below_first_column, XButton::right);
    game.release(below_first_column, XButton::right);
    EXPECT_EQ(board_faults(game), "") << "over the bare table";
    game.move(queen);
    game.release(queen);
    EXPECT_EQ(board_faults(game), "") << "put down";
    game.press(TwinGame::spot_on(top_image(column_of_ace)));
    game.move(TwinGame::spot_on(top_image(ace_pile(2))));
    ASSERT_EQ(frmcards.mouse().receiver(), &frmcards.Shape1(2));
    EXPECT_EQ(board_faults(game), "") << "over an empty pile";
    game.release(below_first_column);
}

TEST(Drag, ARefusedCardIsSeenToGlideBack) {
    TwinGame game({program, known_deal});
    const QImage home = expected_board();
    bool seen_between = false;
    // A busy machine may miss the tenth of a second that it takes.
    for (int attempt = 0; attempt < 5 && !seen_between; ++attempt) {
        game.press(TwinGame::spot_on(top_image(column_of_jack)));
        game.move(below_first_column);
        ASSERT_EQ(board_faults(game), "");
        const QImage held = image_of(game.board_pixels());
        game.release(below_first_column);
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
        // The bare table's own corner shows whether the card has left it; where it belongs it lies again only
        // later.
        const QRect left_behind(below_first_column.x, below_first_column.y, 30, 30);
        const QRect belongs = QRect(QPoint(static_cast<int>(top_image(column_of_jack).left()) + 10,
                                           static_cast<int>(top_image(column_of_jack).top()) + 40),
                                    QSize(30, 30));
        while (!seen_between && std::chrono::steady_clock::now() < end) {
            const QImage now = image_of(game.board_pixels());
            seen_between =
                now.copy(left_behind) != held.copy(left_behind) && now.copy(belongs) != home.copy(belongs);
        }
        EXPECT_EQ(board_faults(game), "") << "home again";
    }
    EXPECT_TRUE(seen_between);
}

}  // namespace
}  // namespace tarnwick

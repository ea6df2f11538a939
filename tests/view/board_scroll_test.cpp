// A window that is too low for the whole board.

#include <limits>

#include "platform/key_codes.h"
#include "state/variables.h"
#include "tests/view/shown_board.h"

namespace tarnwick {
namespace {

using ScrolledBoard = ShownBoard;

TEST_F(ScrolledBoard, ShowsWhatLiesBelowTheWindow) {
    stage.key_down(end_key);
    stage.scroll_by(BoardScroll::step);
    EXPECT_EQ(stage.scroll().value(), 0) << "all is seen";
    resize(800, 300);
    const int range = stage.scroll().range();
    frmcards.set_enabled(false);
    stage.scroll_by(50);
    EXPECT_EQ(stage.scroll().value(), 0) << "behind a dialog";
    frmcards.set_enabled(true);
    const Box label = game.layers().labels[0].place;
    const auto key = [this](int code) { return [this, code] { stage.key_down(code); }; };
    const std::pair<std::function<void()>, int> ways[] = {
        {[&] { stage.scroll_by(50); }, 50},
        {key(page_up_key), 0},
        {[&] { stage.scroll_to(range + 1); }, range},
        {[&] { stage.scroll_by(std::numeric_limits<int>::max()); }, range},
        {key(home_key), 0},
        {key(page_down_key), std::min(range, 150)},
        {key(end_key), range},
        {[&] { stage.reveal(20); }, 0},
        {[&] { stage.reveal(310); }, 34},
    };
    for (const auto& [scroll, value] : ways) {
        scroll();
        expect_shown();
        EXPECT_EQ(stage.scroll().value(), value) << &scroll - &ways[0].first;
        const int offset = value / 4 * 4;
        EXPECT_EQ(stage.scroll().offset(), offset) << "whole device pixels at quarter scales";
        EXPECT_EQ(game.layers().labels[0].place.top, label.top + offset) << "the score stays";
    }
    stage.scroll_to(range);
    EXPECT_LE(on(column_of_queen).y + 8, 300) << "the lowest card is seen whole";
    frmcards.LblScore.set_caption("7");
    expect_shown();
    view.texts.scale = 3;
    stage.font_changed();
    expect_shown();
    resize(800, 570);
    EXPECT_EQ(stage.scroll().value(), 0) << "all is seen again";
}

TEST_F(ScrolledBoard, ScrollsUnderACardHeldAtItsEdge) {
    const Point jack = on(column_of_jack);
    const int height = static_cast<int>(jack.y) + 20;
    ASSERT_GT(on(column_of_queen).y, height) << "not seen";
    resize(800, height);
    drop(column_of_jack, on(column_of_queen));
    EXPECT_EQ(column_top(column_of_queen), column_of_queen) << "nobody receives what falls below the window";
    pass(200);
    press(jack);
    EXPECT_TRUE(stage.holds() && !stage.next_step()) << "only pressed";
    stage.cancel();
    const Point edge{on(column_of_queen).x, height - 20.0};
    drag(column_of_jack, edge);
    pass(50);
    EXPECT_EQ(stage.scroll().value(), 24) << "a step every 25 milliseconds";
    pass(1000);
    const int range = stage.scroll().range();
    EXPECT_EQ(stage.scroll().value(), range);
    EXPECT_FALSE(stage.next_step());
    EXPECT_EQ(frmcards.mouse().receiver(), &top_image(column_of_queen)) << "another card under the pointer";
    const auto down = [this] { return stage.scene().drag().offset().y; };
    const double before = down();
    stage.scroll_to(0);
    EXPECT_EQ(down(), before - range / 4 * 4) << "under the pointer at once";
    stage.scroll_to(range);
    move({edge.x, 20});
    pass(1000);
    EXPECT_EQ(stage.scroll().value(), 0);
}

}  // namespace
}  // namespace tarnwick

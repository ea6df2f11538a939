// A board that is played by touch.

#include "view/board_fingers.h"

#include "board/peek.h"
#include "notation/position.h"
#include "state/variables.h"
#include "tests/view/shown_board.h"

namespace tarnwick {
namespace {

class FingersOnABoard : public ShownBoard {
  protected:
    static Point on(const Image& image, double x = 30, double y = 40) {
        return {image.left() + x, image.top() + y};
    }
    static Point beside(Point place, double x, double y = 0) { return {place.x + x, place.y + y}; }
    void tap(Point place, int finger = 1) {
        fingers.down(finger, place);
        fingers.move(finger, beside(place, 5, -6));
        fingers.up(finger, beside(place, -4), false);
        expect_shown();
    }

    BoardFingers fingers{stage};
    const Image& jack = top_image(column_of_jack);
    const Image& queen = top_image(column_of_queen);
};

TEST_F(FingersOnABoard, TapDragAndPeek) {
    tap(on(frmcards.Image1(stock_image)));
    EXPECT_EQ(turned_slot(), 4);
    tap(on(top_image(column_of_ace)));
    EXPECT_EQ(aces(0, rank_field), ace);
    const Image& back = frmcards.Image1(face_down_image(5, 2));
    tap(on(back, 30, 5));
    EXPECT_FALSE(peek_is_under_way());
    tap(on(back, 50, 12));
    EXPECT_TRUE(peek_is_under_way());
    fingers.down(1, on(jack));
    fingers.move(1, on(queen));
    EXPECT_TRUE(game.layers().mark);
    EXPECT_EQ(game.view().shape, PointerShape::arrow) << "the mouse is elsewhere";
    fingers.up(1, on(queen), false);
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
}

TEST_F(FingersOnABoard, ARefusedTapTriesNoNeighbour) {
    set_position("3: Q♠\n4: J♥\n5: 10♦\n7: Q♣\ntablet: ..");
    const auto click = [this](Pointer by) {
        for (const double x : {3.0, 30.0, 66.0}) {
            const Point place = on(top_image(4), x);
            stage.press(place.x, place.y, MouseButton::left, by);
            stage.release(place.x, place.y, MouseButton::left, false, by);
        }
    };
    const std::string before = position_text();
    click(Pointer::finger);
    click(Pointer::pen);
    EXPECT_EQ(position_text(), before);
    // On small cards each place is near the left edge.
    game.view().resize({400, 300});
    click(Pointer::finger);
    EXPECT_EQ(position_text(), before);
    click(Pointer::mouse);
    EXPECT_EQ(column_top(3), 1) << "the mouse's click is a drop near the edge";
    frmcards.mnuUndo.choose();
    game.view().resize({800, 560});
    // A drag is let go where the finger is.
    const Point place = on(top_image(4));
    fingers.down(1, place);
    fingers.move(1, bare_table);
    fingers.up(1, on(top_image(4), 10), false);
    EXPECT_EQ(column_top(3), 1);
}

TEST_F(FingersOnABoard, OneFingerPlays) {
    fingers.down(1, on(jack));
    fingers.move(1, on(queen));
    const auto drag = std::pair(frmcards.mouse().drag_dx(), frmcards.mouse().drag_dy());
    fingers.down(2, on(top_image(0)));
    fingers.move(2, bare_table);
    fingers.up(2, bare_table, false);
    stage.move(20, 20, false);
    stage.press(20, 20, MouseButton::left);
    stage.release(20, 20, MouseButton::left, false);
    EXPECT_EQ(std::pair(frmcards.mouse().drag_dx(), frmcards.mouse().drag_dy()), drag)
        << "nor does the mouse";
    fingers.up(1, on(queen), false);
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
    // A palm that rests on the table.
    fingers.down(1, {180, 60});
    tap(on(frmcards.Image1(stock_image)), 2);
    EXPECT_EQ(turned_slot(), 4);
    fingers.up(1, {180, 60}, false);
    // Nor do fingers disturb the mouse.
    stage.press(on(queen).x, on(queen).y, MouseButton::left);
    tap(on(frmcards.Image1(stock_image)));
    EXPECT_TRUE(stage.plays(Pointer::mouse));
}

TEST_F(FingersOnABoard, WhatIsNotLetGoOfTheBoardIsPutBack) {
    const auto drag = [this] {
        fingers.down(1, on(jack));
        fingers.move(1, on(queen));
        ASSERT_TRUE(stage.holds());
    };
    drag();
    fingers.cancel();
    EXPECT_FALSE(stage.holds());
    fingers.up(1, on(queen), false);
    drag();
    fingers.up(1, on(queen), true);
    drag();
    fingers.up(1, {on(queen).x, 700}, false);
    drag();
    // A dialog opens, behind which the finger is never seen to leave.
    frmcards.set_enabled(false);
    fingers.down(2, on(jack));
    frmcards.set_enabled(true);
    EXPECT_FALSE(stage.holds());
    EXPECT_EQ(column_top(column_of_queen), column_of_queen);
    tap(on(frmcards.Image1(stock_image)), 3);
    EXPECT_EQ(turned_slot(), 4);
    // What the mouse holds is no business of a touch that comes to nothing.
    stage.press(on(jack).x, on(jack).y, MouseButton::left);
    fingers.cancel();
    EXPECT_TRUE(stage.holds());
}

}  // namespace
}  // namespace tarnwick

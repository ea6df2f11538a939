#pragma once

#include <gtest/gtest.h>

#include "board/display.h"
#include "tests/play/known_deal.h"
#include "tests/view/grid_window.h"

namespace tarnwick {

constexpr Point bare_table{60, 500};

/// A dealt board, which after everything done here has to be painted as a whole new picture would be.
class ShownBoard : public testing::Test {
  protected:
    void expect_shown() { EXPECT_TRUE(view.shows_all()); }
    /// Where a card is taken hold of, in the window; and where another one dropped on it lies beside it.
    Point on(const Widget& widget) const {
        return {widget.left() + 30.0, widget.place().bottom() - 8.0 - stage.scroll().offset()};
    }
    Point on(int pile) const { return on(top_image(pile)); }
    Point beside(int pile) const { return {on(pile).x + 15, on(pile).y - 40}; }
    void press(Point at) {
        stage.press(at.x, at.y, MouseButton::left);
        expect_shown();
    }
    void move(Point to) {
        stage.move(to.x, to.y, true);
        expect_shown();
    }
    void release(Point at, bool elsewhere = false) {
        stage.release(at.x, at.y, MouseButton::left, elsewhere);
        expect_shown();
    }
    void click(Point at) {
        press(at);
        release(at);
    }
    void drag(int pile, Point to) {
        press(on(pile));
        move(to);
    }
    void drop(int pile, Point to) {
        drag(pile, to);
        release(to);
    }
    void resize(int width, int height) {
        view.resize({width, height});
        expect_shown();
    }
    void pass(int milliseconds) {
        for (int i = 0; i < milliseconds; ++i) {
            game.desktop.advance(1);
            if (stage.next_step() && *stage.next_step() <= game.desktop.now()) stage.step();
        }
        expect_shown();
    }

    GridGame game{known_deal};
    GridView& view = game.view();
    BoardStage& stage = game.stage();
};

}  // namespace tarnwick

// A dealt board and what is done with it, seen through a front end that knows no toolkit.

#include <functional>
#include <random>

#include "notation/position.h"
#include "platform/key_codes.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "tests/view/shown_board.h"

namespace tarnwick {
namespace {

class BoardTest : public ShownBoard {
  protected:
    const std::vector<Image*>& lifted() { return stage.scene().drag().lifted(); }
    double dragged_by() { return stage.scene().drag().offset().x; }
};

TEST_F(BoardTest, LiftedCardsLieAboveTheOthersAndUnderTheScore) {
    const BoardLayers& layers = game.layers();
    const std::size_t at_rest = layers.images.size();
    EXPECT_FALSE(layers.mark || layers.shadow || layers.plate);
    const Picture jack = top_image(column_of_jack).picture();
    drag(column_of_jack, on(column_of_queen));
    game.layers();
    EXPECT_EQ(layers.images.size(), at_rest - 1) << "the Jack is not where it lay";
    ASSERT_EQ(layers.lifted.size(), 1U);
    EXPECT_EQ(layers.lifted[0].picture, jack);
    EXPECT_EQ(layers.shadow->pile, layers.lifted[0].place);
    EXPECT_TRUE(layers.mark && !layers.plate);
    const Area label = around(layers.labels.at(0).place);
    move({label.left + 20.0, label.top + 5.0});
    EXPECT_TRUE(game.layers().plate) << "between the card and the score";
}

TEST_F(BoardTest, IsPaintedAnewWhereItIsToldToHaveChanged) {
    drop(column_of_ace, on(frmcards.Shape1(2)));
    std::mt19937 random(1);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    const auto anywhere = [&] { return Point{below(800) + 0.0, below(560) + 0.0}; };
    for (int event = 0; event < 700 && !HasFailure(); ++event) {
        const int kind = below(14);
        SCOPED_TRACE(testing::Message() << event << ", " << kind);
        if (kind < 3) press(event % 2 == 0 ? on(below(10)) : anywhere());
        if (kind >= 3 && kind < 6) move(anywhere());
        if (kind == 6 || kind == 7) release(event % 2 == 0 ? on(below(10)) : anywhere());
        if (kind == 8) {
            save_setting(key_anamate, event % 2 == 0 ? "True" : "False");
            stage.cancel();
            click(on(below(10)));
        }
        if (kind == 9) stage.scroll_by(below(200) - 100);
        if (kind == 10) pass(below(60));
        if (kind == 10 && event % 3 == 0) stage.key_down(' ');
        if (kind == 11 && event % 3 == 0) view.resize({700 + below(100), 300 + below(300)});
        if (kind == 11 && event % 3 == 1 && frmcards.mnuUndo.visible()) frmcards.mnuUndo.choose();
        constexpr std::array keys{left_key, up_key, right_key, down_key, enter_key, enter_key, escape_key};
        if (kind > 11) stage.key_down(keys.at(static_cast<std::size_t>(below(keys.size()))));
        expect_shown();
    }
}

TEST_F(BoardTest, LetsARefusedCardGlideBack) {
    const double way = bare_table.x - on(column_of_jack).x;
    drop(column_of_jack, bare_table);
    EXPECT_EQ(dragged_by(), way) << "begins where it was let go";
    pass(80);
    EXPECT_TRUE(dragged_by() < 0 && dragged_by() > way / 2) << "fast at first";
    pass(90);
    EXPECT_TRUE(lifted().empty());
    EXPECT_FALSE(stage.next_step());
    const std::function<void()> ends[] = {
        [&] { press(bare_table); },
        [&] { stage.key_down(0); },
        [&] { resize(700, 500); },
        [&] { top_image(column_of_jack).bring_to_front(); },
        [&] { press(on(column_of_ace)); },
    };
    for (const auto& end : ends) {
        drop(column_of_jack, bare_table);
        ASSERT_FALSE(lifted().empty());
        end();
        EXPECT_TRUE(stage.scene().drag().glide().images().empty()) << &end - ends;
        expect_shown();
        stage.cancel();
    }
    drop(column_of_jack, bare_table);
    game.desktop.leave_questions_open();
    desktop().notify({});
    press(bare_table);
    stage.key_down(0);
    EXPECT_FALSE(lifted().empty()) << "no input counts behind a message";
    game.desktop.answer(MessageAnswer::ok);
    press(on(column_of_jack));
    stage.cancel();
    EXPECT_TRUE(lifted().empty()) << "what was not moved has no way back";
}

TEST_F(BoardTest, EndsADragWhoseCardCannotBeDroppedAnyMore) {
    const Point queen = on(column_of_queen);
    const std::function<void()> ends[] = {
        [&] { EXPECT_TRUE(stage.key_down(escape_key)); },
        [&] { stage.move(queen.x, queen.y, false); },
        [&] { release(queen, true); },
    };
    for (const auto& end : ends) {
        drag(column_of_jack, queen);
        end();
        EXPECT_FALSE(stage.holds()) << &end - ends;
        release(queen);
        EXPECT_EQ(column_top(column_of_queen), column_of_queen);
    }
}

TEST_F(BoardTest, LiftsWhatTheReceiverWouldTake) {
    Image& queen = top_image(column_of_queen);
    drop(column_of_jack, beside(column_of_queen));
    const std::vector both{&queen, &top_image(column_of_queen)};
    const Point king = on(column_of_king);
    press(on(*both[1]));
    for (const Point& place : {bare_table, king, bare_table, king}) {
        move(place);
        EXPECT_EQ(lifted() == both, place == king) << "the King takes the Queen as well, the table nothing";
    }
    release(king);
    EXPECT_EQ(column_top(column_of_king), column_of_king + 2);
    press({on(column_of_king).x, on(queen).y - 80});
    const BoardLayers& layers = game.layers();
    EXPECT_EQ(layers.lifted.back().picture, queen.picture()) << "held where it lies, it shows its whole face";
    EXPECT_EQ(layers.shadow->pile, united(layers.lifted[0].place, layers.lifted[1].place));
    move(on(3));
    EXPECT_EQ(lifted(), both) << "taken hold of by the upper edge, and nobody takes them";
}

TEST_F(BoardTest, ShowsThePointerWhatItCouldDo) {
    using Shape = PointerShape;
    const auto shape_at = [&](Point at, bool left_button = false) {
        stage.move(at.x, at.y, left_button);
        return view.shape;
    };
    const Point jack = on(column_of_jack);
    EXPECT_EQ(shape_at(on(frmcards.Image1(stock_image))), Shape::pointing_hand);
    EXPECT_EQ(shape_at({on(frmcards.Image1(face_down_image(5, 0))).x, 130}), Shape::arrow) << "face down";
    EXPECT_EQ(shape_at(jack), Shape::open_hand);
    EXPECT_EQ(shape_at(on(frmcards.Shape1(1))), Shape::arrow) << "an empty place";
    press(jack);
    EXPECT_EQ(view.shape, Shape::closed_hand);
    EXPECT_EQ(shape_at(bare_table, true), Shape::closed_hand);
    release(bare_table);
    EXPECT_EQ(view.shape, Shape::arrow) << "while the card glides back";
    // Without a move of the pointer, too.
    shape_at(on(frmcards.Shape1(0)));
    game.desktop.event([] { top_image(column_of_ace).move(frmcards.Shape1(0).left(), top_row); });
    view.shows_all();
    EXPECT_EQ(view.shape, Shape::open_hand) << "a card has come";
    frmcards.set_enabled(false);
    EXPECT_EQ(view.shape, Shape::arrow) << "behind a dialog";
    frmcards.set_enabled(true);
    for (const int key : {down_key, down_key, enter_key}) stage.key_down(key);
    EXPECT_TRUE(stage.holds());
    EXPECT_EQ(view.shape, Shape::open_hand) << "the keys hold a card";
    stage.cancel();
    resize(800, 300);
    EXPECT_EQ(shape_at({jack.x, 180}), Shape::arrow);
    stage.scroll_to(stage.scroll().range());
    EXPECT_EQ(view.shape, Shape::open_hand) << "scrolled";
}

}  // namespace
}  // namespace tarnwick

// A dealt board and what is done with it, seen through a front end that knows no toolkit.

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>

#include "board/display.h"
#include "notation/position.h"
#include "platform/key_codes.h"
#include "platform/timer.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "tests/view/grid_window.h"

namespace tarnwick {
namespace {

// The columns of this deal end in Q♦ 10♥ K♦ 6♠ A♣ 2♥ J♦ 9♣ 6♦ Q♣.
constexpr std::uint32_t deal = 26;
constexpr int column_of_king = 2;
constexpr int column_of_ace = 4;
constexpr int column_of_jack = 6;
constexpr int column_of_queen = 9;

struct Place {
    double x;
    double y;
};
constexpr Place bare_table{60, 500};

class ShownBoard : public testing::Test {
  protected:
    // Where the card is taken hold of, in the window; and where another one dropped on it lies beside it.
    Place on(const Widget& widget) {
        return {static_cast<double>(widget.left()) + 30,
                static_cast<double>(widget.place().bottom()) - 8 - stage.scroll().offset()};
    }
    Place beside(const Widget& widget) { return {on(widget).x + 15, on(widget).y - 40}; }
    void press(Place at) { stage.press(at.x, at.y, MouseButton::left); }
    void press(int column) { press(on(top_image(column))); }
    void move(Place to) { stage.move(to.x, to.y, true); }
    void release(Place at, bool elsewhere = false) {
        stage.release(at.x, at.y, MouseButton::left, elsewhere);
    }
    bool shows_all() { return view.shows_all(); }
    void pass(int milliseconds) {
        for (int i = 0; i < milliseconds; ++i) {
            game.desktop.advance(1);
            if (stage.next_step() && *stage.next_step() <= game.desktop.now()) stage.step();
        }
    }
    void resize(int width, int height) {
        view.resize({width, height});
        EXPECT_TRUE(shows_all());
    }
    const BoardDrag& drag() { return stage.scene().drag(); }

    GridGame game{deal};
    GridView& view = game.view();
    BoardStage& stage = game.stage();
};

TEST_F(ShownBoard, IsListedFromBackToFront) {
    const BoardLayers& layers = game.layers();
    EXPECT_EQ(layers.labels.size(), 3U);
    EXPECT_FALSE(layers.mark || layers.shadow || layers.plate);
    const std::size_t at_rest = layers.images.size();
    for (const PaintedImage& image : layers.images) {
        const auto is_there = [&](const PaintedImage& other) { return other.place == image.place; };
        EXPECT_EQ(std::count_if(layers.images.begin(), layers.images.end(), is_there), 1) << "covered";
    }
    const Picture jack = top_image(column_of_jack).picture();
    press(column_of_jack);
    move(on(top_image(column_of_queen)));
    game.layers();
    EXPECT_EQ(layers.images.size(), at_rest - 1) << "the Jack is not where it lay";
    ASSERT_EQ(layers.lifted.size(), 1U);
    EXPECT_EQ(layers.lifted[0].picture, jack);
    EXPECT_EQ(layers.shadow->pile, layers.lifted[0].place);
    EXPECT_TRUE(layers.mark && !layers.plate);
    const Area label = around(layers.labels[0].place);
    move({label.left + 20.0, label.top + 5.0});
    EXPECT_TRUE(game.layers().plate) << "a card under the score";
    EXPECT_TRUE(stage.scene().layers({400, 0, 10, 10}, 1).lifted.empty()) << "of another part";
}

TEST_F(ShownBoard, IsPaintedAnewWhereItIsToldToHaveChanged) {
    press(column_of_jack);
    EXPECT_TRUE(shows_all()) << "taken up";
    for (const Place& place : {bare_table,
                               beside(top_image(column_of_queen)),
                               on(top_image(column_of_king)),
                               Place{100, 590},
                               beside(top_image(column_of_queen))}) {
        move(place);
        EXPECT_TRUE(shows_all()) << place.x << ", " << place.y;
    }
    release(beside(top_image(column_of_queen)));
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
    EXPECT_TRUE(shows_all()) << "put down";
    press(column_of_ace);
    move(on(frmcards.Shape1(2)));
    EXPECT_TRUE(shows_all()) << "over an empty pile";
    stage.cancel();
    // Whatever is done next, at any time.
    std::mt19937 random(1);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    const auto anywhere = [&] { return Place{below(800) + 0.0, below(560) + 0.0}; };
    for (int event = 0; event < 700; ++event) {
        const int kind = below(14);
        if (kind < 3) press(anywhere());
        if (kind < 3 && event % 2 == 0) press(below(10));
        if (kind >= 3 && kind < 6) move(anywhere());
        if (kind == 6 || kind == 7) release(event % 2 == 0 ? on(top_image(below(10))) : anywhere());
        if (kind == 8) {
            save_setting(key_anamate, event % 2 == 0 ? "True" : "False");
            stage.cancel();
            const Place card = on(top_image(below(10)));
            press(card);
            release(card);
        }
        if (kind == 9) stage.scroll_by(below(200) - 100);
        if (kind == 10) pass(below(60));
        if (kind == 10 && event % 3 == 0) stage.key_down(' ');
        if (kind == 11 && event % 3 == 0) view.resize({700 + below(100), 300 + below(300)});
        if (kind == 11 && event % 3 == 1 && frmcards.mnuUndo.visible()) frmcards.mnuUndo.choose();
        constexpr std::array keys{left_key, up_key, right_key, down_key, enter_key, enter_key, escape_key};
        if (kind > 11) stage.key_down(keys.at(static_cast<std::size_t>(below(keys.size()))));
        ASSERT_TRUE(shows_all()) << event << ", " << kind;
    }
}

TEST_F(ShownBoard, LetsARefusedCardGlideBack) {
    const auto refuse = [this] {
        press(column_of_jack);
        move(bare_table);
        release(bare_table);
        EXPECT_TRUE(shows_all());
    };
    const Place home = on(top_image(column_of_jack));
    refuse();
    ASSERT_EQ(drag().lifted().size(), 1U);
    EXPECT_EQ(drag().offset().x, bare_table.x - home.x) << "begins where it was let go";
    pass(80);
    EXPECT_NEAR(drag().offset().x, (bare_table.x - home.x) * std::pow(70.0 / 150, 3), 0.1);
    EXPECT_TRUE(shows_all());
    pass(90);
    EXPECT_TRUE(drag().lifted().empty());
    EXPECT_FALSE(stage.next_step());
    EXPECT_TRUE(shows_all()) << "home again";
    const std::vector<std::function<void()>> ends{
        [&] { press(bare_table); },
        [&] { stage.key_down(0); },
        [&] {
            view.resize({700, 500});
        },
        [&] { top_image(column_of_jack).bring_to_front(); },
        [&] { press(column_of_ace); },
    };
    for (const auto& end : ends) {
        refuse();
        ASSERT_FALSE(drag().lifted().empty());
        end();
        EXPECT_TRUE(drag().glide().images().empty()) << &end - ends.data();
        EXPECT_TRUE(shows_all());
        stage.cancel();
    }
    refuse();
    game.desktop.leave_questions_open();
    desktop().notify({});
    press(bare_table);
    stage.key_down(0);
    EXPECT_FALSE(drag().lifted().empty()) << "no input counts behind a message";
    game.desktop.answer(MessageAnswer::ok);
    press(column_of_jack);
    stage.cancel();
    EXPECT_TRUE(drag().lifted().empty()) << "what was not moved has no way back";
}

TEST_F(ShownBoard, EndsADragWhoseCardCannotBeDroppedAnyMore) {
    const Place queen = on(top_image(column_of_queen));
    const std::vector<std::function<void()>> ends{
        [&] { EXPECT_TRUE(stage.key_down(escape_key)); },
        [&] { stage.cancel(); },
        [&] { stage.move(queen.x, queen.y, false); },
        [&] { release(queen, true); },
    };
    for (const auto& end : ends) {
        press(column_of_jack);
        move(queen);
        ASSERT_TRUE(stage.holds());
        end();
        EXPECT_FALSE(stage.holds()) << &end - ends.data();
        release(queen);
        EXPECT_EQ(column_top(column_of_queen), column_of_queen);
        EXPECT_TRUE(shows_all());
    }
}

TEST_F(ShownBoard, IsScrolledToWhatLiesBelowTheWindow) {
    EXPECT_EQ(stage.scroll().range(), 0);
    stage.key_down(end_key);
    stage.scroll_by(BoardScroll::step);
    EXPECT_EQ(stage.scroll().value(), 0) << "all is seen";
    resize(800, 300);
    const int range = stage.scroll().range();
    EXPECT_GE(range, stage.scene().lower_edge() - 300 + 4);
    const Box label = game.layers().labels[0].place;
    const auto scrolled = [&](int value) {
        EXPECT_EQ(stage.scroll().value(), value);
        const int offset = value / 4 * 4;
        EXPECT_EQ(stage.scroll().offset(), offset) << "whole device pixels at quarter scales";
        EXPECT_EQ(game.layers().labels[0].place.top, label.top + offset) << "the score stays";
        EXPECT_TRUE(shows_all());
    };
    stage.scroll_by(50);
    scrolled(50);
    stage.key_down(page_up_key);
    scrolled(0);
    stage.scroll_to(range + 1);
    scrolled(range);
    stage.scroll_by(std::numeric_limits<int>::max());
    scrolled(range);
    stage.key_down(home_key);
    stage.key_down(page_down_key);
    scrolled(std::min(range, 150));
    stage.key_down(end_key);
    scrolled(range);
    stage.reveal(20);
    scrolled(0);
    stage.reveal(310);
    scrolled(34);
    view.texts.scale = 3;
    stage.font_changed();
    EXPECT_TRUE(shows_all()) << "larger labels";
    resize(800, 570);
    EXPECT_EQ(stage.scroll().value(), 0) << "all is seen again";
}

TEST_F(ShownBoard, ScrollsUnderACardHeldAtItsEdge) {
    const Place jack = on(top_image(column_of_jack));
    const int height = static_cast<int>(jack.y) + 40;
    ASSERT_GT(on(top_image(column_of_queen)).y, height) << "not seen";
    resize(800, height);
    press(column_of_jack);
    move(on(top_image(column_of_queen)));
    release(on(top_image(column_of_queen)));
    EXPECT_EQ(column_top(column_of_queen), column_of_queen) << "nobody receives what falls below the window";
    pass(200);
    press({jack.x, height - 10.0});
    EXPECT_FALSE(stage.next_step()) << "only pressed";
    release({jack.x, height - 10.0});
    press(column_of_jack);
    const Place edge{on(top_image(column_of_queen)).x, height - 20.0};
    move(edge);
    pass(24);
    EXPECT_EQ(stage.scroll().value(), 0);
    pass(26);
    EXPECT_EQ(stage.scroll().value(), 24) << "a step every 25 milliseconds";
    EXPECT_TRUE(shows_all());
    pass(1000);
    const int range = stage.scroll().range();
    EXPECT_EQ(stage.scroll().value(), range);
    EXPECT_FALSE(stage.next_step());
    EXPECT_EQ(frmcards.mouse().receiver(), &top_image(column_of_queen)) << "another card under the pointer";
    const double down = drag().offset().y;
    stage.scroll_to(0);
    const int scrolled = range / 4 * 4;
    EXPECT_EQ(drag().offset().y, down - scrolled) << "under the pointer at once";
    stage.scroll_to(range);
    move({edge.x, 20});
    pass(1000);
    EXPECT_EQ(stage.scroll().value(), 0);
    stage.cancel();
    EXPECT_TRUE(shows_all());
}

TEST_F(ShownBoard, LiftsWhatTheReceiverWouldTake) {
    press(column_of_jack);
    move(beside(top_image(column_of_queen)));
    release(beside(top_image(column_of_queen)));
    const Image& queen = frmcards.Image1(layout(column_of_queen, column_of_queen, column_picture_field));
    const Image& jack = top_image(column_of_queen);
    const std::vector<Image*> both{const_cast<Image*>(&queen), const_cast<Image*>(&jack)};
    const Place king = on(top_image(column_of_king));
    press(on(jack));
    move(bare_table);
    EXPECT_EQ(drag().lifted(), std::vector{both[1]}) << "the one taken hold of";
    EXPECT_TRUE(shows_all());
    move(king);
    EXPECT_EQ(drag().lifted(), both) << "the King takes the Queen as well";
    EXPECT_TRUE(shows_all());
    move(bare_table);
    EXPECT_EQ(drag().lifted(), std::vector{both[1]});
    EXPECT_TRUE(shows_all());
    move(king);
    release(king);
    EXPECT_EQ(column_top(column_of_king), column_of_king + 2);
    EXPECT_TRUE(shows_all());
    press({on(top_image(column_of_king)).x, on(queen).y - 80});
    ASSERT_EQ(drag().lifted(), both) << "by its upper edge";
    const Image& six = top_image(3);
    move(on(six));
    EXPECT_EQ(drag().lifted(), both) << "nobody takes them";
    EXPECT_TRUE(shows_all());
}

TEST_F(ShownBoard, ShowsThePointerWhatItCouldDo) {
    using Shape = PointerShape;
    const auto shape_at = [&](Place at, bool left_button = false) {
        stage.move(at.x, at.y, left_button);
        return view.shape;
    };
    const Place jack = on(top_image(column_of_jack));
    EXPECT_EQ(shape_at(bare_table), Shape::arrow);
    EXPECT_EQ(shape_at(on(frmcards.Image1(stock_image))), Shape::pointing_hand);
    EXPECT_EQ(shape_at({on(frmcards.Image1(face_down_image(5, 0))).x, 130}), Shape::arrow)
        << "a face-down card";
    EXPECT_EQ(shape_at(on(frmcards.Shape1(1))), Shape::arrow) << "an empty place";
    EXPECT_EQ(shape_at(jack), Shape::open_hand);
    press(jack);
    EXPECT_EQ(view.shape, Shape::closed_hand);
    EXPECT_EQ(shape_at(on(top_image(column_of_queen)), true), Shape::closed_hand);
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
    EXPECT_EQ(view.shape, Shape::open_hand);
    stage.key_down(down_key);
    stage.key_down(down_key);
    stage.key_down(enter_key);
    EXPECT_TRUE(stage.holds());
    EXPECT_EQ(view.shape, Shape::open_hand) << "the keys hold a card";
    stage.cancel();
    resize(800, 300);
    shape_at({jack.x, 180});
    EXPECT_EQ(view.shape, Shape::arrow);
    stage.scroll_to(stage.scroll().range());
    EXPECT_EQ(view.shape, Shape::open_hand) << "scrolled";
}

TEST_F(ShownBoard, ShowsAndTellsHowManyCardsAreLeftInTheStock) {
    const Image& stock = frmcards.Image1(stock_image);
    const Place middle{static_cast<double>(stock.left()) + 30, static_cast<double>(stock.top()) + 40};
    const auto tip = [&](Place at) {
        const std::optional<BoardTip> told = stage.tip_at(at.x, at.y);
        return told ? told->text : "";
    };
    const auto edges = [&] {
        const Area pile = stage.scene().area_of(stock);
        int cards = 0;
        for (const PaintedImage& image : game.layers().images) {
            if (!image.place.meets(around(box_of(stock.place())))) continue;
            ++cards;
            EXPECT_EQ(united(pile, image.place), pile) << "repainted with the stock";
            EXPECT_LT(image.place.right(), turned_card_left) << "beside the turned card";
        }
        return std::max(0, cards - 1);
    };
    EXPECT_EQ(tip(middle), "45 cards lie face down");
    std::string seen;
    for (int left = 45; left > 0; left -= 5) {
        EXPECT_TRUE(shows_all()) << left;
        pass(200);
        EXPECT_TRUE(shows_all()) << left;
        seen += std::to_string(edges());
        press(middle);
        release(middle);
    }
    EXPECT_EQ(seen, "443322110") << "the last five lie flat";
    EXPECT_EQ(edges(), 0);
    EXPECT_EQ(tip(middle), "No card lies face down: a click turns the cards over");
    set_position("0: Q♠\ntablet: (2♣) 3♣");
    EXPECT_EQ(tip(middle), "1 card lies face down");
    frmcards.Image1(stock_image).click();
    EXPECT_EQ(tip(middle), "") << "turned for good";
    EXPECT_EQ(edges(), 0);
    EXPECT_TRUE(shows_all());
}

TEST_F(ShownBoard, TellsAndCopiesTheNumberOfTheDeal) {
    const auto tip = [&](Place at) { return stage.tip_at(at.x, at.y); };
    const Area label = around(game.layers().labels[2].place);
    const Place on_label{label.left + 3.0, label.top + 3.0};
    ASSERT_TRUE(tip(on_label));
    EXPECT_EQ(tip(on_label)->text, "Deal 26 (Ctrl+C copies the number)");
    EXPECT_TRUE(tip(on_label)->area.meets(around(game.layers().labels[0].place)));
    EXPECT_FALSE(tip(bare_table) || tip(on(top_image(column_of_jack))));
    resize(800, 300);
    stage.scroll_to(60);
    const Area moved = around(game.layers().labels[0].place).shifted(0, -60);
    EXPECT_TRUE(tip({moved.left + 3.0, moved.top + 3.0})) << "in its place of the window";
    press(column_of_jack);
    EXPECT_FALSE(tip({moved.left + 3.0, moved.top + 3.0})) << "a card is held";
    stage.cancel();
    frmcards.copy();
    EXPECT_EQ(game.desktop.copied(), "26");
    frmcards.mnuNew.choose();
    frmcards.set_enabled(false);
    frmcards.copy();
    EXPECT_EQ(game.desktop.copied(), "26") << "behind a dialog";
    frmcards.set_enabled(true);
    frmcards.copy();
    EXPECT_EQ(game.desktop.copied(), "27");
}

TEST_F(ShownBoard, TellsWhenTheNextTimerTicks) {
    const std::optional<std::int64_t> left = time_to_next_tick();
    ASSERT_TRUE(left && *left > 0);
    game.desktop.sleep(*left - 1);
    EXPECT_EQ(time_to_next_tick(), 1);
    game.desktop.event([&] {
        game.desktop.sleep(5000);
        EXPECT_EQ(time_to_next_tick(), 0) << "late";
        game.desktop.leave_questions_open();
        desktop().notify({});
        EXPECT_FALSE(time_to_next_tick()) << "waits for the answer";
    });
    game.desktop.answer(MessageAnswer::ok);
    EXPECT_EQ(time_to_next_tick(), 0);
}

}  // namespace
}  // namespace tarnwick

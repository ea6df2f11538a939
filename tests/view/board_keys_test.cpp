// A board that is played without a pointer.

#include <functional>

#include "board/peek.h"
#include "notation/position.h"
#include "notation/record_text.h"
#include "platform/key_codes.h"
#include "platform/random.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/store/scratch_folder.h"
#include "tests/view/shown_board.h"
#include "view/contrast.h"
#include "view/spoken_board.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

class KeysOfABoard : public ShownBoard {
  protected:
    // A letter for an arrow (l, r, u, d), * for Enter, ! for Escape.
    void type(const std::string& keys) {
        for (const char key : keys) {
            const std::array codes{left_key, up_key, right_key, down_key, enter_key, escape_key};
            stage.key_down(codes.at(std::string("lurd*!").find(key)));
            view.go_on();
        }
    }
    // What the cursor is on, and what is told of it besides.
    std::string item() {
        const std::vector<BoardItem> items = frmcards.on_describe();
        const BoardItem* found = find_item(items, stage.scene().cursor().item());
        const std::string hint(stage.cursor_hint());
        return found ? found->name + (hint.empty() ? "" : "; " + hint) : "";
    }
    std::string after(const std::string& keys) {
        type(keys);
        EXPECT_TRUE(view.shows_all()) << keys;
        return item();
    }
    void expect(const std::vector<std::pair<const char*, const char*>>& steps) {
        for (const auto& [keys, name] : steps) EXPECT_EQ(after(keys), name) << keys;
    }
    static PilePlace place_of(int pile) {
        if (pile == tablet_pile) return {0, 1};
        return pile >= ace_pile(0) ? PilePlace{0, pile - ace_pile(0) + 2} : PilePlace{1, pile};
    }
    // Goes to the card in front of a pile.
    void go_to(int pile) { go_to(place_of(pile)); }
    void go_to(PilePlace wanted) {
        const BoardCursor& cursor = stage.scene().cursor();
        if (!cursor.shown()) type("d");
        while (cursor.position().depth > 0 || cursor.position().pile.row != wanted.row) type("d");
        for (int i = 0; i < 10 && cursor.position().pile != wanted; ++i) type("r");
        ASSERT_EQ(cursor.position().pile, wanted);
    }
    void lift(int pile) {
        go_to(pile);
        type("*");
        ASSERT_TRUE(stage.holds());
    }
};

TEST_F(KeysOfABoard, ArrowsGoFromPileToPileAndAlongColumns) {
    EXPECT_EQ(after("*"), "") << "nothing is seen before an arrow key";
    EXPECT_TRUE(game.layers().rings.empty());
    expect({{"d", "stock, 45 cards face down"},
            {"l", "empty ace pile 4"},
            {"rr", "empty ace pile 1"},
            {"d", "6 of Spades, column 4, on top"},
            {"r", "Ace of Clubs, column 5, on top"},
            {"u", "face-down card 4 of column 5"},
            {"uuu", "face-down card 1 of column 5"},
            {"u", "empty ace pile 1"},
            {"dud", "Ace of Clubs, column 5, on top"},
            {"uur", "2 of Hearts, column 6, on top"},
            {"lllll", "Queen of Diamonds, column 1, on top"},
            {"l", "Queen of Clubs, column 10, on top"},
            {"dl", "empty ace pile 3"}});
    set_position("0: [..] K♠ Q♥ J♠\n3: 5♦\nace 0: A♠ 2♠\ntablet: (4♣)");
    type("ll");
    expect({{"l", "4 of Clubs, turned card"},  // for the stock is gone
            {"l", "empty ace pile 4"},
            {"rrd", "5 of Diamonds, column 4, on top"},
            {"l", "empty column 3"}});
}

TEST_F(KeysOfABoard, TheRingIsSeenOnATableOfAnyColor) {
    type("d");
    for (const Color table : {black, color_of(255, 255, 255), color_of(0, 128, 0), color_of(128, 128, 128)}) {
        frmcards.set_back_color(table);
        const std::vector<PaintedRing>& rings = game.layers().rings;
        ASSERT_EQ(rings.size(), 2U);
        EXPECT_GT(contrast(rings[0].color, table), 4) << "around";
        EXPECT_GT(contrast(rings[0].color, rings[1].color), 7);
        const Box card = box_of(frmcards.Image1(stock_image).place());
        EXPECT_TRUE(rings[1].middle.grown(-rings[1].line / 2) == box_of(snapped(card, 1)));
    }
    type("rrrdu");
    EXPECT_EQ(game.layers().rings[1].middle.height, 22) << "the strip that the next card leaves free";
}

TEST_F(KeysOfABoard, EnterTakesUpAndPutsDown) {
    go_to(column_of_jack);
    expect({{"*", "Jack of Diamonds, column 7, on top; lifted"},
            {"r", "9 of Clubs, column 8, on top; does not take the lifted card"},
            {"rr", "Queen of Clubs, column 10, on top; takes the lifted card"}});
    const Image& queen = top_image(column_of_queen);
    ASSERT_EQ(game.layers().lifted.size(), 1U);
    EXPECT_NEAR(game.layers().lifted[0].place.top, queen.top() + 0.2 * queen.height(), 1)
        << "where it will lie";
    EXPECT_EQ(after("*"), "Jack of Diamonds, column 10, on top");
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
    lift(3);
    expect({{"l*", "6 of Spades, column 4, on top"},  // refused, and back with it
            {"*u", "empty ace pile 1; does not take the lifted card"},
            {"!", "6 of Spades, column 4, on top"},
            {"*rl", "6 of Spades, column 4, on top; lifted"}});
    type("!");
    // The Queen goes along with the Jack, and hides the King no more than a card alone would.
    lift(column_of_queen);
    EXPECT_EQ(after("rrr"), "King of Diamonds, column 3, on top; takes the lifted card");
    EXPECT_EQ(game.layers().lifted.size(), 2U);
    EXPECT_GT(game.layers().lifted[0].place.top, top_image(2).top() + 10);
    expect({{"*", "Jack of Diamonds, column 3, on top"}, {"u*rl", "Queen of Clubs, column 3; lifted"}});
    EXPECT_LT(game.layers().lifted[0].place.top, queen.top()) << "raised";
    expect({{"r*", "Queen of Clubs, column 3"}});
}

TEST_F(KeysOfABoard, AreToldToThoseWhoHaveThemReadOut) {
    const auto told = [this](const std::string& keys) {
        view.cursor_moves = 0;
        type(keys);
        return view.cursor_moves;
    };
    EXPECT_EQ(told("d"), 1);
    EXPECT_EQ(told("*"), 0) << "the stock is called differently, and that is told as such";
    EXPECT_EQ(told("d"), 1);
    EXPECT_EQ(told("*"), 1) << "lifted";
    EXPECT_EQ(told("r"), 1);
    EXPECT_EQ(told("!"), 1);
    stage.press(1, 1, MouseButton::left);
    EXPECT_EQ(view.cursor_moves, 2) << "out of sight";
}

TEST_F(KeysOfABoard, EnterTwiceIsAClick) {
    go_to(column_of_ace);
    EXPECT_EQ(after("**"), "Queen of Spades, column 5, on top") << "what lay under the ace";
    EXPECT_EQ(aces(0, rank_field), ace);
    go_to(0);
    EXPECT_EQ(after("**"), "Queen of Diamonds, column 1, on top") << "no neighbour is tried";
    go_to(PilePlace{0, 0});
    EXPECT_EQ(after("**"), "stock, 35 cards face down");
    go_to(5);
    EXPECT_TRUE(after("u*").ends_with(", face-down card 5 of column 6")) << item();
    EXPECT_TRUE(peek_is_under_way());
    go_to(0);
    for (const bool again : {false, true}) stage.key_down(enter_key, again);
    EXPECT_TRUE(stage.holds()) << "held down, Enter counts once";
}

TEST_F(KeysOfABoard, WhateverHappensEndsWhatTheKeysHold) {
    const Widget& queen = top_image(column_of_queen);
    const auto moves_pointer = [&](double by) { stage.move(100 + by, 500, false); };
    const auto click_with_mouse = [&] {
        press(on(queen));
        EXPECT_EQ(frmcards.mouse().dragged(), &queen) << "the mouse's own";
        release(on(queen));
    };
    const auto type_behind_dialog = [&] {
        frmcards.set_enabled(false);
        type("l*");
        frmcards.set_enabled(true);
    };
    const struct {
        std::function<void()> end;
        bool shown = true;
    } ends[] = {
        {[&] { stage.cancel(); }},
        {[&] { moves_pointer(9); }, false},
        {click_with_mouse, false},
        {[&] { frmcards.mnuUndo.choose(); }},
        {type_behind_dialog},
        {[&] { frmcards.user_changed_state(WindowState::minimized); }},
        {[&] { frmcards.mnuRestart.choose(); }},
    };
    stage.key_down(space_key);
    for (const auto& end : ends) {
        SCOPED_TRACE(&end - ends);
        moves_pointer(0);
        lift(column_of_jack);
        type("rrr");
        moves_pointer(7);
        stage.release(110, 500, MouseButton::left, false);
        ASSERT_TRUE(stage.holds()) << "a bump against the table";
        end.end();
        EXPECT_FALSE(stage.holds());
        EXPECT_EQ(stage.scene().cursor().shown(), end.shown);
        EXPECT_EQ(column_top(column_of_queen), column_of_queen);
        EXPECT_EQ(after(end.shown ? "" : "l"), "Jack of Diamonds, column 7, on top") << "back with the card";
    }
    // Nor do keys come between a press of the mouse and its release.
    press(on(queen));
    type("ll*");
    EXPECT_FALSE(stage.scene().cursor().shown());
    EXPECT_EQ(frmcards.mouse().dragged(), &queen);
}

TEST_F(KeysOfABoard, WhatIsHeldKeepsItsPlaceInANewLayout) {
    lift(column_of_jack);
    type("rrr");
    view.resize({900, 640});
    EXPECT_EQ(after(""), "Queen of Clubs, column 10, on top; takes the lifted card");
    EXPECT_NEAR(game.layers().lifted[0].place.left, top_image(column_of_queen).left(), 1);
    frmcards.Timer1.on_tick();
    type("*");
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
}

TEST_F(KeysOfABoard, TheBoardIsScrolledToTheCursor) {
    resize(800, 250);
    const auto is_seen = [&] {
        const PaintedRing& ring = game.layers().rings.at(0);
        const Box outside = ring.middle.grown(ring.line / 2);
        const int top = stage.scroll().offset();
        return outside.top >= top && outside.bottom() <= top + 250;
    };
    go_to(column_of_queen);
    EXPECT_GT(stage.scroll().offset(), 0);
    EXPECT_TRUE(is_seen());
    type("d");
    EXPECT_TRUE(is_seen());
    lift(column_of_jack);
    const int before = stage.scroll().offset();
    EXPECT_EQ(after("rrr"), "Queen of Clubs, column 10, on top; takes the lifted card");
    EXPECT_GT(stage.scroll().offset(), before);
    pass(500);
    EXPECT_FALSE(stage.next_step()) << "no edge scrolls under the keys";
    stage.scroll_to(0);
    type("*");
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1) << "dropped where it is seen";
}

TEST_F(KeysOfABoard, CoverTheScreenAndLeaveIt) {
    stage.key_down(f11_key);
    EXPECT_TRUE(view.fills_screen);
    stage.key_down(f11_key, true);
    lift(0);
    type("!");
    EXPECT_TRUE(view.fills_screen) << "the card was put back, and no more";
    stage.key_down(escape_key, true);
    EXPECT_TRUE(view.fills_screen) << "held down";
    type("!");
    EXPECT_FALSE(view.fills_screen);
    type("!");
    EXPECT_FALSE(view.fills_screen);
    frmcards.set_enabled(false);
    EXPECT_FALSE(stage.key_down(f11_key));
    EXPECT_FALSE(view.fills_screen) << "behind a dialog";
}

TEST_F(KeysOfABoard, WinAGame) {
    const std::vector<Action> record = parse_record(ScratchFolder::contents(TARNWICK_WINNING_GAME));
    random_generator().replay(record[0].deal);
    frmcards.mnuNew.choose();
    for (std::size_t i = 1; i < record.size(); ++i) {
        const Action& action = record[i];
        const bool turns = action.kind == ActionKind::turn;
        const std::string before = position_text();
        // Time for a card that slides to leave what it covers.
        game.desktop.advance(100);
        go_to(turns ? PilePlace{0, 0} : place_of(action.source));
        type("*");
        if (!turns) {
            go_to(place_of(action.target));
            type("*");
        }
        ASSERT_NE(position_text(), before) << text_of(action);
    }
    EXPECT_TRUE(frmyouwin.visible() && frmyouwin.lblYouWin.visible());
}

}  // namespace
}  // namespace tarnwick

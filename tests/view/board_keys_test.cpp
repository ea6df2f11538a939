// A board that is played without a pointer.

#include "view/board_keys.h"

#include <gtest/gtest.h>

#include <functional>

#include "board/display.h"
#include "board/peek.h"
#include "notation/position.h"
#include "notation/record_player.h"
#include "notation/record_text.h"
#include "platform/key_codes.h"
#include "state/variables.h"
#include "tests/play/known_deal.h"
#include "tests/play/play.h"
#include "tests/store/scratch_folder.h"
#include "tests/view/grid_window.h"
#include "view/contrast.h"
#include "view/spoken_board.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

class KeysOfABoard : public testing::Test {
  protected:
    explicit KeysOfABoard(std::uint32_t number = known_deal) : game(number) {}

    // A letter for an arrow (l, r, u, d), * for Enter, ! for Escape.
    void press(const std::string& keys) {
        for (const char key : keys) {
            const std::size_t number = std::string("lurd*!").find(key);
            const std::array codes{left_key, up_key, right_key, down_key, enter_key, escape_key};
            stage.key_down(codes.at(number));
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
        press(keys);
        EXPECT_TRUE(view.shows_all()) << keys;
        return item();
    }
    static PilePlace place_of(int pile) {
        if (pile == tablet_pile) return {0, 1};
        return pile >= ace_pile(0) ? PilePlace{0, pile - ace_pile(0) + 2} : PilePlace{1, pile};
    }
    /// Goes to the card in front of a pile.
    void go_to(int pile) { go_to(place_of(pile)); }
    void go_to(PilePlace wanted) {
        const BoardCursor& cursor = stage.scene().cursor();
        if (!cursor.shown()) press("d");
        while (cursor.position().depth > 0 || cursor.position().pile.row != wanted.row) press("d");
        for (int i = 0; i < 10 && cursor.position().pile != wanted; ++i) press("r");
        ASSERT_EQ(cursor.position().pile, wanted);
    }
    void lift(int pile) {
        go_to(pile);
        press("*");
        ASSERT_TRUE(stage.holds());
    }
    std::size_t rings() { return game.layers().rings.size(); }

    GridGame game;
    GridView& view = game.view();
    BoardStage& stage = game.stage();
};

TEST_F(KeysOfABoard, ArrowsGoFromPileToPileAndAlongColumns) {
    EXPECT_EQ(after("*"), "") << "nothing is seen before an arrow key";
    EXPECT_EQ(rings(), 0U);
    const std::pair<const char*, const char*> steps[] = {
        {"d", "stock, 45 cards face down"},
        {"l", "empty ace pile 4"},
        {"rr", "empty ace pile 1"},
        {"d", "6 of Spades, column 4, on top"},
        {"r", "Ace of Clubs, column 5, on top"},
        {"u", "face-down card 4 of column 5"},
        {"uuu", "face-down card 1 of column 5"},
        {"u", "empty ace pile 1"},
        {"d", "Ace of Clubs, column 5, on top"},
        {"ud", "Ace of Clubs, column 5, on top"},
        {"d", "empty ace pile 1"},
        {"u", "Ace of Clubs, column 5, on top"},
        {"uur", "2 of Hearts, column 6, on top"},
        {"lllll", "Queen of Diamonds, column 1, on top"},
        {"l", "Queen of Clubs, column 10, on top"},
        {"dl", "empty ace pile 3"},
    };
    for (const auto& [keys, name] : steps) EXPECT_EQ(after(keys), name) << keys;
    set_position("0: [..] K♠ Q♥ J♠\n3: 5♦\nace 0: A♠ 2♠\ntablet: (4♣)");
    press("ll");
    EXPECT_EQ(after("l"), "4 of Clubs, turned card") << "the stock is gone";
    EXPECT_EQ(after("l"), "empty ace pile 4");
    EXPECT_EQ(after("rrd"), "5 of Diamonds, column 4, on top");
    EXPECT_EQ(after("l"), "empty column 3");
}

TEST_F(KeysOfABoard, TheRingIsSeenOnATableOfAnyColor) {
    press("d");
    for (const Color table : {black, color_of(255, 255, 255), color_of(0, 128, 0), color_of(128, 128, 128)}) {
        frmcards.set_back_color(table);
        const std::vector<PaintedRing>& rings = game.layers().rings;
        ASSERT_EQ(rings.size(), 2U);
        EXPECT_GT(contrast(rings[0].color, table), 4) << "around";
        EXPECT_GT(contrast(rings[0].color, rings[1].color), 7);
        const Box card = box_of(frmcards.Image1(stock_image).place());
        EXPECT_TRUE(rings[1].middle.grown(-rings[1].line / 2) == box_of(snapped(card, 1)));
    }
    press("rrrdu");
    EXPECT_EQ(game.layers().rings[1].middle.height, 22) << "the strip that the next card leaves free";
    press("u");
    EXPECT_TRUE(view.shows_all());
}

TEST_F(KeysOfABoard, EnterTakesUpAndPutsDown) {
    lift(column_of_jack);
    EXPECT_EQ(item(), "Jack of Diamonds, column 7, on top; lifted");
    EXPECT_EQ(game.layers().lifted.size(), 1U);
    EXPECT_EQ(after("r"), "9 of Clubs, column 8, on top; does not take the lifted card");
    EXPECT_EQ(after("rr"), "Queen of Clubs, column 10, on top; takes the lifted card");
    EXPECT_TRUE(game.layers().mark);
    const Image& queen = top_image(column_of_queen);
    EXPECT_NEAR(game.layers().lifted[0].place.top, queen.top() + 0.2 * queen.height(), 1)
        << "where it will lie";
    EXPECT_EQ(after("*"), "Jack of Diamonds, column 10, on top");
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
    lift(3);
    EXPECT_EQ(after("l*"), "6 of Spades, column 4, on top") << "refused, and back with it";
    EXPECT_EQ(after("*rr!"), "6 of Spades, column 4, on top") << "put back";
    EXPECT_EQ(after("*l!*"), "6 of Spades, column 4, on top; lifted");
    EXPECT_EQ(after("rl"), "6 of Spades, column 4, on top; lifted") << "home again";
    press("!");
    EXPECT_EQ(column_top(3), 3);
    // The Queen goes along with the Jack, and hides the King no more than a card alone would.
    lift(column_of_queen);
    EXPECT_EQ(after("rrr"), "King of Diamonds, column 3, on top; takes the lifted card");
    EXPECT_EQ(game.layers().lifted.size(), 2U);
    EXPECT_GT(game.layers().lifted[0].place.top, top_image(2).top() + 10);
    EXPECT_EQ(after("*"), "Jack of Diamonds, column 3, on top");
    EXPECT_EQ(after("u*"), "Queen of Clubs, column 3; lifted");
    EXPECT_EQ(after("r*"), "Queen of Clubs, column 3") << "the same card of the same pile";
}

TEST_F(KeysOfABoard, AreToldToThoseWhoHaveThemReadOut) {
    const auto told = [this](const std::string& keys) {
        view.cursor_moves = 0;
        press(keys);
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
    EXPECT_FALSE(stage.holds());
    go_to(5);
    EXPECT_TRUE(after("u*").ends_with(", face-down card 5 of column 6")) << item();
    EXPECT_TRUE(peek_is_under_way());
    go_to(ace_pile(3));
    EXPECT_EQ(after("*"), "empty ace pile 4");
    // Held down, Enter counts once.
    go_to(0);
    for (const bool again : {false, true, true}) stage.key_down(enter_key, again);
    EXPECT_TRUE(stage.holds());
}

TEST_F(KeysOfABoard, WhateverHappensEndsWhatTheKeysHold) {
    const Widget& queen = top_image(column_of_queen);
    const auto moves_pointer = [&](double by) { stage.move(100 + by, 500, false); };
    const auto clicks = [&] {
        const double x = queen.left() + 30.0;
        const double y = queen.top() + 40.0;
        stage.press(x, y, MouseButton::left);
        EXPECT_EQ(frmcards.mouse().dragged(), &queen) << "the mouse's own";
        stage.release(x, y, MouseButton::left, false);
    };
    const struct {
        std::function<void()> end;
        bool shown;
    } ends[] = {
        {[&] { stage.cancel(); }, true},
        {[&] { moves_pointer(9); }, false},
        {clicks, false},
        {[&] { frmcards.mnuUndo.choose(); }, true},
        {[&] {
             frmcards.set_enabled(false);
             press("l*");
             frmcards.set_enabled(true);
         },
         true},
        {[&] { frmcards.user_changed_state(WindowState::minimized); }, true},
        {[&] { frmcards.mnuRestart.choose(); }, true},
    };
    stage.key_down(space_key);
    for (const auto& [end, shown] : ends) {
        moves_pointer(0);
        lift(column_of_jack);
        press("rrr");
        moves_pointer(7);
        stage.release(110, 500, MouseButton::left, false);
        ASSERT_TRUE(stage.holds()) << "a bump against the table";
        end();
        EXPECT_FALSE(stage.holds()) << &end;
        EXPECT_TRUE(view.shows_all());
        EXPECT_EQ(stage.scene().cursor().shown(), shown);
        EXPECT_EQ(column_top(column_of_queen), column_of_queen);
        if (!shown) press("l");
        EXPECT_EQ(item(), "Jack of Diamonds, column 7, on top") << "back with the card";
    }
    // Nor do keys come between a press of the mouse and its release.
    stage.press(queen.left() + 30.0, queen.top() + 40.0, MouseButton::left);
    press("ll*");
    EXPECT_FALSE(stage.scene().cursor().shown());
    EXPECT_EQ(frmcards.mouse().dragged(), &queen);
}

TEST_F(KeysOfABoard, WhatIsHeldKeepsItsPlaceInANewLayout) {
    lift(column_of_jack);
    press("rrr");
    view.resize({900, 640});
    EXPECT_EQ(after(""), "Queen of Clubs, column 10, on top; takes the lifted card");
    EXPECT_NEAR(game.layers().lifted[0].place.left, top_image(column_of_queen).left(), 1);
    frmcards.Timer1.on_tick();
    press("*");
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
}

TEST_F(KeysOfABoard, TheBoardIsScrolledToTheCursor) {
    view.resize({800, 250});
    EXPECT_TRUE(view.shows_all());
    const auto is_seen = [&] {
        const PaintedRing& ring = game.layers().rings.at(0);
        const Box outside = ring.middle.grown(ring.line / 2);
        const int top = stage.scroll().offset();
        return outside.top >= top && outside.bottom() <= top + 250;
    };
    go_to(column_of_queen);
    EXPECT_GT(stage.scroll().offset(), 0);
    EXPECT_TRUE(is_seen());
    press("d");
    EXPECT_TRUE(is_seen());
    lift(column_of_jack);
    const int before = stage.scroll().offset();
    press("rrr");
    EXPECT_GT(stage.scroll().offset(), before);
    EXPECT_TRUE(item().ends_with("; takes the lifted card"));
    game.desktop.advance(500);
    view.go_on();
    EXPECT_FALSE(stage.next_step()) << "no edge scrolls under the keys";
    stage.scroll_to(0);
    press("*");
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1) << "dropped where it is seen";
}

TEST_F(KeysOfABoard, CoverTheScreenAndLeaveIt) {
    stage.key_down(f11_key);
    EXPECT_TRUE(view.fills_screen);
    stage.key_down(f11_key, true);
    lift(0);
    press("!");
    EXPECT_TRUE(view.fills_screen) << "the card was put back, and no more";
    stage.key_down(escape_key, true);
    EXPECT_TRUE(view.fills_screen) << "held down";
    press("!");
    EXPECT_FALSE(view.fills_screen);
    press("!");
    EXPECT_FALSE(view.fills_screen);
    frmcards.set_enabled(false);
    EXPECT_FALSE(stage.key_down(f11_key));
    EXPECT_FALSE(view.fills_screen) << "behind a dialog";
}

// A won game, and the positions that it goes through when it is played with the mouse.
struct WonGame {
    WonGame() {
        RecordPlayer player;
        for (const Action& action : record) {
            player.play(action);
            positions.push_back(position_text());
        }
    }
    std::vector<Action> record = parse_record(ScratchFolder::contents(TARNWICK_WINNING_GAME));
    std::vector<std::string> positions;
};

class KeysAlone : private WonGame, public KeysOfABoard {
  protected:
    KeysAlone() : KeysOfABoard(record[0].deal) {}
    using WonGame::positions;
    using WonGame::record;
};

TEST_F(KeysAlone, WinAGame) {
    for (std::size_t i = 1; i < record.size(); ++i) {
        const Action& action = record[i];
        const bool turns = action.kind == ActionKind::turn;
        // Time for a card that slides to leave what it covers.
        game.desktop.advance(100);
        go_to(turns ? PilePlace{0, 0} : place_of(action.source));
        press("*");
        if (!turns) {
            go_to(place_of(action.target));
            press("*");
        }
        ASSERT_EQ(position_text(), positions[i]) << text_of(action);
    }
    EXPECT_TRUE(frmyouwin.visible() && frmyouwin.lblYouWin.visible());
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "board/score.h"
#include "game/drops.h"
#include "notation/position.h"
#include "state/piles.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

struct Situation {
    const char* before;
    const char* played;
    const char* after;         // null: the move is refused
    const char* records = "";  // newest first
    const char* message = "";
};

constexpr const char* refused = nullptr;

// Plays the move and takes it back.
void expect_outcome(const Situation& situation) {
    SCOPED_TRACE(std::string(situation.before) + "\n" + situation.played);
    Play play;
    play.start(situation.before);
    const std::string before = position_text();
    play.act(situation.played);
    EXPECT_TRUE(situation.after ? shows(situation.after) : position_text() == before) << position_text();
    EXPECT_EQ(undo_records(), situation.records);
    EXPECT_EQ(play.message(), situation.message);
    EXPECT_EQ(score, score_of_state());
    EXPECT_EQ(display_faults(), "");
    for (int most = 3; most > 0 && undo_count() > 0; --most) play.undo();
    EXPECT_EQ(position_text(), before);
    EXPECT_EQ(display_faults(), "") << "after undo";
}

TEST(Move, BetweenColumns) {
    const Situation situations[] = {
        {"1: J♦ 10♠ 9♥ 8♣ 7♦\n2: 9♦", "drag 1 2", "1: J♦ 10♠ 9♥\n2: 9♦ 8♣ 7♦", "(1 2 1)"},
        // A card is turned up: a record of its own beneath the move's.
        {"0: 7♠\n4: [2♣] [K♣] 6♥", "drag 4 0", "0: 7♠ 6♥\n4: [2♣] K♣", "(4 0 0) (99 99 99)"},
        {"3: [9♣] K♠ Q♥ J♠\n5: -", "drag 3 5", "3: 9♣\n5: K♠ Q♥ J♠", "(3 5 2) (99 99 99)"},
        // Exchange: the King's run goes beneath the column that continues it.
        {"4: [3♦] [9♣] K♠ Q♥\n6: J♣ 10♦",
         "drag 4 6",
         "4: [3♦] 9♣\n6: K♠ Q♥ J♣ 10♦",
         "(4 6 3) (99 99 99) (6 4 1)"},
        {"9: [2♣] [3♣] [4♣] [5♣] [6♣] [7♣] [8♣] [9♣] [10♣] K♠ Q♥ J♠ 10♥ 9♠ 8♥\n0: 7♠ 6♥ 5♠ 4♥ 3♠ 2♥ A♠",
         "drag 9 0",
         "9: [2♣] [3♣] [4♣] [5♣] [6♣] [7♣] [8♣] [9♣] 10♣\n0: K♠ Q♥ J♠ 10♥ 9♠ 8♥ 7♠ 6♥ 5♠ 4♥ 3♠ 2♥ A♠",
         "(9 0 12) (99 99 99) (0 9 6)"},
        {"0: 7♠\n4: [6♥] 2♣", "drag 4 0", refused},
        {"3: [9♣] K♠ Q♥\n4: [J♣] 10♦", "drag 3 4", refused},
        {"3: [9♣] K♠ Q♥\n4: J♦ 10♣", "drag 3 4", refused},
    };
    for (const Situation& situation : situations) expect_outcome(situation);
}

TEST(Move, FromTabletAndAcePilesToAColumn) {
    const Situation situations[] = {
        {"0: 7♠\ntablet: 2♣ (6♥) 3♣", "drag tablet 0", "0: 7♠ 6♥\ntablet: (2♣) 3♣", "(16 0 1)"},
        {"tablet: (K♥) 3♣", "drag tablet 8", "8: K♥\ntablet: 3♣", "(16 8 1)"},
        // Both cards of a rank lie, one lies, the two on its ace.
        {"0: 4♣\nace 1: .. 3♥ 3♥'", "drag ace 1 0", "0: 4♣ 3♥'\nace 1: A♥ .. 3♥", "(13 0 1)"},
        {"0: 4♣\nace 1: A♥ 2♥' 2♥ 3♥", "drag ace 1 0", "0: 4♣ 3♥\nace 1: A♥ 2♥' 2♥", "(13 0 1)"},
        {"0: 3♥\nace 1: A♠ 2♠", "drag ace 1 0", "0: 3♥ 2♠\nace 1: A♠", "(13 0 1)"},
        {"ace 1: .. K♠ K♠'", "drag ace 1 9", "9: K♠'\nace 1: A♠ .. K♠", "(13 9 1)"},
        {"ace 0: A♥ 2♥", "drag ace 0 ace 3", refused},
        {"ace 0: A♥ 2♥", "drag ace 0 tablet", refused},
    };
    for (const Situation& situation : situations) expect_outcome(situation);
}

TEST(Move, ToAnAcePile) {
    const Situation situations[] = {
        {"3: [9♥] 2♠'\nace 0: A♠ 2♠", "drag 3 ace 0", "3: 9♥\nace 0: A♠ 2♠ 2♠'", "(3 12 1) (99 99 99)"},
        {"tablet: 2♥ (A♠) 3♥", "drag tablet ace 0", "ace 0: A♠\ntablet: (2♥) 3♥", "(16 12 1)"},
        {"tablet: 2♥ (3♠) 3♥\nace 0: A♠ 2♠' 2♠",
         "drag tablet ace 0",
         "ace 0: A♠ 2♠' 2♠ 3♠\ntablet: (2♥) 3♥",
         "(16 12 1)"},
        // The fourth ace earns the bonus.
        {"3: A♠\nace 1: A♥\nace 2: A♦\nace 3: A♣ 2♣", "drag 3 ace 0", "ace 0: A♠", "(3 12 1)"},
        {"tablet: (A♠)\nace 1: A♥\nace 2: A♦\nace 3: A♣ 2♣", "drag tablet ace 0", "ace 0: A♠", "(16 12 1)"},
        // A pile that refuses a card says what it waits for.
        {"4: 2♥", "drag 4 ace 0", refused, "", "Place a Ace at the bottom of the pile first"},
        {"tablet: (3♥)\nace 0: A♥",
         "drag tablet ace 0",
         refused,
         "",
         "Only a 2 of Hearts can be placed on the Ace of Hearts"},
        {"4: Q♦\nace 0: .. 10♦ 10♦'", "drag 4 ace 0", refused, "", "Place a Jack of Diamonds on top"},
        {"4: K♣\nace 0: .. Q♣", "drag 4 ace 0", refused, "", "Place the other Queen of Clubs on top"},
        {"4: K♥\nace 0: .. Q♣ Q♣'", "drag 4 ace 0", refused, "", "Place a King of Clubs on top"},
        {"4: K♥\nace 0: .. K♣ K♣'", "drag 4 ace 0", refused},
    };
    for (const Situation& situation : situations) expect_outcome(situation);
}

TEST(Move, OfAClickedCardGoesToItsAcePile) {
    const Situation situations[] = {
        {"4: 9♠ 8♥\nace 2: .. 7♥ 7♥'", "drag 4 4", "4: 9♠\nace 2: A♥ .. 8♥", "(4 14 1)"},
        {"4: A♣\nace 0: A♥\nace 2: A♠", "drag 4 4", "4: -\nace 1: A♣", "(4 13 1)"},
        {"tablet: 4♠ (2♦) 9♠\nace 3: A♦", "drag tablet tablet", "tablet: (4♠) 9♠\nace 3: A♦ 2♦", "(16 15 1)"},
        {"tablet: (A♦)", "drag tablet tablet", "tablet: -\nace 0: A♦", "(16 12 1)"},
        // No pile of the suit, a card that does not fit, a card on an ace pile: never a message.
        {"4: 2♣\nace 0: A♥", "drag 4 4", refused},
        {"tablet: (3♥)\nace 0: A♥", "drag tablet tablet", refused},
        {"ace 0: A♥ 2♥", "drag ace 0 ace 0", refused},
    };
    for (const Situation& situation : situations) expect_outcome(situation);
}

// The 7 of Spades fits on either neighbour of the column it is dropped on.
TEST(Move, RefusedByAColumnIsTriedOnTheNeighbourNearestToThePointer) {
    const struct {
        const char* played;
        const char* lands;
    } cases[] = {
        {"drag 6 3 at 19", "2: 8♦ 7♠"},
        {"drag 6 3 at 20", "6: 7♠"},
        {"drag 6 3 at 41", "6: 7♠"},
        {"drag 6 3 at 42", "4: 8♥ 7♠"},
        {"drag 6 4 at 10", "4: 8♥ 7♠"},
        {"drag 6 0 at 5", "6: 7♠"},
        {"drag 6 9 at 60", "6: 7♠"},
        {"drag 6 9 at 5", "8: 8♦' 7♠"},
        {"drag 6 0 at 60", "1: 8♥' 7♠"},
    };
    for (const int width : {798, 1598}) {
        for (const auto& [played, lands] : cases) {
            Play play;
            play.start("0: 3♣\n1: 8♥'\n2: 8♦\n3: 3♠\n4: 8♥\n6: 7♠\n8: 8♦'\n9: 3♠'");
            frmcards.user_resized({width, 900});
            play.act(played);
            EXPECT_TRUE(shows(lands)) << played << "\n" << position_text();
        }
    }
    const Situation at_the_edges[] = {
        {"0: 8♦\n1: 7♠", "drag 1 1 at 10", "0: 8♦ 7♠\n1: -", "(1 0 0)"},
        {"8: 7♠\n9: 8♥", "drag 8 8 at 50", "8: -\n9: 8♥ 7♠", "(8 9 0)"},
        {"3: 8♦\n4: 7♠\n5: 8♥", "drag 4 4", refused},
    };
    for (const Situation& situation : at_the_edges) expect_outcome(situation);
}

TEST(Move, IsOfTheCardThatFitsWhicheverOneIsTakenHoldOf) {
    for (const int slot : {0, 3}) {
        Play play;
        play.start("0: J♦ 10♠ 9♥ 8♣\n1: 10♣\nace 0: .. 7♣ 7♣'");
        play.drag_slot(0, slot, 1);
        EXPECT_TRUE(shows("0: J♦ 10♠\n1: 10♣ 9♥ 8♣")) << slot;
        play.undo();
        play.drag_slot(0, slot, 0);
        EXPECT_TRUE(shows("0: J♦ 10♠ 9♥\nace 0: A♣ .. 8♣")) << slot;
        // The card beneath on an ace pile stands for the pile, as what is dragged and as what is dropped on.
        const Image& beneath = frmcards.Image1(aces(0, beneath_picture_field));
        drag_image(top_image(0), beneath, 5);
        EXPECT_EQ(play.message(), "Place the other 8 of Clubs on top");
        frmcards.mouse().press(beneath.left() + 9, beneath.top() + 9);
        frmcards.mouse().release(top_image(0).left() + middle, top_image(0).top() + 8);
        EXPECT_TRUE(shows("0: J♦ 10♠ 9♥ 8♣"));
    }
}

TEST(AcePile, EmptiedByUndoTakesCardsAgainAndHidesNoneThatItOnceHeld) {
    Play play;
    play.start("0: A♥\n1: 2♥\n2: 2♥'\n3: A♠\n4: 2♠");
    play.act("drag 0 ace 1, drag 1 ace 1, drag 2 ace 1, undo, undo, undo, drag 3 ace 1, drag 4 ace 1");
    EXPECT_TRUE(shows("0: A♥\nace 1: A♠ 2♠"));
    EXPECT_EQ(display_faults(), "") << "the ace of Hearts is seen in its column";
}

TEST(AMove, FailsWhereANumberIsThatOfNoPile) {
    const struct {
        int from;
        int to;
        const char* routine;
    } cases[] = {{11, 0, "from_column_to_column"},
                 {17, 0, "from_ace_to"},
                 {0, 11, "from_column_to_column"},
                 {0, 17, "from_column_to"},
                 {tablet_pile, 11, "from_tablet_to_column"},
                 {tablet_pile, 17, "from_tablet_to"}};
    for (const auto& [from, to, routine] : cases) {
        Play play;
        play.start("0: 9♦\n1: 10♠\ntablet: (7♠)");
        const std::string before = position_text();
        drag_source = from;
        EXPECT_FALSE(column_to_column(to));
        EXPECT_EQ(frmError.LblError.caption(), std::string("Fatel Error in Subroutine ") + routine);
        EXPECT_EQ(position_text(), before);
    }
}

TEST(Undo, OfTheFirstTurnLeavesTheTabletWhenNothingElseIsRecorded) {
    Play play;
    play.start();
    play.act("turn");
    EXPECT_EQ(undo_records(), "(25 25 -1)");
    play.undo();
    EXPECT_EQ(turned_slot(), 4);
    EXPECT_FALSE(frmcards.mnuUndo.visible());
}

TEST(Undo, OfAFullListLosesAMoveTogetherWithTheCardItTurnedUp) {
    Play play;
    play.start("0: 7♠\n4: [2♣] [K♣] 6♥\ntablet: 2♥ 3♥ 4♥ 5♥ 6♥' 7♥ ..");
    play.drag(4, 0);
    play.click_stock(297);
    ASSERT_EQ(undo_list(most_undo_records - 1, 0), turned_up_record);
    play.click_stock();
    EXPECT_EQ(undo_count(), 298);
    for (int most = most_undo_records; most > 0 && undo_count() > 0; --most) play.undo();
    EXPECT_TRUE(shows("0: 7♠ 6♥\n4: [2♣] K♣"));
}

}  // namespace
}  // namespace tarnwick

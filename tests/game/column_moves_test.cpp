#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/support/play.h"

namespace tarnwick {
namespace {

struct Situation {
    const char* before;
    int from;
    int to;
    const char* after;
    int points;
    const char* records;  // newest first
};

void play_and_take_back(const Situation& situation) {
    Play play;
    play.start(situation.before);
    const std::string before = position_text();
    const int points = score;
    play.drag(situation.from, situation.to);
    EXPECT_TRUE(shows(situation.after)) << "wanted\n" << situation.after << "\nfound\n" << position_text();
    EXPECT_EQ(score, points + situation.points) << situation.before;
    EXPECT_EQ(undo_records(), situation.records) << situation.before;
    EXPECT_EQ(display_faults(), "") << situation.before;
    while (undo_count() > 0) play.undo();
    EXPECT_EQ(position_text(), before);
    EXPECT_EQ(display_faults(), "") << "after undo of\n" << situation.before;
}

TEST(MoveToColumn, KeepsTheRulesAndIsTakenBack) {
    const Situation situations[] = {
        // One card, a run, the card of a run that fits, in all four pairs of colours.
        {"0: 7♠\n1: 6♥", 1, 0, "0: 7♠ 6♥\n1: -", 0, "(1 0 0)"},
        {"0: 7♠\n1: 6♦", 1, 0, "0: 7♠ 6♦\n1: -", 0, "(1 0 0)"},
        {"0: 7♥\n1: 6♣", 1, 0, "0: 7♥ 6♣\n1: -", 0, "(1 0 0)"},
        {"0: 7♦\n1: 6♣'", 1, 0, "0: 7♦ 6♣'\n1: -", 0, "(1 0 0)"},
        {"0: 9♠\n1: J♦ 10♠ 9♥ 8♣ 7♦\n2: 9♦", 1, 2, "1: J♦ 10♠ 9♥\n2: 9♦ 8♣ 7♦", 0, "(1 2 1)"},
        {"2: 9♦ 8♠ 7♥ 6♠\n1: 7♦", 2, 1, "2: 9♦ 8♠ 7♥\n1: 7♦ 6♠", 0, "(2 1 0)"},
        // A card is turned up: a point, and a record of its own beneath the move's.
        {"0: 7♠\n4: [2♣] [K♣] 6♥", 4, 0, "0: 7♠ 6♥\n4: [2♣] K♣", 1, "(4 0 0) (99 99 99)"},
        // A King's run on an empty column, alone or from face-down cards.
        {"3: [9♣] K♠ Q♥ J♠\n5: -", 3, 5, "3: 9♣\n5: K♠ Q♥ J♠", 1, "(3 5 2) (99 99 99)"},
        {"3: K♠ Q♥ J♠\n5: -", 3, 5, "3: -\n5: K♠ Q♥ J♠", 0, "(3 5 2)"},
        // Exchange: the King's run goes beneath the column that continues it.
        {"4: [3♦] [9♣] K♠ Q♥\n6: J♣ 10♦", 4, 6, "4: [3♦] 9♣\n6: K♠ Q♥ J♣ 10♦", 1,
         "(4 6 3) (99 99 99) (6 4 1)"},
        {"4: K♠\n6: Q♦", 4, 6, "4: -\n6: K♠ Q♦", 0, "(4 6 1) (6 4 0)"},
        {"9: [2♣] [3♣] [4♣] [5♣] [6♣] [7♣] [8♣] [9♣] [10♣] K♠ Q♥ J♠ 10♥ 9♠ 8♥\n0: 7♠ 6♥ 5♠ 4♥ 3♠ 2♥ A♠", 9, 0,
         "9: [2♣] [3♣] [4♣] [5♣] [6♣] [7♣] [8♣] [9♣] 10♣\n0: K♠ Q♥ J♠ 10♥ 9♠ 8♥ 7♠ 6♥ 5♠ 4♥ 3♠ 2♥ A♠", 1,
         "(9 0 12) (99 99 99) (0 9 6)"},
        // From the tablet: a card on a card, a King on an empty column.
        {"0: 7♠\ntablet: 2♣ (6♥) 3♣", 16, 0, "0: 7♠ 6♥\ntablet: (2♣) 3♣", 1, "(16 0 1)"},
        {"tablet: 2♣ (K♥) 3♣", 16, 8, "8: K♥\ntablet: (2♣) 3♣", 1, "(16 8 1)"},
        // From an ace pile, for a point: both cards of a rank lie, one lies, the two on its ace, a King.
        {"0: 4♣\nace 1: A♥ .. 3♥ 3♥'", 13, 0, "0: 4♣ 3♥'\nace 1: A♥ .. 3♥", -1, "(13 0 1)"},
        {"0: 4♣\nace 1: A♥ 2♥' 2♥ 3♥", 13, 0, "0: 4♣ 3♥\nace 1: A♥ 2♥' 2♥", -1, "(13 0 1)"},
        {"0: 3♣\nace 1: A♥ 2♥", 13, 0, "0: 3♣ 2♥\nace 1: A♥", -1, "(13 0 1)"},
        {"0: 3♥\nace 1: A♠ 2♠", 13, 0, "0: 3♥ 2♠\nace 1: A♠", -1, "(13 0 1)"},
        {"0: 3♥\nace 1: A♠ 2♠ 2♠'", 13, 0, "0: 3♥ 2♠'\nace 1: A♠ 2♠", -1, "(13 0 1)"},
        {"ace 1: A♠ .. K♠ K♠'", 13, 9, "9: K♠'\nace 1: A♠ .. K♠", -1, "(13 9 1)"},
        // Refused: same colour, wrong step, no King on an empty column, runs that nothing fits.
        {"0: 7♠\n1: 6♣", 1, 0, "0: 7♠\n1: 6♣", 0, ""},
        {"0: 7♠\n1: 6♠", 1, 0, "0: 7♠\n1: 6♠", 0, ""},
        {"0: 7♥\n1: 6♦", 1, 0, "0: 7♥\n1: 6♦", 0, ""},
        {"0: 8♠\n1: 6♥", 1, 0, "0: 8♠\n1: 6♥", 0, ""},
        {"0: 6♥\n1: 7♠", 1, 0, "0: 6♥\n1: 7♠", 0, ""},
        {"0: Q♠\n1: -", 0, 1, "0: Q♠\n1: -", 0, ""},
        {"0: 7♠\n4: [6♥] 2♣", 4, 0, "0: 7♠\n4: [6♥] 2♣", 0, ""},
        {"3: [K♠] 2♣", 3, 5, "3: [K♠] 2♣\n5: -", 0, ""},
        {"tablet: (Q♥)", 16, 0, "0: -\ntablet: (Q♥)", 0, ""},
        {"0: 3♠\nace 1: A♠ 2♠", 13, 0, "0: 3♠\nace 1: A♠ 2♠", 0, ""},
        {"ace 1: A♠ .. Q♠", 13, 9, "9: -\nace 1: A♠ .. Q♠", 0, ""},
        // No exchange with a column whose bottom card is face down or does not continue the run.
        {"3: [9♣] K♠ Q♥\n4: [J♣] 10♦", 3, 4, "3: [9♣] K♠ Q♥\n4: [J♣] 10♦", 0, ""},
        {"3: [9♣] K♠ Q♥\n4: J♦ 10♣", 3, 4, "3: [9♣] K♠ Q♥\n4: J♦ 10♣", 0, ""},
        {"3: Q♥\n4: J♠", 3, 4, "3: Q♥\n4: J♠", 0, ""},
    };
    for (const Situation& situation : situations) play_and_take_back(situation);
}

TEST(MoveToColumn, TakesTheCardThatFitsWhicheverOneOfTheRunIsDragged) {
    for (const int slot : {0, 1, 2, 3}) {
        Play play;
        play.start("0: J♦ 10♠ 9♥ 8♣\n1: 10♣");
        play.drag_slot(0, slot, 1);
        EXPECT_TRUE(shows("0: J♦ 10♠\n1: 10♣ 9♥ 8♣")) << slot;
    }
}

TEST(MoveToColumn, LeavesTheAceOfSpadesAloneAsACardThatIsShownByItsOwnFace) {
    Play play;
    play.start("0: 3♥\nace 1: A♠ 2♠\nace 2: -");
    play.drag(ace_pile(1), 0);
    EXPECT_EQ(aces(1, picture_field), 225);
    EXPECT_EQ(display_faults(), "");
    // A later two lies directly on it again, and the third card's old number hides nothing.
    play.undo();
    EXPECT_TRUE(shows("ace 1: A♠ 2♠"));
    EXPECT_EQ(display_faults(), "");
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmcards.h"

// That every kind of move is taken back is told with the moves themselves.

namespace tarnwick {
namespace {

TEST(Undo, OfTheFirstTurnLeavesTheTabletWhenNothingElseIsRecorded) {
    Play play;
    play.start();
    EXPECT_FALSE(frmcards.mnuUndo.visible());
    play.click_stock();
    EXPECT_TRUE(frmcards.mnuUndo.visible());
    play.undo();
    EXPECT_EQ(turned_slot(), 4);
    EXPECT_FALSE(frmcards.mnuUndo.visible());
    EXPECT_EQ(display_faults(), "");
}

TEST(Undo, OfTurnsShowsTheStockAsItWas) {
    Play play;
    play.start("0: 7♠\n1: 6♥\ntablet: 2♥ 3♥ 4♥ 5♥ 6♥' 7♥");
    play.drag(1, 0);
    play.click_stock(3);
    for (const char* tablet :
         {"tablet: 2♥ 3♥ 4♥ 5♥ 6♥' (7♥)", "tablet: 2♥ 3♥ 4♥ 5♥ (6♥') 7♥", "tablet: 2♥ 3♥ 4♥ 5♥ 6♥' 7♥"}) {
        play.undo();
        EXPECT_TRUE(shows(tablet)) << position_text();
        EXPECT_EQ(display_faults(), "");
    }
    EXPECT_EQ(undo_records(), "(1 0 0)");
}

TEST(Undo, OfAnExchangeTakesTwoSteps) {
    Play play;
    play.start("4: [3♦] [9♣] K♠ Q♥\n6: J♣ 10♦");
    play.drag(4, 6);
    play.undo();
    EXPECT_TRUE(shows("4: [3♦] [9♣] K♠ Q♥ J♣ 10♦\n6: -"));
    EXPECT_EQ(display_faults(), "");
    play.undo();
    EXPECT_TRUE(shows("4: [3♦] [9♣] K♠ Q♥\n6: J♣ 10♦"));
    EXPECT_FALSE(frmcards.mnuUndo.visible());
}

TEST(Undo, DuringASlideLandsTheCardAndTakesItBack) {
    Play play;
    play.start("3: [9♥] 2♠\nace 0: A♠");
    play.save("anamate", "True");
    const std::string before = position_text();
    play.click(3);
    play.desktop.advance(45);
    ASSERT_TRUE(frmcards.Timer3.enabled());
    play.undo();
    EXPECT_FALSE(frmcards.Timer3.enabled());
    EXPECT_EQ(position_text(), before);
    EXPECT_EQ(display_faults(), "");
}

TEST(UndoList, HoldsTheNewest299Records) {
    Play play;
    play.start();
    play.click_stock(301);
    EXPECT_EQ(undo_count(), most_undo_records);
    for (int i = 0; i < 299; ++i) play.undo();
    EXPECT_EQ(undo_count(), 0);
    EXPECT_FALSE(frmcards.mnuUndo.visible());
    // 301 turns less 299, where the last undo leaves the turn as the only record.
    EXPECT_EQ(turned_slot(), 14);
}

TEST(UndoList, ThatOverflowsLosesAMoveTogetherWithTheCardItTurnedUp) {
    Play play;
    play.start("0: 7♠\n4: [2♣] [K♣] 6♥\ntablet: 2♥ 3♥ 4♥ 5♥ 6♥' 7♥ ..");
    play.drag(4, 0);
    play.click_stock(297);
    ASSERT_EQ(undo_count(), most_undo_records);
    ASSERT_EQ(undo_list(most_undo_records - 1, 0), turned_up_record);
    play.click_stock();
    EXPECT_EQ(undo_list(undo_count() - 1, 0), turn_record);
    while (undo_count() > 0) play.undo();
    EXPECT_TRUE(shows("0: 7♠ 6♥\n4: [2♣] K♣"));
    EXPECT_EQ(display_faults(), "");
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

enum class Stock { back, empty_place, hidden };

Stock stock_shows() {
    const Image& stock = frmcards.Image1(stock_image);
    if (!stock.visible()) return Stock::hidden;
    return stock.picture().none() ? Stock::empty_place : Stock::back;
}

TEST(Tablet, TurnsFiveAtATimePassAfterPass) {
    Play play;
    play.start();
    for (const int slot : {4, 9, 14, 19, 24, 29, 34, 39, 44, 4, 9}) {
        play.click_stock();
        EXPECT_EQ(turned_slot(), slot);
        EXPECT_EQ(stock_shows(), slot == 44 ? Stock::empty_place : Stock::back);
        EXPECT_EQ(display_faults(), "");
    }
    EXPECT_EQ(score, 0);
    EXPECT_EQ(
        undo_records(),
        "(25 25 4) (25 25 44) (25 25 39) (25 25 34) (25 25 29) (25 25 24) (25 25 19) (25 25 14) (25 25 9) "
        "(25 25 4) (25 25 -1)");
}

TEST(Tablet, OfAnySizeTurnsAsItShould) {
    const struct {
        const char* before;
        const char* after;
        Stock stock;
    } cases[] = {
        // Six face-down cards left, five left, one left.
        {"(2♥) 3♥ 4♥ 5♥ 6♥ 7♥ 8♥", "2♥ 3♥ 4♥ 5♥ 6♥ (7♥) 8♥", Stock::back},
        {"2♥ (3♥) 4♥ 5♥ 6♥ 7♥ 8♥", "2♥ 3♥ 4♥ 5♥ 6♥ 7♥ (8♥)", Stock::empty_place},
        {"2♥ 3♥ 4♥ 5♥ 6♥ (7♥) 8♥", "2♥ 3♥ 4♥ 5♥ 6♥ 7♥ (8♥)", Stock::empty_place},
        // A new pass: with six cards, with five, after the turned cards have all been played.
        {"2♥ 3♥ 4♥ 5♥ 6♥ (7♥)", "2♥ 3♥ 4♥ 5♥ (6♥) 7♥", Stock::back},
        {"2♥ 3♥ 4♥ 5♥ 6♥", "2♥ 3♥ 4♥ 5♥ (6♥)", Stock::hidden},
        {"2♥ 3♥ 4♥", "2♥ 3♥ (4♥)", Stock::hidden},
        {"2♥ 3♥ 4♥ 5♥ 6♥ 7♥", "2♥ 3♥ 4♥ 5♥ (6♥) 7♥", Stock::back},
        // Five cards or fewer, all turned: nothing more to turn.
        {"2♥ 3♥ 4♥ 5♥ (6♥)", "2♥ 3♥ 4♥ 5♥ (6♥)", Stock::hidden},
        {"-", "-", Stock::hidden},
    };
    for (const bool by_key : {true, false}) {
        for (const auto& [before, after, stock] : cases) {
            Play play;
            play.start(std::string("tablet: ") + before);
            by_key ? play.space() : play.click_stock();
            EXPECT_TRUE(shows(std::string("tablet: ") + after)) << before << "\n" << position_text();
            EXPECT_EQ(stock_shows(), stock) << before;
            EXPECT_EQ(undo_records().empty(), std::string(before) == after) << before;
            EXPECT_EQ(display_faults(), "") << before;
        }
    }
}

TEST(Tablet, GivesUpItsTurnedCardForOnePoint) {
    const struct {
        const char* before;
        const char* after;
        Stock stock;
    } cases[] = {
        {"2♥ (3♥) 9♠ 10♠ J♠ Q♠", "(2♥) 9♠ 10♠ J♠ Q♠", Stock::back},
        {"(3♥) 9♠ 10♠ J♠ Q♠ 9♣", "9♠ 10♠ J♠ Q♠ 9♣", Stock::back},
        {"9♠ 10♠ J♠ Q♠ 9♣ (3♥)", "9♠ 10♠ J♠ Q♠ (9♣)", Stock::hidden},
        {"9♠ 10♠ J♠ Q♠ 9♣ 10♣ (3♥)", "9♠ 10♠ J♠ Q♠ 9♣ (10♣)", Stock::empty_place},
        {"9♠ (3♥)", "(9♠)", Stock::hidden},
        {"(3♥)", "-", Stock::hidden},
    };
    for (const auto& [before, after, stock] : cases) {
        Play play;
        play.start(std::string("0: 4♠\ntablet: ") + before);
        const int points = score;
        play.drag(tablet_pile, 0);
        EXPECT_TRUE(shows(std::string("0: 4♠ 3♥\ntablet: ") + after)) << position_text();
        EXPECT_EQ(score, points + 1);
        EXPECT_EQ(stock_shows(), stock) << before;
        EXPECT_EQ(undo_records(), "(16 0 1)");
        play.undo();
        EXPECT_TRUE(shows(std::string("0: 4♠\ntablet: ") + before)) << position_text();
        EXPECT_EQ(score, points);
        EXPECT_EQ(undo_records(), "");
    }
}

TEST(Tablet, IsNotTurnedByAnyOtherKeyOrClick) {
    Play play;
    play.start();
    const std::string deal = position_text();
    frmcards.key_down('A');
    play.double_click(frmcards.Image1(first_ace_zone));
    play.double_click(frmcards.Image1(face_down_image(5, 2)));
    EXPECT_EQ(position_text(), deal);
    play.click_stock(4);
    EXPECT_EQ(turned_slot(), 19) << "fast clicks turn once each";
}

TEST(Tablet, StartsANewPassWithTheBackWhileTheCardAtImage121IsPeekedAt) {
    Play play;
    play.start("2: [9♣] [10♣] 3♥\ntablet: 2♥ 3♦ 4♥ 5♥ 6♥ (7♥)");
    ASSERT_EQ(stock_shows(), Stock::empty_place);
    play.double_click(frmcards.Image1(121));
    ASSERT_EQ(frmcards.Image1(121).picture(), frmcards.Image1(284).picture()) << "the 10 of Clubs";
    play.space();
    EXPECT_EQ(frmcards.Image1(stock_image).picture(), frmcards.ImgCardBacks(0).picture());
}

}  // namespace
}  // namespace tarnwick

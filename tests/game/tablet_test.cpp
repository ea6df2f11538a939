#include <gtest/gtest.h>

#include "board/score.h"
#include "notation/position.h"
#include "state/piles.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

enum class Stock { back, empty_place, hidden };

Stock stock_shows() {
    const Image& stock = frmcards.Image1(stock_image);
    if (!stock.visible()) return Stock::hidden;
    return stock.picture().none() ? Stock::empty_place : Stock::back;
}

TEST(Tablet, ShowsItsStockAsItShould) {
    const struct {
        const char* before;
        const char* after;
        Stock stock;
        bool turned = true;  // by the space bar; or the turned card is played
    } cases[] = {
        // Six face-down cards left, five left.
        {"(2♥) 3♥ 4♥ 5♥ 6♥ 7♥ 8♥", "2♥ 3♥ 4♥ 5♥ 6♥ (7♥) 8♥", Stock::back},
        {"2♥ (3♥) 4♥ 5♥ 6♥ 7♥ 8♥", "2♥ 3♥ 4♥ 5♥ 6♥ 7♥ (8♥)", Stock::empty_place},
        // A new pass: with six cards, with five.
        {"2♥ 3♥ 4♥ 5♥ 6♥ (7♥)", "2♥ 3♥ 4♥ 5♥ (6♥) 7♥", Stock::back},
        {"2♥ 3♥ 4♥ 5♥ 6♥", "2♥ 3♥ 4♥ 5♥ (6♥)", Stock::hidden},
        // Five cards or fewer, all turned: nothing more to turn.
        {"2♥ 3♥ 4♥ 5♥ (6♥)", "2♥ 3♥ 4♥ 5♥ (6♥)", Stock::hidden},
        {"-", "-", Stock::hidden},
        {"2♥ (3♥) 9♠ 10♠ J♠ Q♠", "(2♥) 9♠ 10♠ J♠ Q♠", Stock::back, false},
        {"9♠ 10♠ J♠ Q♠ 9♣ (3♥)", "9♠ 10♠ J♠ Q♠ (9♣)", Stock::hidden, false},
        {"9♠ 10♠ J♠ Q♠ 9♣ 10♣ (3♥)", "9♠ 10♠ J♠ Q♠ 9♣ (10♣)", Stock::empty_place, false},
        {"9♠ 10♠ J♠ Q♠ (3♥)", "9♠ 10♠ J♠ (Q♠)", Stock::hidden, false},
    };
    for (const auto& [before, after, stock, turned] : cases) {
        Play play;
        play.start(std::string("0: 4♠\ntablet: ") + before);
        const std::string position = position_text();
        const Stock stock_before = stock_shows();
        turned ? play.space() : play.drag(tablet_pile, 0);
        EXPECT_TRUE(shows(std::string("tablet: ") + after)) << before << "\n" << position_text();
        EXPECT_EQ(stock_shows(), stock) << before;
        EXPECT_EQ(undo_records().empty(), std::string(before) == after) << before;
        EXPECT_EQ(score, score_of_state()) << before;
        EXPECT_EQ(display_faults(), "") << before;
        play.undo();
        EXPECT_TRUE(turned || (position_text() == position && stock_shows() == stock_before)) << before;
    }
}

TEST(Tablet, StartsANewPassWithTheBackWhileTheCardAtImage121IsPeekedAt) {
    Play play;
    play.start("2: [9♣] [10♣] 3♥\ntablet: 2♥ 3♦ 4♥ 5♥ 6♥ (7♥)");
    play.double_click(frmcards.Image1(121));
    ASSERT_EQ(frmcards.Image1(121).picture(), frmcards.Image1(284).picture()) << "the 10 of Clubs";
    play.space();
    EXPECT_EQ(frmcards.Image1(stock_image).picture(), frmcards.ImgCardBacks(0).picture());
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// The 7 of Spades in the middle fits on either neighbour of the column it is dropped on.
TEST(Drop, RefusedByAColumnIsTriedOnTheNeighbourNearestToThePointer) {
    const struct {
        int target;
        float offset;
        const char* lands;  // null: nowhere
    } cases[] = {
        {3, 10, "2: 8♦ 7♠"}, {3, 19, "2: 8♦ 7♠"}, {3, 20, nullptr},    {3, 30, nullptr},
        {3, 41, nullptr},    {3, 42, "4: 8♥ 7♠"}, {3, 60, "4: 8♥ 7♠"}, {4, 10, "4: 8♥ 7♠"},
        {0, 5, nullptr},     {9, 60, nullptr},    {9, 5, "8: 8♦' 7♠"}, {0, 60, "1: 8♥' 7♠"},
    };
    for (const float width : {792.0F, 1592.0F}) {
        for (const auto& [target, offset, lands] : cases) {
            Play play;
            play.start("0: 3♣\n1: 8♥'\n2: 8♦\n3: 3♠\n4: 8♥\n6: 7♠\n8: 8♦'\n9: 3♠'");
            frmcards.user_resized({static_cast<int>(width), 900});
            play.drag(6, target, offset);
            EXPECT_TRUE(shows(lands ? lands : "6: 7♠")) << "on " << target << " at " << offset << "\n"
                                                        << position_text();
            EXPECT_EQ(undo_records().empty(), lands == nullptr);
        }
    }
}

TEST(Drop, IsRefusedWhereNothingCanGo) {
    const char* position =
        "0: K♠ Q♥\n1: [5♠] 4♥\n2: 8♦\nace 0: A♥\nace 1: A♠ 2♠\nace 2: A♦ 2♦ 2♦'\ntablet: 9♠ (9♣) 10♣";
    Play play;
    play.start(position);
    const std::string before = position_text();
    const struct {
        int from, to;
    } cases[] = {{ace_pile(0), 0},            // an ace stays
                 {ace_pile(0), ace_pile(3)},  // between ace piles
                 {ace_pile(1), ace_pile(3)},
                 {ace_pile(1), tablet_pile},
                 {ace_pile(2), ace_pile(1)},
                 {2, tablet_pile},
                 {1, 3},  // only a King goes on an empty column
                 {tablet_pile, 3},
                 {tablet_pile, ace_pile(3)},
                 {ace_pile(2), 3},
                 {ace_pile(1), 2},
                 {2, 0}};
    for (const auto& [from, to] : cases) {
        play.drag(from, to);
        EXPECT_EQ(position_text(), before) << from << " to " << to;
    }
    // The bare table between the piles, and beside the window.
    for (const auto& [x, y] : {std::pair{170.0F, 30.0F}, {400.0F, 700.0F}, {-50.0F, -50.0F}}) {
        const Image& card = top_image(0);
        frmcards.mouse().press(card.left() + 9, card.top() + 9);
        frmcards.mouse().release(x, y);
        EXPECT_EQ(position_text(), before);
    }
    EXPECT_EQ(undo_records(), "");
    EXPECT_EQ(display_faults(), "");
}

TEST(AutomaticMove, SendsTheCardThatIsClickedToItsAcePile) {
    const struct {
        const char* before;
        int clicked;
        const char* after;
    } cases[] = {
        {"4: 9♠ 8♥\nace 2: .. 7♥ 7♥'", 4, "4: 9♠\nace 2: A♥ .. 8♥"},
        {"4: A♣\nace 0: A♥\nace 2: A♠", 4, "4: -\nace 1: A♣"},
        {"tablet: 4♠ (2♦) 9♠\nace 3: A♦", tablet_pile, "tablet: (4♠) 9♠\nace 3: A♦ 2♦"},
        {"tablet: (A♦)", tablet_pile, "tablet: -\nace 0: A♦"},
        // The suit has no pile yet; the card does not fit; a card on an ace pile.
        {"4: 2♣\nace 0: A♥", 4, "4: 2♣\nace 0: A♥"},
        {"4: 3♥\nace 0: A♥", 4, "4: 3♥\nace 0: A♥"},
        {"ace 0: A♥ 2♥\n", ace_pile(0), "ace 0: A♥ 2♥\nace 1: -"},
    };
    for (const auto& [before, clicked, after] : cases) {
        Play play;
        play.start(before);
        play.click(clicked);
        EXPECT_TRUE(shows(after)) << before << "\n" << position_text();
        EXPECT_EQ(play.message(), "") << "automatic moves never explain";
        EXPECT_EQ(display_faults(), "");
    }
}

TEST(AutomaticMove, TakesTheTopCardWhicheverOneWasTakenHoldOf) {
    Play play;
    play.start("4: 9♠ 8♥ 7♠\nace 2: .. 6♠ 6♠'");
    play.drag_slot(4, 0, 4);
    EXPECT_TRUE(shows("4: 9♠ 8♥\nace 2: A♠ .. 7♠"));
    play.drag_slot(4, 0, ace_pile(1));
    EXPECT_EQ(play.message(), "Place a Ace at the bottom of the pile first");
}

TEST(AutomaticMove, OfTheTurnedCardWorksOnTheWholeTabletArea) {
    Play play;
    play.start("tablet: (2♦) 9♠\nace 3: A♦");
    play.drag_image(top_image(tablet_pile), frmcards.Image1(stock_image));
    EXPECT_TRUE(shows("ace 3: A♦ 2♦"));
}

TEST(AutomaticMove, ThatFailsNearAnEdgeOfTheCardTriesTheNeighbour) {
    Play play;
    play.start("3: 8♦\n4: 7♠\n5: 8♥");
    play.click(4, 30);
    EXPECT_TRUE(shows("4: 7♠"));
    play.click(4, 10);
    EXPECT_TRUE(shows("3: 8♦ 7♠\n4: -"));
    play.undo();
    play.click(4, 50);
    EXPECT_TRUE(shows("5: 8♥ 7♠\n4: -"));
}

TEST(Drop, OnACardInFlightGoesToTheAcePileThatItFliesTo) {
    // Between tablet and ace piles it passes places that belong to no pile.
    Play play;
    play.start("0: 2♠'\nace 3: A♠\ntablet: (2♠) ..");
    play.save("anamate", "True");
    play.click(tablet_pile);
    const Image& flying = frmcards.Image1(226);
    while (flying.left() <= 150) play.desktop.advance(30);
    ASSERT_TRUE(frmcards.Timer3.enabled() && flying.left() < 162);
    play.drag_image(top_image(0), flying);
    EXPECT_TRUE(shows("ace 3: A♠ 2♠ 2♠'"));
}

}  // namespace
}  // namespace tarnwick

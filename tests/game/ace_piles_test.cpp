#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/variables.h"
#include "tests/support/play.h"

namespace tarnwick {
namespace {

TEST(AcePile, TakesTheNextCardOfItsSuitAndIsTakenBack) {
    const struct {
        const char* before;
        int from;
        const char* after;
        int points;
        const char* records;
    } cases[] = {
        {"3: 9♥ 8♣\nace 0: .. 7♣ 7♣'", 3, "3: 9♥\nace 0: A♣ .. 8♣", 1, "(3 12 1)"},
        {"3: 9♥ 8♣\nace 0: .. 8♣'", 3, "3: 9♥\nace 0: A♣ .. 8♣' 8♣", 1, "(3 12 1)"},
        {"3: A♠", 3, "3: -\nace 0: A♠", 1, "(3 12 1)"},
        {"3: [9♥] 2♠\nace 0: A♠", 3, "3: 9♥\nace 0: A♠ 2♠", 2, "(3 12 1) (99 99 99)"},
        {"3: [9♥] 2♠'\nace 0: A♠ 2♠", 3, "3: 9♥\nace 0: A♠ 2♠ 2♠'", 2, "(3 12 1) (99 99 99)"},
        {"3: K♣'\nace 0: .. K♣", 3, "3: -\nace 0: A♣ .. K♣ K♣'", 1, "(3 12 1)"},
        {"tablet: 2♥ (A♠) 3♥", 16, "ace 0: A♠\ntablet: (2♥) 3♥", 2, "(16 12 1)"},
        {"tablet: (2♠) 3♥\nace 0: A♠", 16, "ace 0: A♠ 2♠\ntablet: 3♥", 2, "(16 12 1)"},
        {"tablet: 2♥ (3♠) 3♥\nace 0: A♠ 2♠' 2♠", 16, "ace 0: A♠ 2♠' 2♠ 3♠\ntablet: (2♥) 3♥", 2, "(16 12 1)"},
        // The fourth ace is worth ten points more.
        {"3: A♠\nace 1: A♥\nace 2: A♦\nace 3: A♣ 2♣", 3, "ace 0: A♠", 11, "(3 12 1)"},
        {"tablet: (A♠)\nace 1: A♥\nace 2: A♦\nace 3: A♣ 2♣", 16, "ace 0: A♠", 12, "(16 12 1)"},
    };
    for (const auto& [situation, from, after, points, records] : cases) {
        Play play;
        play.start(situation);
        const std::string before = position_text();
        const int score_before = score;
        play.drag(from, ace_pile(0));
        EXPECT_TRUE(shows(after)) << "wanted\n" << after << "\nfound\n" << position_text();
        EXPECT_EQ(score, score_before + points) << before;
        EXPECT_EQ(undo_records(), records);
        EXPECT_EQ(display_faults(), "") << before;
        play.undo();
        EXPECT_EQ(position_text(), before);
        EXPECT_EQ(undo_records(), "") << "a turned-up record goes with its move";
        EXPECT_EQ(display_faults(), "") << before;
        EXPECT_EQ(play.message(), "");
    }
}

TEST(AcePile, SaysWhatItWaitsForWhenACardIsRefused) {
    const struct {
        const char* pile;
        const char* card;
        const char* message;
    } cases[] = {
        {"-", "2♥", "Place a Ace at the bottom of the pile first"},
        {"A♥", "3♥", "Only a 2 of Hearts can be placed on the Ace of Hearts"},
        {"A♥", "2♠", "Only a 2 of Hearts can be placed on the Ace of Hearts"},
        {"A♥", "A♠", "Only a 2 of Hearts can be placed on the Ace of Hearts"},
        {"A♠ 2♠", "3♠", "Place the other 2 of Spades on top"},
        {"A♠ 2♠ 2♠'", "4♠", "Place a 3 of Spades on top"},
        {".. 3♠", "4♠", "Place the other 3 of Spades on top"},
        {".. 9♦ 9♦'", "9♥", "Place a 10 of Diamonds on top"},
        {".. 10♦ 10♦'", "Q♦", "Place a Jack of Diamonds on top"},
        {".. J♦", "Q♦", "Place the other Jack of Diamonds on top"},
        {".. Q♣", "K♣", "Place the other Queen of Clubs on top"},
        {".. Q♣ Q♣'", "K♥", "Place a King of Clubs on top"},
        {".. K♣", "K♥", "Place the other King of Clubs on top"},
        {".. K♣ K♣'", "K♥", ""},
    };
    for (const char* source : {"4: ", "tablet: ("}) {
        for (const auto& [pile, card, message] : cases) {
            Play play;
            const int from = source[0] == '4' ? 4 : tablet_pile;
            play.start(source + std::string(card) + (from == 4 ? "" : ")") + "\nace 0: " + pile);
            const std::string before = position_text();
            play.drag(from, ace_pile(0));
            EXPECT_EQ(play.message(), message) << pile;
            EXPECT_EQ(position_text(), before);
            play.save("show message", "False");
            play.drag(from, ace_pile(0));
            EXPECT_EQ(play.message(), "") << "messages are off";
        }
    }
}

TEST(AcePile, ShowsItsDropZoneOnlyWhileItIsEmpty) {
    Play play;
    play.start("3: A♠\n4: A♥");
    play.drag(3, ace_pile(2));
    EXPECT_TRUE(shows("ace 2: A♠"));
    play.undo();
    // The emptied pile takes a card that is dropped on it.
    play.drag(4, ace_pile(2));
    EXPECT_TRUE(shows("ace 2: A♥"));
    EXPECT_EQ(display_faults(), "");
}

TEST(AcePile, OfTwoCardsLeavesTheCardAloneThatWasItsThirdOnce) {
    Play play;
    play.start("0: A♥\n1: 2♥\n2: 2♥'\n3: A♠\n4: 2♠");
    for (const int column : {0, 1, 2}) play.drag(column, ace_pile(1));
    for (int i = 0; i < 3; ++i) play.undo();
    play.drag(3, ace_pile(1));
    play.drag(4, ace_pile(1));
    EXPECT_TRUE(shows("0: A♥\nace 1: A♠ 2♠"));
    EXPECT_EQ(display_faults(), "") << "the ace of Hearts is seen in its column";
}

}  // namespace
}  // namespace tarnwick

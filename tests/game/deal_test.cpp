#include <gtest/gtest.h>

#include <set>

#include "game/deal.h"
#include "notation/position_text.h"
#include "platform/random.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

TEST(Random, GivesTheSameNumbersEverywhere) {
    Random generator;
    generator.replay(1);
    generator.randomize();
    // The 32-bit Mersenne twister seeded with 1 begins with 1791095845; its upper 24 bits count.
    EXPECT_EQ(generator.next(), static_cast<float>(1791095845U >> 8) / 16777216.0F);
    EXPECT_EQ(generator.next(), static_cast<float>(4282876139U >> 8) / 16777216.0F);
    generator.randomize();
    const float deal_two = generator.next();
    generator.replay(2);
    generator.randomize();
    EXPECT_EQ(generator.next(), deal_two) << "the next deal takes the next number";
}

TEST(Random, OfTheSystemDiffersFromTimeToTime) {
    Random generator;
    std::set<float> first_numbers;
    for (int i = 0; i < 8; ++i) {
        generator.randomize();
        first_numbers.insert(generator.next());
    }
    EXPECT_GT(first_numbers.size(), 1U);
    EXPECT_GE(*first_numbers.begin(), 0);
    EXPECT_LT(*first_numbers.rbegin(), 1);
}

TEST(Deal, BuildsTwoPacksLessOneAceOfEachSuit) {
    build_deck();
    for (int row = 0; row < card_count; ++row) EXPECT_EQ(deck(row, picture_field), 200 + row);
    const struct {
        int row, rank, suit;
    } cards[] = {{0, ace, hearts},     {12, king, hearts}, {13, two, hearts},
                 {24, king, hearts},   {25, ace, spades},  {38, two, spades},
                 {74, king, diamonds}, {75, ace, clubs},   {99, king, clubs}};
    for (const auto& [row, rank, suit] : cards) {
        EXPECT_EQ(deck(row, rank_field), rank) << row;
        EXPECT_EQ(deck(row, suit_field), suit) << row;
    }
}

TEST(Deal, NumberOneIsTheSameEverywhere) {
    Play play;
    play.start(1);
    EXPECT_EQ(position_text(),
              "0: 8♠\n"
              "1: [K♠] Q♥'\n"
              "2: [K♣'] [7♦'] 7♣\n"
              "3: [3♦'] [J♣'] [5♣] 5♦'\n"
              "4: [5♥'] [5♣'] [4♦'] [3♦] J♠\n"
              "5: [Q♦] [7♠] [K♠'] [9♠'] [4♣'] J♥\n"
              "6: [K♥] [2♦'] [K♦'] [A♠] [5♦] [6♦] Q♠\n"
              "7: [J♥'] [3♣'] [5♠'] [9♣] [4♣] [6♠'] [7♦] A♦\n"
              "8: [10♦] [2♠] [8♣] [9♦'] [4♦] [6♥'] [8♦'] [J♠'] K♣\n"
              "9: [5♥] [7♥] [Q♣] [2♣] [10♣] [9♥'] [J♦] [3♠] [5♠] 7♥'\n"
              "ace 0: -\n"
              "ace 1: -\n"
              "ace 2: -\n"
              "ace 3: -\n"
              "tablet: 8♠' A♣ 6♠ 10♦' 6♥ 8♦ J♦' 6♣' 8♣' 9♣' J♣ K♥' 4♥' 2♥ 10♠ 4♥ 8♥ Q♠' 3♥ Q♥ "
              "10♥' 8♥' Q♣' 10♠' 9♥ 2♦ Q♦' 6♦' 2♠' K♦ 3♥' 10♣' 4♠ 2♥' 4♠' A♥ 9♠ 7♠' 3♠' 10♥ 6♣ "
              "7♣' 2♣' 9♦ 3♣\n"
              "score: 0\n");
    EXPECT_EQ(state_faults(), "");
    EXPECT_EQ(display_faults(), "");
    const std::string deal = position_text();
    frmcards.mnuNew.choose();
    EXPECT_NE(position_text(), deal);
    EXPECT_EQ(state_faults(), "");
}

TEST(Restart, BringsTheSameDealBackWhateverHasHappened) {
    Play play;
    play.start();
    const std::string deal = position_text();
    play.click_stock(3);
    play.drag(tablet_pile, 4);
    frmcards.mnuRestart.choose();
    EXPECT_EQ(position_text(), deal);
    EXPECT_EQ(undo_records(), "");

    set_position("0: 6♦\n1: 2♠\n3: [9♣] 3♥\nace 0: A♠\nace 1: A♥ 2♥'\ntablet: 9♥ ..");
    play.save("anamate", "True");
    play.double_click(frmcards.Image1(face_down_image(3, 0)));
    play.click(1);
    ASSERT_TRUE(frmcards.Timer2.enabled() && frmcards.Timer3.enabled());
    frmcards.mnuRestart.choose();
    EXPECT_FALSE(frmcards.Timer2.enabled() || frmcards.Timer3.enabled());
    EXPECT_EQ(position_text(), deal);
    EXPECT_EQ(display_faults(), "");
    frmcards.mnuRestart.choose();
    EXPECT_EQ(position_text(), deal);
    EXPECT_EQ(play.stored("games played"), "-") << "an abandoned attempt is not counted";
}

TEST(Restart, EndsTheTwinkleOfTheAceOfSpades) {
    Play play;
    play.start("0: A♠\ntablet: 9♥ ..");
    play.click(0);
    play.desktop.advance(100);
    ASSERT_NE(animation(twinkle_frame), no_twinkle);
    frmcards.mnuRestart.choose();
    EXPECT_EQ(animation(twinkle_frame), no_twinkle);
    EXPECT_EQ(frmcards.Timer1.interval(), 1000);
    EXPECT_EQ(frmcards.Image1(ace_of_spades_image).picture(), frmcards.Image1(plain_ace_image).picture());
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include <memory>

#include "notation/position_text.h"
#include "platform/random.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

TEST(Random, OfTheSystemDiffersFromTimeToTime) {
    Random generator;
    generator.randomize();
    const float first = generator.next();
    generator.randomize();
    EXPECT_NE(generator.next(), first);
}

TEST(Deal, NumberOneIsTheSameEverywhere) {
    auto play = std::make_unique<Play>();
    play->start(1);
    EXPECT_TRUE(
        position_text().starts_with("0: 8♠\n"
                                    "1: [K♠] Q♥'\n"
                                    "2: [K♣'] [7♦'] 7♣\n"
                                    "3: [3♦'] [J♣'] [5♣] 5♦'\n"
                                    "4: [5♥'] [5♣'] [4♦'] [3♦] J♠\n"
                                    "5: [Q♦] [7♠] [K♠'] [9♠'] [4♣'] J♥\n"
                                    "6: [K♥] [2♦'] [K♦'] [A♠] [5♦] [6♦] Q♠\n"
                                    "7: [J♥'] [3♣'] [5♠'] [9♣] [4♣] [6♠'] [7♦] A♦\n"
                                    "8: [10♦] [2♠] [8♣] [9♦'] [4♦] [6♥'] [8♦'] [J♠'] K♣\n"
                                    "9: [5♥] [7♥] [Q♣] [2♣] [10♣] [9♥'] [J♦] [3♠] [5♠] 7♥'\n"))
        << position_text();
    EXPECT_EQ(state_faults() + display_faults(), "") << "every card of both packs lies there";
    frmcards.mnuNew.choose();
    const std::string next_deal = position_text();
    play.reset();
    Play another;
    another.start(2);
    EXPECT_EQ(position_text(), next_deal) << "the next deal takes the next number";
}

TEST(Restart, BringsTheSameDealBackWhateverHasHappened) {
    Play play;
    play.start();
    const std::string deal = position_text();
    set_position("0: 6♦\n1: 2♠\n3: [9♣] 3♥\nace 0: A♠\nace 1: A♥ 2♥'\ntablet: 9♥ ..");
    frmcards.user_resized({798, 570});
    ASSERT_EQ(frmcards.Timer1.interval(), 30) << "the ace of Spades twinkles";
    play.save("anamate", "True");
    play.double_click(frmcards.Image1(face_down_image(3, 0)));
    play.click(1);
    ASSERT_TRUE(frmcards.Timer2.enabled() && frmcards.Timer3.enabled());
    frmcards.mouse().press(top_image(0).left() + 9, top_image(0).top() + 9);
    ASSERT_NE(frmcards.mouse().dragged(), nullptr);
    animation(slide_wins_game) = 1;
    for (int i = 0; i < 2; ++i) {
        frmcards.mnuRestart.choose();
        EXPECT_FALSE(frmcards.Timer2.enabled() || frmcards.Timer3.enabled());
        EXPECT_EQ(frmcards.mouse().dragged(), nullptr);
        EXPECT_EQ(frmcards.Timer1.interval(), 1000);
        EXPECT_EQ(animation(slide_wins_game), 0);
        EXPECT_EQ(position_text(), deal);
        EXPECT_EQ(display_faults() + undo_records(), "");
    }
    EXPECT_EQ(play.stored("games played"), "-") << "an abandoned attempt is not counted";
}

}  // namespace
}  // namespace tarnwick

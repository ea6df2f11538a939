#include <gtest/gtest.h>

#include <stdexcept>

#include "notation/position.h"
#include "tests/notation/refusal.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"

namespace tarnwick {
namespace {

TEST(PositionText, ReadsBackWhatItWrites) {
    const char* text =
        "0: K♠ Q♥'\n1: -\n2: -\n3: [10♦] [4♣'] 9♠\n4: -\n5: -\n6: -\n7: -\n8: -\n9: -\n"
        "ace 0: A♥\nace 1: A♠ .. 5♠' 5♠\nace 2: -\nace 3: A♣ 2♣' 2♣ 3♣\n"
        "tablet: 4♦ (5♦) 6♠\nscore: 7\n";
    EXPECT_EQ(text_of(parse_position(text)), text);
}

TEST(PositionText, RefusesWhatCannotBe) {
    const struct {
        const char* text;
        const char* complaint;
    } cases[] = {
        {"0: 1♠", "\"1♠\" is not a card"},
        {"0: 7♠\n1: 7♠", "7♠ is named twice"},
        {"0: 7♠ 6♣", "6♣ cannot lie on 7♠ in column 0"},
        {"4: [7♠]", "the top card is face down in column 4"},
        {"1: [7♠] [8♠] 9♠", "more face-down cards than are dealt in column 1"},
        {"3: K♠ [..]", "in a column, \"[..]\" stands at the bottom only"},
        {"ace 0: A♠ 2♥", "2♥ does not come next on ace pile 0"},
        {"ace 2: A♠ ..", "\"..\" on an ace pile wants a card after it"},
        {"ace 4: A♠", "\"4\" is not a number from 0 to 3"},
    };
    for (const auto& [text, complaint] : cases) {
        EXPECT_EQ(refusal([&, &text = text] { parse_position(text); }), complaint);
    }
}

TEST(SetPosition, StartsAnewOrChangesNothing) {
    Play play;
    play.start();
    play.click_stock(2);
    set_position("0: 7♠\n1: [..] 6♥\n2: [..] Q♦\nace 0: A♠\nace 1: .. 3♦'\ntablet: 4♣ (5♣) ..");
    EXPECT_EQ(undo_records() + display_faults(), "");
    const std::string text = position_text();
    EXPECT_THROW(set_position("0: 7♠ 7♠"), std::invalid_argument);
    EXPECT_EQ(position_text(), text);
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include <cstdlib>

#include "notation/position_text.h"
#include "tests/random_play/random_player.h"

namespace tarnwick {
namespace {

constexpr long events_per_player = 4000;

// TARNWICK_EVENTS sets how long to play.
long wanted_events() {
    const char* text = std::getenv("TARNWICK_EVENTS");
    return text ? std::strtol(text, nullptr, 10) : 200'000;
}

TEST(RandomPlay, KeepsTheRulesWhateverThePlayerDoes) {
    RandomPlayer::Counts counts;
    long events = 0;
    for (std::uint32_t seed = 1; events < wanted_events(); ++seed) {
        RandomPlayer player(seed, counts);
        for (long i = 0; i < events_per_player; ++i, ++events) {
            const std::string faults = player.step();
            ASSERT_EQ(faults, "") << "seed " << seed << ", event " << i << "\n" << position_text();
        }
    }
    for (const char* kind : {"turn",
                             "tablet to column",
                             "tablet to ace pile",
                             "ace pile to column",
                             "column to ace pile",
                             "column to column",
                             "card turned up",
                             "exchange",
                             "refused",
                             "slide",
                             "drop during a slide",
                             "resize during a slide",
                             "peek",
                             "undo of turn",
                             "undo of tablet to column",
                             "undo of tablet to ace pile",
                             "undo of ace pile to column",
                             "undo of column to ace pile",
                             "undo of column to column",
                             "undo during a slide",
                             "everything undone",
                             "move beyond a full undo list",
                             "restart",
                             "new game",
                             "game won",
                             "game won by a slide"}) {
        EXPECT_GT(counts[kind], 0) << kind;
        RecordProperty(kind, std::to_string(counts[kind]));
    }
}

}  // namespace
}  // namespace tarnwick

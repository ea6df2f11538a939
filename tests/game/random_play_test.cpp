#include "tests/play/random_player.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "tests/store/scratch_folder.h"

namespace tarnwick {
namespace {

// TARNWICK_EVENTS sets how long to play, TARNWICK_LONG=1 asks for the long run.
long wanted_events() {
    const char* events = std::getenv("TARNWICK_EVENTS");
    return events ? std::strtol(events, nullptr, 10) : short_or_long(1'000'000, 10'000'000);
}

TEST(RandomPlay, KeepsTheRulesWhateverThePlayerDoes) {
    constexpr long events_per_player = 4000;
    Counts counts;
    long events = 0;
    for (std::uint32_t seed = 1; events < wanted_events(); ++seed) {
        RandomPlayer player(seed, counts);
        for (long i = 0; i < events_per_player; ++i, ++events) {
            const std::string faults = player.step();
            ASSERT_EQ(faults, "") << "seed " << seed << ", event " << i << "\n" << position_text();
        }
    }
    std::istringstream kinds(
        "turn,tablet to column,tablet to ace pile,ace pile to column,column to ace pile,column to column,"
        "card turned up,exchange,refused,slide,drop during a slide,resize during a slide,peek,undo of turn,"
        "undo of tablet to column,undo of tablet to ace pile,undo of ace pile to column,"
        "undo of column to ace pile,undo of column to column,undo during a slide,everything undone,"
        "move beyond a full undo list,foretold,restart,new game,game won,game won by a slide");
    for (std::string kind; std::getline(kinds, kind, ',');) {
        EXPECT_GT(counts[kind], 0) << kind;
        RecordProperty(kind, std::to_string(counts[kind]));
    }
}

}  // namespace
}  // namespace tarnwick

// The program is killed again and again while it enters results.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <vector>

#include "game/end_game.h"
#include "platform/headless.h"
#include "settings/settings.h"
#include "settings/sqlite/sqlite_store.h"
#include "state/variables.h"
#include "tests/store/scratch_folder.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int places = 5;
using Entry = std::pair<int, std::string>;  // score and name

struct Results {
    std::vector<Entry> table = std::vector<Entry>(places);
    std::array<int, 3> counts{};  // games, the sum of their scores, games won
};

// The results that the player of round `round` enters, one after the other. Names are never used twice; every
// other deal is complete.
Entry result(int round, int number) {
    const auto random = std::mt19937(static_cast<unsigned>(round * 1000 + number))();
    return {static_cast<int>(random % 200) + 1, std::to_string(round) + '/' + std::to_string(number)};
}
bool is_complete(const Entry& entry) { return entry.first % 2 == 0; }

void enter(Results& results, const Entry& entry) {
    auto& [table, counts] = results;
    auto place = table.begin();
    while (place != table.end() && place->first > entry.first) ++place;
    const bool won = is_complete(entry) && place == table.begin();
    counts = {counts[0] + 1, counts[1] + entry.first, counts[2] + (won ? 1 : 0)};
    table.insert(place, entry);
    table.resize(places);
}

Results stored_results() {
    Results stored;
    for (int i = 0; i < places; ++i) {
        stored.table[static_cast<std::size_t>(i)] = {to_integer(read_setting(key_high_score(i + 1), 0)),
                                                     read_setting(key_high_score_name(i + 1), std::string())};
    }
    stored.counts = {to_integer(read_setting(key_games_played, 0)),
                     to_long(read_setting(key_average_score, 0)),
                     to_integer(read_setting(key_games_won, 0))};
    return stored;
}

// Plays results until it is killed; a byte through the pipe acknowledges each.
[[noreturn]] void play_results(const std::string& path, int round, int acknowledge) {
    HeadlessDesktop desktop;
    SqliteStore store(path);
    start_program(store);
    for (int number = 0;; ++number) {
        const Entry entry = result(round, number);
        score = entry.first;
        for (int p = 0; p <= 3; ++p) aces(p, beneath_rank_field) = is_complete(entry) ? king : none;
        end_game();
        if (frmyouwin.visible()) {
            frmyouwin.txtYourName.type(entry.second);
            frmyouwin.txtYourName.key_down(13);
        }
        if (write(acknowledge, "+", 1) != 1) _exit(1);
        frmBestScore.cmdOk.click();
    }
}

TEST(Killed, WhileResultsAreEnteredLosesNoneThatWasAcknowledged) {
    const ScratchFolder folder("kill");
    const std::string path = folder / "settings.sqlite";
    const int kills = short_or_long(200, 10000);
    std::mt19937 engine(1);
    Results results;
    int unfinished = 0;
    int entered = 0;
    for (int round = 0; round < kills; ++round) {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            close(ends[0]);
            play_results(path, round, ends[1]);
        }
        close(ends[1]);
        // Most kills come after the first result; the others hit the start as well, however slow it is.
        char byte = 0;
        int done = round % 4 != 0 && read(ends[0], &byte, 1) == 1 ? 1 : 0;
        std::this_thread::sleep_for(std::chrono::microseconds(engine() % 6000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(ends[0], &byte, 1) == 1) ++done;
        close(ends[0]);

        for (int number = 0; number < done; ++number) enter(results, result(round, number));
        Results next = results;
        enter(next, result(round, done));
        SqliteStore store(path);
        use_store(&store);
        const Results stored = stored_results();
        use_store(nullptr);
        const bool counted = stored.counts == next.counts;
        SCOPED_TRACE("round " + std::to_string(round) + " after " + std::to_string(done));
        ASSERT_TRUE(counted || stored.counts == results.counts);
        ASSERT_TRUE(stored.table == results.table || (counted && stored.table == next.table));
        unfinished += counted ? 1 : 0;
        entered += done;
        results = stored;
    }
    EXPECT_GT(results.counts[2], 0);
    EXPECT_GT(entered, kills) << "the program was killed before it had done anything";
    EXPECT_GT(unfinished, 0) << "no kill hit a game while it was counted";
}

}  // namespace
}  // namespace tarnwick

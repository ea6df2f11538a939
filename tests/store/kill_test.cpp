// The program is killed again and again while it enters results.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <vector>

#include "game/end_game.h"
#include "platform/headless.h"
#include "settings/settings.h"
#include "settings/sqlite_store.h"
#include "state/variables.h"
#include "tests/store/scratch_folder.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

struct Entry {
    int score = 0;
    std::string name;
    bool complete = false;
    bool operator==(const Entry& other) const { return score == other.score && name == other.name; }
};

/// What the statistics say.
struct Counts {
    int games = 0;
    int total = 0;
    int won = 0;
    bool operator==(const Counts&) const = default;
};
using Table = std::vector<Entry>;

constexpr std::size_t places = 5;

// The results that the player of round `round` enters, one after the other. Names are never used twice.
Entry result(int round, int number) {
    std::mt19937 engine(static_cast<unsigned>(round * 1000 + number));
    const int score = static_cast<int>(engine() % 200) + 1;
    return {score, std::to_string(round) + '/' + std::to_string(number), engine() % 2 == 0};
}

void enter(Table& table, Counts& counts, const Entry& entry) {
    auto place = table.begin();
    while (place != table.end() && place->score > entry.score) ++place;
    counts.games += 1;
    counts.total += entry.score;
    counts.won += entry.complete && place == table.begin() ? 1 : 0;
    table.insert(place, entry);
    table.resize(places);
}

Table stored_table() {
    Table table;
    for (int place = 1; place <= static_cast<int>(places); ++place) {
        table.push_back({to_integer(read_setting(key_high_score(place), 0)),
                         read_setting(key_high_score_name(place), std::string())});
    }
    return table;
}

Counts stored_counts() {
    return {to_integer(read_setting(key_games_played, 0)), to_long(read_setting(key_average_score, 0)),
            to_integer(read_setting(key_games_won, 0))};
}

// Plays results until it is killed; a byte through the pipe acknowledges each.
[[noreturn]] void play_results(const std::string& path, int round, int acknowledge) {
    HeadlessDesktop desktop;
    SqliteStore store(path);
    start_program(store);
    for (int number = 0;; ++number) {
        const Entry entry = result(round, number);
        score = entry.score;
        for (int p = 0; p <= 3; ++p) aces(p, beneath_rank_field) = entry.complete ? king : none;
        end_game();
        if (frmyouwin.visible()) {
            frmyouwin.txtYourName.type(entry.name);
            frmyouwin.txtYourName.key_down(13);
        }
        if (write(acknowledge, "+", 1) != 1) _exit(1);
        frmBestScore.cmdOk.click();
    }
}

int acknowledged(int pipe_end) {
    int count = 0;
    char byte = 0;
    while (read(pipe_end, &byte, 1) == 1) ++count;
    return count;
}

TEST(Killed, WhileResultsAreEnteredLosesNoneThatWasAcknowledged) {
    const ScratchFolder folder("kill");
    const std::string path = folder / "settings.sqlite";
    const int kills = short_or_long(200, 10000);
    std::mt19937 engine(1);
    Table table(places);
    Counts counts;
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
        const bool wait_for_first = round % 4 != 0;
        const int first = wait_for_first && read(ends[0], &byte, 1) == 1 ? 1 : 0;
        std::this_thread::sleep_for(std::chrono::microseconds(engine() % 6000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const int done = first + acknowledged(ends[0]);
        close(ends[0]);

        for (int number = 0; number < done; ++number) enter(table, counts, result(round, number));
        Table next = table;
        Counts next_counts = counts;
        enter(next, next_counts, result(round, done));
        SqliteStore store(path);
        use_store(&store);
        const Table stored = stored_table();
        ASSERT_TRUE(stored == table || stored == next) << "round " << round << " after " << done;
        const Counts counted = stored_counts();
        ASSERT_TRUE(counted == counts || counted == next_counts) << "round " << round << " after " << done;
        ASSERT_TRUE(counted == next_counts || stored == table) << "entered, but not counted";
        use_store(nullptr);
        unfinished += counted == counts ? 0 : 1;
        entered += done;
        table = stored;
        counts = counted;
    }
    EXPECT_GT(counts.won, 0);
    EXPECT_GT(entered, kills) << "the program was killed before it had done anything";
    EXPECT_GT(unfinished, 0) << "no kill hit a game while it was counted";
    std::cout << kills << " kills, " << entered << " results acknowledged, " << unfinished
              << " killed while a game was counted\n";
}

}  // namespace
}  // namespace tarnwick

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
    bool operator==(const Entry&) const = default;
};
using Table = std::vector<Entry>;

constexpr std::size_t places = 5;

// The results that the player of round `round` enters, one after the other. Names are never used twice.
Entry result(int round, int number) {
    std::mt19937 engine(static_cast<unsigned>(round * 1000 + number));
    return {static_cast<int>(engine() % 200) + 1, std::to_string(round) + '/' + std::to_string(number)};
}

void enter(Table& table, const Entry& entry) {
    auto place = table.begin();
    while (place != table.end() && place->score > entry.score) ++place;
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

// Plays results until it is killed; a byte through the pipe acknowledges each.
[[noreturn]] void play_results(const std::string& path, int round, int acknowledge) {
    HeadlessDesktop desktop;
    SqliteStore store(path);
    start_program(store);
    for (int number = 0;; ++number) {
        const Entry entry = result(round, number);
        score = entry.score;
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
    double games = 0;
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

        for (int number = 0; number < done; ++number) enter(table, result(round, number));
        Table next = table;
        enter(next, result(round, done));
        SqliteStore store(path);
        use_store(&store);
        const Table stored = stored_table();
        ASSERT_TRUE(stored == table || stored == next) << "round " << round << " after " << done;
        const double played = to_double(read_setting(key_games_played, 0));
        ASSERT_TRUE(played == games + done || played == games + done + 1) << "round " << round;
        use_store(nullptr);
        unfinished += played != games + done ? 1 : 0;
        entered += done;
        table = stored;
        games = played;
    }
    EXPECT_GT(entered, kills) << "the program was killed before it had done anything";
    EXPECT_GT(unfinished, 0) << "no kill hit a game while it was counted";
    std::cout << kills << " kills, " << entered << " results acknowledged, " << unfinished
              << " killed while a game was counted\n";
}

}  // namespace
}  // namespace tarnwick

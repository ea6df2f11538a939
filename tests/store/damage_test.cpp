// The file of the store cut off and changed in every way, and on a disk that fails.

#include <sys/wait.h>
#include <unistd.h>

#include <map>
#include <random>

#include "tests/store/faulty_disk.h"
#include "tests/store/store_test.h"

namespace tarnwick {
namespace {

using Values = std::map<std::string, std::string>;

class Damage : public StoreTest {
  protected:
    Damage() {
        for (const std::string place : {"1", "2", "3", "4", "5"}) {
            values["high score " + place] = "1" + place + "0";
            values["high score name " + place] = "Somebody with quite a long name";
        }
        SqliteStore store(path);
        save_all(store, values);
    }

    static void save_all(Store& store, const Values& all) {
        store.transaction([&store, all] {
            for (const auto& [key, text] : all) save(store, key, text);
        });
    }

    std::string whole() const { return ScratchFolder::contents(path); }

    // Starts on a damaged file: every value is the right one or missing, and what is missing was told once,
    // with the damaged file set aside as it was.
    void start_on(const std::string& contents, const std::string& what) {
        SCOPED_TRACE(what);
        folder.empty();
        told.clear();
        ScratchFolder::write(path, contents);
        ScratchFolder::write(folder / "settings.damaged-1.sqlite", "an earlier one");
        std::size_t missing = 0;
        {
            SqliteStore store(path);
            listen(store);
            for (const auto& [key, text] : values) {
                const std::string found = read(store, key);
                missing += found == "-" ? 1 : 0;
                EXPECT_TRUE(found == "-" || found == text) << key << ": " << found;
            }
            save(store, "card back", "5");
            EXPECT_EQ(read(store, "card back"), "5");
        }
        EXPECT_LE(told.size(), 1U);
        // An empty file is an empty store: there is nothing in it that could be set aside.
        if (missing == 0 || contents.empty()) return;
        EXPECT_EQ(told.size(), 1U) << missing << " values are gone and nobody was told";
        EXPECT_TRUE(ScratchFolder::contents(folder / "settings.damaged-2.sqlite") == contents);
        ++(missing == values.size() ? lost : salvaged);
    }

    Values values{{"card back", "3"}, {"back color", "32768"}, {"games played", "17"}, {"anamate", "False"}};
    int lost = 0;
    int salvaged = 0;
};

TEST_F(Damage, NeverGivesAWrongValue) {
    const std::string file = whole();
    const std::size_t step = short_or_long(97, 1);
    for (std::size_t length = 0; length < file.size() && !HasFailure(); length += step) {
        start_on(file.substr(0, length), "cut off at " + std::to_string(length));
    }
    EXPECT_GT(lost, 0);
    salvaged = 0;
    std::mt19937 engine(1);
    for (int i = 0; i < short_or_long(500, 10000) && !HasFailure(); ++i) {
        std::string damaged = file;
        const std::size_t bit = engine() % (8 * file.size());
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        start_on(damaged, "bit " + std::to_string(bit));
    }
    EXPECT_GT(salvaged, 0);
}

// Several programs start on one damaged file at once, and each counts a game.
TEST_F(Damage, MetBySeveralProgramsAtOnceIsMendedOnce) {
    constexpr int programs = 3;
    // One value has lost its checksum: the others can still be read.
    std::string damaged = whole();
    damaged.replace(damaged.find("Somebody"), 1, "s");
    for (int round = 0; round < short_or_long(30, 1000) && !HasFailure(); ++round) {
        folder.empty();
        ScratchFolder::write(path, damaged);
        for (int i = 0; i < programs; ++i) {
            if (fork() != 0) continue;
            {
                SqliteStore store(path);
                store.transaction([&store] {
                    const int games = std::atoi(read(store, "games played").c_str());
                    save(store, "games played", std::to_string(games + 1));
                });
            }
            _exit(0);
        }
        for (int i = 0; i < programs; ++i) wait(nullptr);
        EXPECT_EQ(on_disk("games played"), std::to_string(17 + programs)) << round;
        EXPECT_EQ(on_disk("card back"), "3");
        EXPECT_FALSE(ScratchFolder::contents(folder / "settings.damaged-1.sqlite").empty());
        EXPECT_TRUE(ScratchFolder::contents(folder / "settings.damaged-2.sqlite").empty()) << "a whole file";
    }
}

TEST_F(Damage, ByADiskThatFailsLosesNoAcknowledgedValueAndTearsNoTable) {
    const std::string file = whole();
    Values table = values;
    for (auto& [key, text] : table) text.insert(0, "new ");
    FaultyDisk disk;
    int failures = 0;
    for (const auto& [for_ever, new_file] :
         {std::pair(false, false), {false, true}, {true, false}, {true, true}}) {
        for (int n = 1;; ++n) {
            SCOPED_TRACE("call " + std::to_string(n) + (for_ever ? " for ever" : " once") +
                         (new_file ? ", new file" : ", old file"));
            folder.empty();
            told.clear();
            if (!new_file) ScratchFolder::write(path, file);
            disk.fail_at(n, for_ever);
            {
                SqliteStore store(path);
                listen(store);
                save(store, "card back", "4");
                EXPECT_EQ(read(store, "card back"), "4");
                save_all(store, table);
                for (const auto& [key, text] : table)
                    EXPECT_EQ(read(store, key), text) << "within the session";
            }
            const bool failed = disk.has_failed();
            disk.repair();
            if (!failed) break;
            ++failures;
            SqliteStore store(path);
            const bool is_new = read(store, "games played") == table["games played"];
            for (const auto& [key, text] : table) {
                if (key == "card back" && !is_new) continue;
                EXPECT_EQ(read(store, key), is_new ? text : new_file ? "-" : values[key]);
            }
            EXPECT_TRUE(is_new || told.size() == 1) << "lost without a word";
            ASSERT_FALSE(HasFailure());
        }
    }
    EXPECT_GT(failures, 20);
}

TEST_F(Damage, ByAFullDiskIsMadeGoodOnceItHasRoomAgain) {
    FaultyDisk disk;
    SqliteStore store(path);
    listen(store);
    save(store, "games won", "1");
    disk.fail_at(1, true);
    save(store, "games played", "18");
    EXPECT_EQ(read(store, "games played") + read(store, "games won"), "181");
    EXPECT_EQ(told.size(), 1U);
    disk.repair();
    EXPECT_EQ(on_disk("games played"), "17");
    save(store, "average score", "50");
    EXPECT_EQ(on_disk("games played") + ' ' + on_disk("average score"), "18 50");
}

}  // namespace
}  // namespace tarnwick

// The file of the store cut off and changed in every way, and on a disk that fails.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <map>
#include <random>

#include "settings/sqlite_store.h"
#include "tests/store/faulty_disk.h"
#include "tests/store/scratch_folder.h"

namespace tarnwick {
namespace {

using Values = std::map<std::string, std::string>;

Values some_values() {
    Values values{{"card back", "3"}, {"back color", "32768"}, {"games played", "17"}, {"anamate", "False"}};
    for (const char place : {'1', '2', '3', '4', '5'}) {
        values[std::string("high score ") + place] = std::string("1") + place + '0';
        values[std::string("high score name ") + place] = "Somebody with quite a long name";
        values[std::string("high score date ") + place] = "22/11/26";
    }
    return values;
}

std::string read(Store& store, const std::string& key) {
    return store.read("Tarnwick", "setting", key).value_or("");
}

void save(Store& store, const Values& values) {
    store.transaction([&store, values] {
        for (const auto& [key, text] : values) store.save("Tarnwick", "setting", key, text);
    });
}

class Damage : public testing::Test {
  protected:
    Damage() {
        SqliteStore store(path_);
        save(store, values_);
    }

    std::string whole() const { return ScratchFolder::contents(path_); }

    // Starts on a damaged file: every value is the right one or missing, and what is missing was told once,
    // with the damaged file set aside as it was.
    void start_on(const std::string& contents, const std::string& what) {
        folder_.empty();
        ScratchFolder::write(path_, contents);
        ScratchFolder::write(folder_ / "settings.damaged-1.sqlite", "an earlier one");
        int notices = 0;
        std::size_t missing = 0;
        {
            SqliteStore store(path_);
            store.listen([&notices](const std::string&) { ++notices; });
            for (const auto& [key, text] : values_) {
                const std::string found = read(store, key);
                if (found.empty()) {
                    ++missing;
                } else {
                    EXPECT_EQ(found, text) << what;
                }
            }
            save(store, {{"card back", "5"}});
            EXPECT_EQ(read(store, "card back"), "5") << what;
        }
        EXPECT_LE(notices, 1) << what;
        // An empty file is an empty store: there is nothing in it that could be set aside.
        if (missing == 0 || contents.empty()) return;
        EXPECT_EQ(notices, 1) << what << ": " << missing << " values are gone and nobody was told";
        EXPECT_TRUE(ScratchFolder::contents(folder_ / "settings.damaged-2.sqlite") == contents) << what;
        lost_ += missing == values_.size() ? 1 : 0;
        salvaged_ += missing == values_.size() ? 0 : 1;
    }

    ScratchFolder folder_{"damage"};
    std::string path_ = folder_ / "settings.sqlite";
    Values values_ = some_values();
    int lost_ = 0;
    int salvaged_ = 0;
};

TEST_F(Damage, ByTruncationNeverGivesAWrongValue) {
    const std::string file = whole();
    const std::size_t step = short_or_long(97, 1);
    for (std::size_t length = 0; length < file.size() && !HasFailure(); length += step) {
        start_on(file.substr(0, length), "cut off at " + std::to_string(length));
    }
    EXPECT_GT(lost_, 0);
}

TEST_F(Damage, ByFlippedBitsNeverGivesAWrongValue) {
    const std::string file = whole();
    std::mt19937 engine(1);
    const int flips = short_or_long(500, 10000);
    for (int i = 0; i < flips && !HasFailure(); ++i) {
        std::string damaged = file;
        const std::size_t byte = engine() % file.size();
        const unsigned bit = engine() % 8;
        damaged[byte] = static_cast<char>(static_cast<unsigned char>(damaged[byte]) ^ (1U << bit));
        start_on(damaged, "bit " + std::to_string(bit) + " of byte " + std::to_string(byte));
    }
    EXPECT_GT(salvaged_, 0);
}

// Several programs start on one damaged file at once, and each counts a game.
TEST_F(Damage, MetBySeveralProgramsAtOnceIsMendedOnce) {
    constexpr int programs = 3;
    const int rounds = short_or_long(30, 1000);
    // One value has lost its checksum: the others can still be read.
    std::string damaged = whole();
    damaged.replace(damaged.find("Somebody"), 1, "s");
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        folder_.empty();
        ScratchFolder::write(path_, damaged);
        for (int i = 0; i < programs; ++i) {
            if (fork() != 0) continue;
            {
                SqliteStore store(path_);
                store.transaction([&store] {
                    save(store, {{"games played",
                                  std::to_string(std::stoi("0" + read(store, "games played")) + 1)}});
                });
            }
            _exit(0);
        }
        for (int i = 0; i < programs; ++i) wait(nullptr);
        SqliteStore store(path_);
        EXPECT_EQ(read(store, "games played"), std::to_string(17 + programs)) << round;
        EXPECT_EQ(read(store, "card back"), "3");
        EXPECT_FALSE(ScratchFolder::contents(folder_ / "settings.damaged-1.sqlite").empty());
        EXPECT_TRUE(ScratchFolder::contents(folder_ / "settings.damaged-2.sqlite").empty()) << "a whole file";
    }
}

// What one session does on a disk: it starts, saves one value, and changes a table in one transaction.
void use_store(const std::string& path, const Values& table, int& notices) {
    SqliteStore store(path);
    store.listen([&notices](const std::string&) { ++notices; });
    save(store, {{"card back", "4"}});
    EXPECT_EQ(read(store, "card back"), "4");
    save(store, table);
    for (const auto& [key, text] : table) EXPECT_EQ(read(store, key), text) << "within the session";
}

TEST_F(Damage, ByADiskThatFailsLosesNoAcknowledgedValueAndTearsNoTable) {
    const std::string file = whole();
    Values table = values_;
    for (auto& [key, text] : table) text.insert(0, "new ");
    FaultyDisk disk;
    int failures = 0;
    for (const bool for_ever : {false, true}) {
        for (const bool new_file : {false, true}) {
            for (int n = 1;; ++n) {
                folder_.empty();
                if (!new_file) ScratchFolder::write(path_, file);
                disk.fail_at(n, for_ever);
                int notices = 0;
                use_store(path_, table, notices);
                const bool failed = disk.has_failed();
                disk.repair();
                if (!failed) break;
                ++failures;
                SqliteStore store(path_);
                const bool is_new = read(store, "games played") == table["games played"];
                const Values& expected = is_new ? table : new_file ? Values{} : values_;
                for (const auto& [key, text] : table) {
                    if (key == "card back" && !is_new) continue;
                    const auto wanted = expected.find(key);
                    EXPECT_EQ(read(store, key), wanted == expected.end() ? "" : wanted->second);
                }
                EXPECT_TRUE(is_new || notices == 1) << "lost without a word";
                ASSERT_FALSE(HasFailure()) << "call " << n << (for_ever ? " for ever" : " once")
                                           << (new_file ? ", new file" : ", old file");
            }
        }
    }
    EXPECT_GT(failures, 20);
}

}  // namespace
}  // namespace tarnwick

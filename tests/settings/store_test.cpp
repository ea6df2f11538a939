#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "settings/sqlite_store.h"

namespace tarnwick {
namespace {
namespace fs = std::filesystem;

// While it lives, no file can grow: for every writer, the superuser included, as on a full disk.
class FullDisk {
  public:
    FullDisk() {
        getrlimit(RLIMIT_FSIZE, &before_);
        signal_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit nothing{0, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nothing);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        static_cast<void>(std::signal(SIGXFSZ, signal_));
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*signal_)(int) = nullptr;
};

class StoreTest : public testing::Test {
  protected:
    StoreTest() {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~StoreTest() override { fs::remove_all(folder); }

    static std::string read(Store& store, const std::string& key) {
        return store.read("Tarnwick", "setting", key).value_or("-");
    }
    static void save(Store& store, const std::string& key, const std::string& text) {
        store.save("Tarnwick", "setting", key, text);
    }
    void listen(Store& store) {
        store.listen([this](const std::string& sentence) { told.push_back(sentence); });
    }
    void write_file(const std::string& name, const std::string& contents) const {
        std::ofstream(folder / name, std::ios::binary) << contents;
    }

    fs::path folder = fs::temp_directory_path() / ("tarnwick-store-" + std::to_string(getpid()));
    std::string path = (folder / "new" / "settings.sqlite").string();
    std::vector<std::string> told;
};

TEST_F(StoreTest, KeepsEveryTextAcrossRuns) {
    const std::string texts[] = {"", "7", "Søren \"O'Neil\" ♠", std::string("a\0b", 3), "line\nline"};
    for (const std::string& text : texts) {
        {
            SqliteStore store(path);
            save(store, "high score name 1", "older");
            save(store, "high score name 1", text);
        }
        SqliteStore store(path);
        listen(store);
        EXPECT_EQ(read(store, "high score name 1"), text);
        EXPECT_EQ(read(store, "high score name 2"), "-") << "reading creates no key";
        EXPECT_EQ(store.read("Another", "setting", "high score name 1"), std::nullopt);
        EXPECT_TRUE(told.empty());
    }
}

TEST_F(StoreTest, MakesATransactionOneChange) {
    SqliteStore store(path);
    SqliteStore onlooker(path);
    save(store, "high score 1", "50");
    store.transaction([&] {
        save(store, "high score 2", "50");
        save(store, "high score 1", "70");
        EXPECT_EQ(read(store, "high score 1"), "70");
        EXPECT_EQ(read(onlooker, "high score 1"), "50") << "not seen before its end";
    });
    EXPECT_EQ(read(onlooker, "high score 1"), "70");
    EXPECT_THROW(store.transaction([&] {
        save(store, "high score 1", "90");
        throw std::runtime_error("no");
    }),
                 std::runtime_error);
    EXPECT_EQ(read(store, "high score 1"), "70") << "a failed one leaves nothing";
    EXPECT_EQ(read(onlooker, "high score 1"), "70");
}

TEST_F(StoreTest, LetsTwoProgramsCountInTheSameFile) {
    SqliteStore one(path);
    SqliteStore two(path);
    for (int i = 0; i < 20; ++i) {
        Store& store = i % 2 == 0 ? one : two;
        store.transaction([&] {
            const std::string played = read(store, "games played");
            save(store, "games played", std::to_string(played == "-" ? 1 : std::stoi(played) + 1));
        });
    }
    EXPECT_EQ(read(one, "games played"), "20");
    EXPECT_EQ(read(two, "games played"), "20");
}

TEST_F(StoreTest, SetsADamagedFileAsideAndTellsOnce) {
    path = (folder / "settings.sqlite").string();
    write_file("settings.sqlite", "this is not a database, but a player may have something dear in it");
    write_file("settings.damaged-1.sqlite", "an earlier one");
    SqliteStore store(path);
    listen(store);
    save(store, "games played", "1");
    EXPECT_EQ(read(store, "games played"), "1");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("settings.damaged-2.sqlite"), std::string::npos);
    std::ifstream aside(folder / "settings.damaged-2.sqlite");
    std::string words;
    std::getline(aside, words);
    EXPECT_EQ(words.substr(0, 23), "this is not a database,") << "never overwritten";
    EXPECT_EQ(read(*std::make_unique<SqliteStore>(path), "games played"), "1");
}

TEST_F(StoreTest, BeginsANewFileWhenTheOldOneIsTakenAway) {
    SqliteStore store(path);
    save(store, "games played", "7");
    fs::remove(path);
    EXPECT_EQ(read(store, "games played"), "-");
    save(store, "games played", "1");
    SqliteStore next(path);
    EXPECT_EQ(read(next, "games played"), "1");
}

// A folder that cannot be made stands for every file that cannot be written: it works for the superuser too.
TEST_F(StoreTest, PlaysOnInMemoryWhereNothingCanBeWritten) {
    write_file("new", "a file where the folder should be");
    SqliteStore store(path);
    listen(store);
    save(store, "games played", "3");
    store.transaction([&] { save(store, "average score", "120"); });
    EXPECT_EQ(read(store, "games played"), "3");
    EXPECT_EQ(read(store, "average score"), "120");
    ASSERT_EQ(told.size(), 1U) << "told once";
    EXPECT_NE(told[0].find("cannot be saved"), std::string::npos);
}

TEST_F(StoreTest, WritesWhatCouldNotBeWrittenOnceTheDiskHasRoomAgain) {
    SqliteStore store(path);
    listen(store);
    save(store, "games won", "1");
    {
        const FullDisk full;
        save(store, "games played", "1");
        EXPECT_EQ(read(store, "games played"), "1");
        EXPECT_EQ(read(store, "games won"), "1");
        EXPECT_EQ(told.size(), 1U);
    }
    EXPECT_EQ(read(*std::make_unique<SqliteStore>(path), "games played"), "-");
    save(store, "average score", "50");
    SqliteStore next(path);
    EXPECT_EQ(read(next, "games played"), "1");
    EXPECT_EQ(read(next, "average score"), "50");
}

}  // namespace
}  // namespace tarnwick

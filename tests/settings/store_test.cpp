#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "settings/sqlite_store.h"
#include "tests/store/faulty_disk.h"
#include "tests/store/scratch_folder.h"

namespace tarnwick {
namespace {
class StoreTest : public testing::Test {
  protected:
    static std::string read(Store& store, const std::string& key) {
        return store.read("Tarnwick", "setting", key).value_or("-");
    }
    static void save(Store& store, const std::string& key, const std::string& text) {
        store.save("Tarnwick", "setting", key, text);
    }
    void listen(Store& store) {
        store.listen([this](const std::string& sentence) { told.push_back(sentence); });
    }
    ScratchFolder folder{"store"};
    std::string path = folder / "new" / "settings.sqlite";
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
    listen(store);
    save(store, "high score 3", "1");
    EXPECT_TRUE(told.empty() && !store.waits()) << "and is in the way of no other";
    EXPECT_EQ(read(onlooker, "high score 1"), "70");
    save(onlooker, "high score 1", "80");
    EXPECT_EQ(read(store, "high score 1"), "80") << "what another program has saved";
    std::filesystem::remove(path);
    EXPECT_EQ(read(store, "high score 1"), "-") << "the file was taken away";
}

TEST_F(StoreTest, PlaysOnInMemoryWhereItsFolderCannotBeMade) {
    ScratchFolder::write(folder / "new", "a file where the folder should be");
    SqliteStore store(path);
    save(store, "games played", "3");
    EXPECT_EQ(read(store, "games played"), "3");
}

TEST_F(StoreTest, WritesWhatCouldNotBeWrittenOnceTheDiskHasRoomAgain) {
    FaultyDisk disk;
    SqliteStore store(path);
    listen(store);
    save(store, "games won", "1");
    disk.fail_at(1, true);
    save(store, "games played", "1");
    EXPECT_EQ(read(store, "games played") + read(store, "games won"), "11");
    EXPECT_EQ(told.size(), 1U);
    disk.repair();
    EXPECT_EQ(read(*std::make_unique<SqliteStore>(path), "games played"), "-");
    save(store, "average score", "50");
    SqliteStore next(path);
    EXPECT_EQ(read(next, "games played"), "1");
    EXPECT_EQ(read(next, "average score"), "50");
}

}  // namespace
}  // namespace tarnwick

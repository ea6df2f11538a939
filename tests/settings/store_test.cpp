#include "tests/store/store_test.h"

#include <filesystem>
#include <stdexcept>

namespace tarnwick {
namespace {

TEST_F(StoreTest, KeepsEveryTextAcrossRuns) {
    path = folder / "new" / "settings.sqlite";
    for (const std::string& text :
         {std::string(), std::string("Søren \"O'Neil\" ♠\n"), std::string("a\0b", 3)}) {
        save_on_disk("high score name 1", "older");
        save_on_disk("high score name 1", text);
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
    const auto failing = [&] {
        save(store, "high score 1", "90");
        throw std::runtime_error("no");
    };
    EXPECT_THROW(store.transaction(failing), std::runtime_error);
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

}  // namespace
}  // namespace tarnwick

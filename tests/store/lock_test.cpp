// Another program holds the file, or it cannot be written, for a while.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "game/best_scores.h"
#include "settings/repair.h"
#include "settings/settings.h"
#include "settings/sqlite_store.h"
#include "settings/store_path.h"
#include "state/variables.h"
#include "tests/store/faulty_disk.h"
#include "tests/store/scratch_folder.h"
#include "tools/driver/play.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr const char* exclusive = "BEGIN EXCLUSIVE";
constexpr const char* reserved = "BEGIN IMMEDIATE";

/// A program that holds the file until this object is gone.
class Holder {
  public:
    Holder(const std::string& path, const char* how) {
        sqlite3_open(path.c_str(), &database_);
        EXPECT_EQ(sqlite3_exec(database_, how, nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~Holder() { sqlite3_close(database_); }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

  private:
    sqlite3* database_ = nullptr;
};

class Locked : public testing::Test {
  protected:
    ~Locked() override { use_store(nullptr); }

    static std::string read(Store& store, const std::string& key) {
        return store.read("Tarnwick", "setting", key).value_or("-");
    }
    static void save(Store& store, const std::string& key, const std::string& text) {
        store.save("Tarnwick", "setting", key, text);
    }
    static void count(Store& store, int points) {
        use_store(&store);
        count_game(points, false);
        use_store(nullptr);
    }
    void listen(Store& store) {
        store.listen([this](const std::string& sentence) { told.push_back(sentence); });
    }
    std::string on_disk(const std::string& key) {
        SqliteStore store(path);
        return read(store, key);
    }

    ScratchFolder folder{"lock"};
    std::string path = folder / "settings.sqlite";
    std::vector<std::string> told;
};

TEST_F(Locked, HeldBackGamesAreCountedOnWhatTheFileHoldsThen) {
    for (const char* how : {exclusive, reserved}) {
        for (const bool from_the_start : {false, true}) {
            folder.empty();
            { count(*std::make_unique<SqliteStore>(path), 7); }
            auto holder = std::make_unique<Holder>(path, how);
            if (!from_the_start) holder.reset();
            SqliteStore store(path);
            listen(store);
            if (!from_the_start) {
                EXPECT_EQ(read(store, "average score"), "7");
                holder = std::make_unique<Holder>(path, how);
            }
            count(store, 10);
            count(store, 20);
            const bool in_reach = !from_the_start || how == reserved;
            SCOPED_TRACE(std::string(how) + (from_the_start ? " from the start" : " later"));
            EXPECT_EQ(read(store, "games played"), from_the_start && how == exclusive ? "2" : "3");
            EXPECT_EQ(read(store, "average score"), from_the_start && how == exclusive ? "30" : "37");
            EXPECT_EQ(read(store, "card back"), "-");
            EXPECT_EQ(store.knows("Tarnwick", "setting", "card back"), in_reach);
            EXPECT_TRUE(store.waits());
            holder.reset();
            SqliteStore other(path);
            for (int i = 0; i < 3; ++i) count(other, 100);
            EXPECT_EQ(read(other, "games played"), "4") << "the two still wait";
            store.try_again();
            EXPECT_FALSE(store.waits());
            EXPECT_EQ(read(store, "games played") + ' ' + on_disk("games played"), "6 6");
            EXPECT_EQ(on_disk("average score"), "337");
            EXPECT_TRUE(told.empty()) << told[0];
        }
    }
}

TEST_F(Locked, NothingWaitsLongAndALastingLockIsToldOnce) {
    save(*std::make_unique<SqliteStore>(path), "card back", "3");
    SqliteStore store(path);
    listen(store);
    EXPECT_EQ(read(store, "card back"), "3");
    const auto holder = std::make_unique<Holder>(path, exclusive);
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(read(store, "card back"), "3") << "as seen last";
        save(store, "text color", std::to_string(i));
        EXPECT_EQ(read(store, "text color"), std::to_string(i));
    }
    const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(spent.count(), 250) << "of one event";
    std::cout << spent.count() << " ms were spent by twenty saves and forty reads under a lock\n";
    for (int i = 0; i < 12; ++i) store.try_again();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("Another program holds the file"), std::string::npos);
}

TEST_F(Locked, WhatWaitsIsDoneWhenTheStoreIsClosed) {
    auto store = std::make_unique<SqliteStore>(path);
    auto holder = std::make_unique<Holder>(path, exclusive);
    count(*store, 10);
    std::thread letting_go([&holder] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        holder.reset();
    });
    store.reset();
    letting_go.join();
    EXPECT_EQ(on_disk("games played"), "1");
}

TEST_F(Locked, TheMessageAtTheEndLeavesTimeToLetGo) {
    auto holder = std::make_unique<Holder>(path, exclusive);
    auto store = std::make_unique<SqliteStore>(path);
    store->listen([&](const std::string& sentence) {
        told.push_back(sentence);
        holder.reset();
    });
    count(*store, 10);
    store.reset();
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(on_disk("games played"), "1");
    // Who has done nothing has nothing to lose, though the look through the values still waits.
    told.clear();
    holder = std::make_unique<Holder>(path, exclusive);
    store = std::make_unique<SqliteStore>(path);
    listen(*store);
    use_store(store.get());
    repair_settings(6);
    use_store(nullptr);
    EXPECT_TRUE(store->waits());
    store.reset();
    EXPECT_TRUE(told.empty());
}

TEST_F(Locked, WhatWaitsGoesIntoTheFileThatHasTakenThePlaceOfTheHeldOne) {
    for (const bool at_the_end : {false, true}) {
        folder.empty();
        auto store = std::make_unique<SqliteStore>(path);
        save(*store, "text color", "7");
        auto holder = std::make_unique<Holder>(path, exclusive);
        count(*store, 10);
        std::filesystem::remove(path);
        if (!at_the_end) {
            save(*std::make_unique<SqliteStore>(path), "card back", "3");
            holder.reset();
            holder = std::make_unique<Holder>(path, exclusive);
            EXPECT_EQ(read(*store, "back color"), "-");
            EXPECT_FALSE(store->knows("Tarnwick", "setting", "back color")) << "not of this file";
            holder.reset();
            store->try_again();
            EXPECT_FALSE(store->waits());
        }
        store.reset();
        EXPECT_EQ(on_disk("games played") + on_disk("text color"), "1-");
        EXPECT_EQ(on_disk("card back"), at_the_end ? "-" : "3");
    }
}

TEST_F(Locked, AnEntryThatIsBeatenMeanwhileIsTold) {
    HeadlessDesktop desktop;
    for (const int other : {30, 50}) {
        folder.empty();
        SqliteStore store(path);
        auto holder = std::make_unique<Holder>(path, reserved);
        use_store(&store);
        EXPECT_EQ(enter_best_score(40, "Ann"), 1);
        holder.reset();
        {
            SqliteStore another(path);
            use_store(&another);
            for (int i = 0; i < 5; ++i) enter_best_score(other, "Bob");
        }
        store.try_again();
        EXPECT_EQ(on_disk("high score 1") + ' ' + on_disk("high score name 1"),
                  other == 30 ? "40 Ann" : "50 Bob");
        EXPECT_EQ(on_disk("high score name 5"), "Bob");
        EXPECT_EQ(desktop.messages().size(), other == 30 ? 0U : 1U);
    }
}

TEST_F(Locked, TheProgramSavesWithoutThePlayerDoingAnythingAndWritesNoDefault) {
    {
        SqliteStore store(path);
        for (const auto& [key, text] : {std::pair{"card back", "4"},
                                        {"scale cards", "False"},
                                        {"back color", "255"},
                                        {"anamate", "False"},
                                        {"games played", "many"}}) {
            save(store, key, text);
        }
    }
    HeadlessDesktop desktop;
    auto holder = std::make_unique<Holder>(path, exclusive);
    SqliteStore store(path);
    start_program(store);
    score = 40;
    frmcards.mnuNew.choose();
    frmcards.mnuNew.choose();
    frmyouwin.close();
    frmBestScore.close();
    frmcards.mnuSetings.choose();
    EXPECT_TRUE(frmFeatures.optCardBack(0).on()) << "the usual one stands in";
    frmFeatures.chkDisplayMes.set_checked(false);
    holder.reset();
    frmFeatures.cmdOk.click();
    desktop.advance(1500);
    EXPECT_EQ(on_disk("card back") + on_disk("scale cards") + on_disk("back color") + on_disk("anamate"),
              "4False255False");
    EXPECT_EQ(on_disk("show message"), "False") << "what the player has changed is saved";
    EXPECT_EQ(on_disk("games played") + ' ' + on_disk("games played (damaged)"), "1 many");
    EXPECT_EQ(on_disk("average score"), "40");
    end_program();
}

}  // namespace
}  // namespace tarnwick

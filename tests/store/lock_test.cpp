// Another program holds the file, or it cannot be written, for a while.

#include <sqlite3.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "game/statistics.h"
#include "settings/repair.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/store/store_test.h"
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

class Locked : public StoreTest {
  protected:
    ~Locked() override { use_store(nullptr); }

    static void count(Store& store, int points) {
        use_store(&store);
        count_game(points, false);
        use_store(nullptr);
    }
    void hold(const char* how) {
        holder.reset();
        holder = std::make_unique<Holder>(path, how);
    }

    std::unique_ptr<Holder> holder;
};

TEST_F(Locked, HeldBackGamesAreCountedOnWhatTheFileHoldsThen) {
    for (const auto& [how, from_the_start] :
         {std::pair(exclusive, false), {exclusive, true}, {reserved, false}, {reserved, true}}) {
        SCOPED_TRACE(std::string(how) + (from_the_start ? " from the start" : " later"));
        folder.empty();
        count(*std::make_unique<SqliteStore>(path), 7);
        if (from_the_start) hold(how);
        SqliteStore store(path);
        listen(store);
        if (!from_the_start) {
            EXPECT_EQ(read(store, "average score"), "7");
            hold(how);
        }
        count(store, 10);
        count(store, 20);
        const bool in_reach = !from_the_start || how == reserved;
        EXPECT_EQ(read(store, "games played") + ' ' + read(store, "average score"),
                  in_reach ? "3 37" : "2 30");
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

TEST_F(Locked, NothingWaitsLongAndALastingLockIsToldOnce) {
    save_on_disk("card back", "3");
    SqliteStore store(path);
    listen(store);
    EXPECT_EQ(read(store, "card back"), "3");
    hold(exclusive);
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(read(store, "card back"), "3") << "as seen last";
        save(store, "text color", std::to_string(i));
        EXPECT_EQ(read(store, "text color"), std::to_string(i));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(250)) << "of one event";
    for (int i = 0; i < 12; ++i) store.try_again();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("Another program holds the file"), std::string::npos);
}

TEST_F(Locked, WhatWaitsIsDoneWhenTheStoreIsClosed) {
    auto store = std::make_unique<SqliteStore>(path);
    hold(exclusive);
    count(*store, 10);
    std::thread letting_go([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        holder.reset();
    });
    store.reset();
    letting_go.join();
    EXPECT_EQ(on_disk("games played"), "1");
    // The message at the end leaves time to let go.
    hold(exclusive);
    store = std::make_unique<SqliteStore>(path);
    store->listen([this](const std::string& sentence) {
        told.push_back(sentence);
        holder.reset();
    });
    count(*store, 10);
    store.reset();
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(on_disk("games played"), "2");
    // Who has done nothing has nothing to lose, though the look through the values still waits.
    hold(exclusive);
    store = std::make_unique<SqliteStore>(path);
    listen(*store);
    use_store(store.get());
    repair_settings(6);
    use_store(nullptr);
    EXPECT_TRUE(store->waits());
    store.reset();
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(Locked, WhatWaitsGoesIntoTheFileThatHasTakenThePlaceOfTheHeldOne) {
    for (const bool at_the_end : {false, true}) {
        folder.empty();
        auto store = std::make_unique<SqliteStore>(path);
        save(*store, "text color", "7");
        hold(exclusive);
        count(*store, 10);
        std::filesystem::remove(path);
        if (!at_the_end) {
            save_on_disk("card back", "3");
            hold(exclusive);
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
        hold(reserved);
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
    for (const auto& [key, text] : {std::pair{"card back", "4"},
                                    {"scale cards", "False"},
                                    {"back color", "255"},
                                    {"anamate", "False"},
                                    {"games played", "many"}}) {
        save_on_disk(key, text);
    }
    HeadlessDesktop desktop;
    hold(exclusive);
    SqliteStore store(path);
    start_program(store);
    score = 40;
    frmcards.mnuNew.choose();
    frmcards.mnuNew.choose();
    frmyouwin.close();
    frmBestScore.close();
    frmcards.mnuSetings.choose();
    EXPECT_TRUE(frmFeatures.optCardBack(0).on()) << "the usual one stands in";
    frmFeatures.chkDisplayMes.click();
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

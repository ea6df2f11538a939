// The file itself: its name, links to it, what becomes of it while the program runs, and where it cannot be
// written.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <functional>

#include "settings/sqlite_store.h"
#include "settings/store_path.h"
#include "tests/store/scratch_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

class StoreFile : public testing::Test {
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

    ScratchFolder folder{"file"};
    std::string path = folder / "settings.sqlite";
    std::vector<std::string> told;
};

TEST_F(StoreFile, StaysWhereLinksPointAlsoWhenItIsDamaged) {
    fs::create_directory(folder / "kept");
    fs::create_symlink("kept/real.sqlite", folder / "settings.sqlite");
    save(*std::make_unique<SqliteStore>(path), "card back", "3");
    EXPECT_TRUE(fs::is_regular_file(folder / "kept" / "real.sqlite"));
    const std::string whole = ScratchFolder::contents(path);
    ScratchFolder::write(path, whole.substr(0, 5000));
    SqliteStore store(path);
    save(store, "card back", "4");
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_TRUE(ScratchFolder::contents(folder / "kept" / "real.damaged-1.sqlite") == whole.substr(0, 5000));
    EXPECT_EQ(read(*std::make_unique<SqliteStore>(folder / "kept" / "real.sqlite"), "card back"), "4");
}

TEST_F(StoreFile, HasNoNameThatMeansAnythingElse) {
    const fs::path before = fs::current_path();
    fs::current_path(folder / "");
    for (const char* name : {":memory:", "file:settings?mode=memory", "file::memory:", "?"}) {
        save(*std::make_unique<SqliteStore>(name), "card back", "3");
        EXPECT_TRUE(fs::is_regular_file(folder / name)) << name;
        EXPECT_EQ(read(*std::make_unique<SqliteStore>(name), "card back"), "3") << name;
    }
    fs::current_path(before);
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const std::string& name : {std::string(), (folder / "a").string(), (folder / "").string(),
                                    (folder / "pipe").string(), std::string("/dev/null")}) {
        told.clear();
        SqliteStore store(name);
        listen(store);
        save(store, "card back", "3");
        EXPECT_EQ(read(store, "card back"), "3") << "in memory";
        ASSERT_EQ(told.size(), 1U) << name;
        EXPECT_NE(told[0].find("cannot be saved"), std::string::npos) << told[0];
    }
    EXPECT_FALSE(fs::is_regular_file("/dev/null"));
}

TEST_F(StoreFile, LiesInTheUsersFolderAndNowhereElse) {
    struct Variables {
        const char* data_home;
        const char* home;
        std::string expected;
    };
    const std::string end = "/tarnwick/settings.sqlite";
    const auto variable = [](const char* name) {
        const char* value = std::getenv(name);
        return std::string(value ? value : "");
    };
    const std::string old_home = variable("HOME");
    const std::string old_data = variable("XDG_DATA_HOME");
    for (const auto& [data_home, home, expected] : {Variables{"/data", "/home/ann", "/data" + end},
                                                    {"data", "/home/ann", "/home/ann/.local/share" + end},
                                                    {"", "ann", ""},
                                                    {"", "", ""}}) {
        setenv("XDG_DATA_HOME", data_home, 1);
        setenv("HOME", home, 1);
        const std::string found = default_store_path();
        if (expected.empty()) {
            EXPECT_TRUE(fs::path(found).is_absolute());
            EXPECT_NE(found, fs::current_path().string() + "/.local/share" + end);
        } else {
            EXPECT_EQ(found, expected);
        }
    }
    setenv("HOME", old_home.c_str(), 1);
    setenv("XDG_DATA_HOME", old_data.c_str(), 1);
}

TEST_F(StoreFile, ThatIsBrokenWhileTheProgramRunsIsSetAsideAndNothingIsLost) {
    struct {
        const char* name;
        std::function<std::string(std::string)> change;
    } const cases[] = {
        {"cut off", [](const std::string& file) { return file.substr(0, file.size() / 2); }},
        {"a stump", [](const std::string& file) { return file.substr(0, 50); }},
        {"emptied", [](const std::string&) { return std::string(); }},
        {"another file", [](const std::string& file) { return std::string(file.size(), 'x'); }},
        {"the values garbled",
         [](std::string file) { return file.replace(file.size() - 600, 600, 600, 'x'); }},
    };
    for (const auto& [name, change] : cases) {
        for (const bool by_reading : {true, false}) {
            SCOPED_TRACE(std::string(name) + (by_reading ? ", read" : ", written"));
            folder.empty();
            told.clear();
            for (int i = 0; i < 30; ++i) {
                save(*std::make_unique<SqliteStore>(path), std::to_string(i), std::string(100, 'a'));
            }
            SqliteStore store(path);
            listen(store);
            save(store, "card back", "3");
            const std::string damaged = change(ScratchFolder::contents(path));
            ScratchFolder::write(path, damaged);
            if (by_reading) {
                EXPECT_EQ(read(store, "card back"), "3");
            } else {
                store.transaction([&store] { save(store, "text color", read(store, "card back") + "0"); });
            }
            EXPECT_EQ(told.size(), 1U);
            EXPECT_TRUE(ScratchFolder::contents(folder / "settings.damaged-1.sqlite") == damaged);
            SqliteStore next(path);
            EXPECT_EQ(read(next, "card back"), "3");
            EXPECT_EQ(read(next, "29"), std::string(100, 'a'));
            EXPECT_EQ(read(next, "text color"), by_reading ? "-" : "30");
        }
    }
}

TEST_F(StoreFile, ThatThePlayerHasTakenAwayBeginsAnew) {
    SqliteStore store(path);
    listen(store);
    save(store, "games played", "3");
    fs::remove(path);
    store.transaction([&store] { save(store, "games won", read(store, "games played")); });
    SqliteStore next(path);
    EXPECT_EQ(read(next, "games played") + ' ' + read(next, "games won"), "- -");
    EXPECT_TRUE(told.empty());
}

// Whoever may write everywhere becomes somebody who may not, for a while.
class WithoutRights {
  public:
    WithoutRights() {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && seteuid(nobody) != 0) ADD_FAILURE();
    }
    ~WithoutRights() {
        if (geteuid() != getuid() && seteuid(getuid()) != 0) ADD_FAILURE();
    }
};

TEST_F(StoreFile, ThatCannotBeWrittenIsToldAtTheStart) {
    for (const bool folder_only : {false, true}) {
        folder.empty();
        told.clear();
        save(*std::make_unique<SqliteStore>(path), "card back", "3");
        chmod((folder / "").c_str(), folder_only ? 0555 : 0777);
        chmod(path.c_str(), folder_only ? 0666 : 0444);
        SqliteStore* store = nullptr;
        {
            const WithoutRights now;
            store = new SqliteStore(path);
        }
        const std::unique_ptr<SqliteStore> owner(store);
        listen(*store);
        ASSERT_EQ(told.size(), 1U) << (folder_only ? "folder" : "file");
        EXPECT_EQ(read(*store, "card back"), "3");
        {
            const WithoutRights now;
            save(*store, "card back", "4");
        }
        EXPECT_EQ(read(*store, "card back"), "4");
        EXPECT_EQ(told.size(), 1U) << "told once";
        chmod((folder / "").c_str(), 0777);
        chmod(path.c_str(), 0666);
    }
}

}  // namespace
}  // namespace tarnwick

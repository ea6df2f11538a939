// The file itself: its name, links to it, what becomes of it while the program runs, and where it cannot be
// written.

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "settings/sqlite/store_path.h"
#include "tests/store/store_test.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

class StoreFile : public StoreTest {};

TEST_F(StoreFile, StaysWhereLinksPointAlsoWhenItIsDamaged) {
    fs::create_directory(folder / "kept");
    fs::create_symlink("kept/real.sqlite", path);
    save_on_disk("card back", "3");
    const std::string damaged = ScratchFolder::contents(folder / "kept" / "real.sqlite").substr(0, 5000);
    ScratchFolder::write(path, damaged);
    save_on_disk("card back", "4");
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(damaged.size(), 5000U);
    EXPECT_TRUE(ScratchFolder::contents(folder / "kept" / "real.damaged-1.sqlite") == damaged);
    path = folder / "kept" / "real.sqlite";
    EXPECT_EQ(on_disk("card back"), "4");
}

TEST_F(StoreFile, HasNoNameThatMeansAnythingElse) {
    const fs::path before = fs::current_path();
    fs::current_path(folder / "");
    for (const char* name : {":memory:", "file:settings?mode=memory", "?"}) {
        path = name;
        save_on_disk("card back", "3");
        EXPECT_TRUE(fs::is_regular_file(folder / name)) << name;
        EXPECT_EQ(on_disk("card back"), "3") << name;
    }
    fs::create_symlink("b", "a");
    fs::create_symlink("a", "b");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    ScratchFolder::write("file", "where the folder should be");
    for (const char* name : {"", "a", "./", "pipe", "/dev/null", "file/settings.sqlite"}) {
        told.clear();
        SqliteStore store(*name ? (folder / name).string() : "");
        listen(store);
        save(store, "card back", "3");
        EXPECT_EQ(read(store, "card back"), "3") << "in memory";
        ASSERT_EQ(told.size(), 1U) << name;
        EXPECT_NE(told[0].find("cannot be saved"), std::string::npos) << told[0];
    }
    fs::current_path(before);
    EXPECT_FALSE(fs::is_regular_file("/dev/null"));
}

TEST_F(StoreFile, LiesInTheUsersFolderAndNowhereElse) {
    const std::string old_home = std::getenv("HOME") ? std::getenv("HOME") : "";
    const std::string old_data = std::getenv("XDG_DATA_HOME") ? std::getenv("XDG_DATA_HOME") : "";
    const auto found = [](const std::string& data_home, const std::string& home) {
        setenv("XDG_DATA_HOME", data_home.c_str(), 1);
        setenv("HOME", home.c_str(), 1);
        return default_store_path();
    };
    EXPECT_EQ(found("/data", "/home/ann"), "/data/tarnwick/settings.sqlite");
    EXPECT_EQ(found("data", "/home/ann"), "/home/ann/.local/share/tarnwick/settings.sqlite");
    for (const char* home : {"ann", ""}) {
        EXPECT_TRUE(fs::path(found("", home)).is_absolute());
        EXPECT_NE(found("", home), fs::current_path().string() + "/.local/share/tarnwick/settings.sqlite");
    }
    found(old_data, old_home);
}

TEST_F(StoreFile, ThatIsBrokenWhileTheProgramRunsIsSetAsideAndNothingIsLost) {
    const std::string long_text(100, 'a');
    for (int i = 0; i < 30; ++i) save_on_disk(std::to_string(i), long_text);
    save_on_disk("card back", "3");
    const std::string whole = ScratchFolder::contents(path);
    const std::string garbled = std::string(whole).replace(whole.size() - 600, 600, 600, 'x');
    for (const std::string& damaged : {whole.substr(0, whole.size() / 2),
                                       whole.substr(0, 50),
                                       std::string(),
                                       std::string(whole.size(), 'x'),
                                       garbled}) {
        for (const bool by_reading : {true, false}) {
            SCOPED_TRACE(std::to_string(damaged.size()) + damaged.substr(0, 6) +
                         (by_reading ? " read" : " written"));
            folder.empty();
            told.clear();
            ScratchFolder::write(path, whole);
            SqliteStore store(path);
            listen(store);
            save(store, "card back", "3");
            ScratchFolder::write(path, damaged);
            if (by_reading) {
                EXPECT_EQ(read(store, "card back"), "3");
            } else {
                store.transaction([&store] { save(store, "text color", read(store, "card back") + "0"); });
            }
            EXPECT_EQ(told.size(), 1U);
            EXPECT_TRUE(ScratchFolder::contents(folder / "settings.damaged-1.sqlite") == damaged);
            EXPECT_EQ(on_disk("card back") + on_disk("29"), "3" + long_text);
            EXPECT_EQ(on_disk("text color"), by_reading ? "-" : "30");
        }
    }
}

TEST_F(StoreFile, ThatThePlayerHasTakenAwayBeginsAnew) {
    SqliteStore store(path);
    listen(store);
    save(store, "games played", "3");
    fs::remove(path);
    store.transaction([&store] { save(store, "games won", read(store, "games played")); });
    EXPECT_EQ(on_disk("games played") + ' ' + on_disk("games won"), "- -");
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
        SCOPED_TRACE(folder_only ? "folder" : "file");
        folder.empty();
        told.clear();
        save_on_disk("card back", "3");
        chmod((folder / "").c_str(), folder_only ? 0555 : 0777);
        chmod(path.c_str(), folder_only ? 0666 : 0444);
        {
            std::optional<WithoutRights> now(std::in_place);
            SqliteStore store(path);
            listen(store);
            ASSERT_EQ(told.size(), 1U);
            EXPECT_EQ(read(store, "card back"), "3");
            save(store, "card back", "4");
            now.reset();
            EXPECT_EQ(read(store, "card back"), "4");
            EXPECT_EQ(told.size(), 1U) << "told once";
        }
        chmod((folder / "").c_str(), 0777);
        chmod(path.c_str(), 0666);
    }
}

}  // namespace
}  // namespace tarnwick

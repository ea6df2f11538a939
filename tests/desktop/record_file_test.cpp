#include "desktop/app/record_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "notation/game_recorder.h"
#include "tests/notation/refusal.h"
#include "tests/play/play.h"
#include "tests/store/scratch_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::string opening(const std::string& name) {
    return refusal([&] { const RecordFile file(name); });
}

struct RecordFileTest : testing::Test {
    // As the program does.
    RecordFileTest() {
        signal(SIGPIPE, SIG_IGN);
        signal(SIGXFSZ, SIG_IGN);
    }
    const ScratchFolder folder{"record-file"};
    const std::string name = folder / "game.txt";
};

TEST_F(RecordFileTest, GoesOnBehindWhatIsThereAndLeavesNoHalfLine) {
    for (const char* before : {"# old\n", "# old"}) {
        ScratchFolder::write(name, before);
        RecordFile file(name);
        file << "deal 1" << std::endl << "turn" << std::endl;
        rlimit unlimited{};
        getrlimit(RLIMIT_FSIZE, &unlimited);
        rlimit twenty_bytes = unlimited;
        twenty_bytes.rlim_cur = 20;
        setrlimit(RLIMIT_FSIZE, &twenty_bytes);
        EXPECT_THROW(file << "drag 4 7" << std::endl, std::runtime_error);
        setrlimit(RLIMIT_FSIZE, &unlimited);
        EXPECT_EQ(ScratchFolder::contents(name), "# old\ndeal 1\nturn\n");
    }
}

TEST_F(RecordFileTest, LetsNobodyElseIn) {
    const std::string link = folder / "link.txt";
    {
        const RecordFile file(name);
        fs::create_hard_link(name, link);
        EXPECT_EQ(
            opening(link),
            "another game is recorded in " + link + ": end that one, or name another file with --record");
    }
    EXPECT_EQ(opening(link), "accepted");
    const RecordFile nowhere("/dev/null");
    EXPECT_EQ(opening("/dev/null"), "accepted") << "is no file";
}

TEST_F(RecordFileTest, RefusesInOneSentence) {
    const std::string loop = folder / "loop";
    fs::create_symlink("loop", loop);
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    for (const auto& [refused, reason] : std::vector<std::pair<std::string, std::string>>{
             {loop, ": the symbolic link leads round in a circle"},
             {name, ": nobody reads this pipe; start its reader before the game"},
             {folder / "", ""}}) {
        EXPECT_EQ(opening(refused), "the record of the game cannot be written to " + refused + reason);
    }
}

// The record of a game that goes on while something happens to its file.
void expect_end(const std::string& name, const std::function<void()>& mishap, const std::string& message) {
    RecordFile file(name);
    GameRecorder recorder(file);
    Play play;
    play.start();
    recorder.begin();
    play.space();
    EXPECT_EQ(play.message(), "");
    mishap();
    play.space();
    EXPECT_EQ(play.message(), message);
    play.space();
    EXPECT_EQ(play.message(), "") << "told once";
}

TEST_F(RecordFileTest, EndsWithItsReader) {
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    const std::string unwritten = "The record of the game could not be written to " + name +
                                  ": it ends here, and the game goes on without it.";
    int reader = open(name.c_str(), O_RDONLY | O_NONBLOCK);
    std::string read(100, ' ');
    const auto go_away = [&] {
        read.resize(static_cast<std::size_t>(std::max<ssize_t>(::read(reader, read.data(), read.size()), 0)));
        close(reader);
    };
    expect_end(name, go_away, unwritten);
    EXPECT_EQ(read, "deal 1\nturn\n");
    // One that has stopped reading does not stop the game.
    reader = open(name.c_str(), O_RDWR | O_NONBLOCK);
    const auto fill = [&] {
        while (write(reader, "x", 1) == 1) {
        }
    };
    expect_end(name, fill, unwritten);
    close(reader);
}

TEST_F(RecordFileTest, EndsWhenItIsTakenAway) {
    const std::string gone = "The record of the game in " + name +
                             " was deleted or replaced: it ends here, and the game goes on without it.";
    expect_end(
        name, [&] { fs::remove(name); }, gone);
    EXPECT_FALSE(fs::exists(name));
    const std::string other = folder / "other.txt";
    ScratchFolder::write(other, "mine\n");
    expect_end(
        name, [&] { fs::rename(other, name); }, gone);
    EXPECT_EQ(ScratchFolder::contents(name), "mine\n");
}

TEST_F(RecordFileTest, IsTheSameByEveryName) {
    const std::string store = folder / "settings.sqlite";
    fs::create_directory_symlink(".", folder / "here");
    fs::create_symlink("settings.sqlite", folder / "link");
    fs::create_symlink(folder / "link", folder / "far link");
    fs::create_symlink("loop", folder / "loop");
    for (const bool exists : {false, true}) {
        if (exists) {
            ScratchFolder::write(store, "");
            fs::create_hard_link(store, folder / "hard");
        }
        EXPECT_EQ(names_one_file(folder / "hard", store), exists);
        for (const char* same :
             {"./settings.sqlite", "here/settings.sqlite", "link", "here/link", "far link"}) {
            EXPECT_TRUE(names_one_file(folder / same, store)) << same;
        }
        for (const char* other :
             {"game.txt", "here", "loop", "loop/settings.sqlite", "far/settings.sqlite"}) {
            EXPECT_FALSE(names_one_file(folder / other, store)) << other;
        }
    }
    EXPECT_TRUE(names_one_file(folder / "loop", folder / "loop"));
    const fs::path before = fs::current_path();
    fs::current_path(folder / "");
    EXPECT_TRUE(names_one_file("not yet.txt", folder / "not yet.txt"));
    fs::current_path(before);
}

}  // namespace
}  // namespace tarnwick

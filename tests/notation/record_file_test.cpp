#include "notation/record_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "notation/game_recorder.h"
#include "tests/store/scratch_folder.h"
#include "tools/driver/play.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::string refusal(const std::string& name) {
    try {
        const RecordFile file(name);
    } catch (const std::runtime_error& refused) {
        return refused.what();
    }
    return "opened";
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

TEST_F(RecordFileTest, GoesOnBehindWhatIsThere) {
    for (const auto& [before, after] :
         std::vector<std::pair<std::string, std::string>>{{"", "deal 1\nturn\n"},
                                                          {"# old\n", "# old\ndeal 1\nturn\n"},
                                                          {"# old", "# old\ndeal 1\nturn\n"}}) {
        ScratchFolder::write(name, before);
        RecordFile file(name);
        file.write_line("deal 1");
        file.write_line("turn");
        EXPECT_EQ(ScratchFolder::contents(name), after);
    }
}

TEST_F(RecordFileTest, LetsNobodyElseIn) {
    const std::string link = folder / "link.txt";
    {
        const RecordFile file(name);
        fs::create_hard_link(name, link);
        EXPECT_EQ(refusal(link), "another game is recorded in " + link +
                                     ": end that one, or name another file with --record");
    }
    EXPECT_EQ(refusal(link), "opened");
    const RecordFile nowhere("/dev/null");
    EXPECT_EQ(refusal("/dev/null"), "opened") << "is no file";
}

TEST_F(RecordFileTest, RefusesInOneSentence) {
    const std::string loop = folder / "loop";
    fs::create_symlink("loop", loop);
    EXPECT_EQ(refusal(loop), "the record of the game cannot be written to " + loop +
                                 ": the symbolic link leads round in a circle");
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    EXPECT_EQ(refusal(name), "the record of the game cannot be written to " + name +
                                 ": nobody reads this pipe; start its reader before the game");
    EXPECT_EQ(refusal(folder / ""), "the record of the game cannot be written to " + (folder / "").string());
}

TEST_F(RecordFileTest, LeavesNoHalfLine) {
    RecordFile file(name);
    file.write_line("deal 1");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit ten_bytes = before;
    ten_bytes.rlim_cur = 10;
    setrlimit(RLIMIT_FSIZE, &ten_bytes);
    EXPECT_THROW(file.write_line("drag 4 7"), std::runtime_error);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(ScratchFolder::contents(name), "deal 1\n");
}

// The record of a game that goes on while something happens to its file.
void expect_end(const std::string& name, const std::function<void()>& mishap, const std::string& message) {
    GameRecorder recorder(name);
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
    for (const bool exists : {false, true}) {
        if (exists) ScratchFolder::write(store, "");
        fs::create_directory_symlink(".", folder / "here");
        fs::create_symlink("settings.sqlite", folder / "link");
        fs::create_symlink(folder / "link", folder / "far link");
        for (const char* same :
             {"./settings.sqlite", "here/settings.sqlite", "link", "here/link", "far link"}) {
            EXPECT_TRUE(names_one_file(folder / same, store)) << same;
        }
        for (const char* other :
             {"game.txt", "here", "loop", "loop/settings.sqlite", "far/settings.sqlite"}) {
            EXPECT_FALSE(names_one_file(folder / other, store)) << other;
        }
        if (exists) {
            fs::create_hard_link(store, folder / "hard");
            EXPECT_TRUE(names_one_file(folder / "hard", store));
        }
        folder.empty();
        fs::create_symlink("loop", folder / "loop");
    }
    EXPECT_TRUE(names_one_file(folder / "loop", folder / "loop"));
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder / "");
    EXPECT_TRUE(names_one_file("not yet.txt", folder / "not yet.txt"));
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace tarnwick

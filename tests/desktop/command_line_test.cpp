#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"

namespace tarnwick {
namespace {

constexpr const char* program = TARNWICK_PROGRAM;

std::ptrdiff_t lines_of(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

TEST(CommandLine, TellsWhatItTakes) {
    ChildProcess help(program, {"--help"});
    EXPECT_EQ(help.exit_code(), 0);
    for (const char* word :
         {"Usage: tarnwick", "--deal", "--store", "--record", "-h, --help", "-v, --version"}) {
        EXPECT_NE(help.output().find(word), std::string::npos) << word;
    }
    EXPECT_EQ(help.errors(), "");
    ChildProcess version(program, {"--version"});
    EXPECT_EQ(version.exit_code(), 0);
    EXPECT_EQ(version.output(), "tarnwick " TARNWICK_VERSION "\n");
}

TEST(CommandLine, TakesOptionsAsOtherProgramsDo) {
    const Environment no_display{{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", ""}};
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"-v"},
                                                      {"--version"},
                                                      {"--deal=5", "-v"},
                                                      {"--vers", "--dea", "4294967295"},
                                                      {"--store=a b", "--record=b", "-v", "-v", "--"}}) {
        ChildProcess version(program, arguments, no_display);
        EXPECT_EQ(version.exit_code(), 0) << version.errors();
        EXPECT_EQ(version.output(), "tarnwick " TARNWICK_VERSION "\n");
    }
    ChildProcess help(program, {"-h"}, no_display);
    EXPECT_EQ(help.exit_code(), 0);
    EXPECT_EQ(help.output().substr(0, 16), "Usage: tarnwick ");
}

TEST(CommandLine, SaysThatItsAnswerIsNotWritten) {
    for (const char* option : {"--help", "--version"}) {
        const std::vector<std::string> to_full{"-c", std::string("exec \"$0\" > /dev/full ") + option,
                                               program};
        ChildProcess full("/bin/sh", to_full);
        EXPECT_EQ(full.exit_code(), 1);
        EXPECT_EQ(full.errors(), "tarnwick: the output cannot be written: No space left on device\n");
        const std::string pipe = std::string("{ sleep 0.2; \"$0\" ") + option + "; echo $? >&2; } | true";
        ChildProcess closed("/bin/sh", {"-c", pipe, program});
        EXPECT_EQ(closed.exit_code(), 0);
        EXPECT_EQ(closed.errors(), "tarnwick: the output cannot be written: Broken pipe\n1\n");
    }
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--fast"},
                                                      {"--deal", "-1"},
                                                      {"--deal", "1x"},
                                                      {"--deal"},
                                                      {"--store"},
                                                      {"--record"},
                                                      {"--deal="},
                                                      {"--deal=-1"},
                                                      {"--store="},
                                                      {"--record", "", "--help"},
                                                      {"--help=always"},
                                                      {"--deal", "1", "--deal", "2"},
                                                      {"--record", "a", "--record=b"},
                                                      {"-x"},
                                                      {"-hx"},
                                                      {"-d", "5"},
                                                      {"-platform", "offscreen"},
                                                      {"--platform", "offscreen"},
                                                      {"--=5"},
                                                      {"-"},
                                                      {"7", "--help"},
                                                      {"7"}}) {
        ChildProcess refused(program, arguments);
        EXPECT_EQ(refused.exit_code(), 2) << arguments[0];
        EXPECT_EQ(refused.output(), "");
        EXPECT_EQ(lines_of(refused.errors()), 1) << refused.errors();
        const std::string name = arguments[0].substr(0, arguments[0].find('='));
        EXPECT_NE(refused.errors().find(name), std::string::npos) << refused.errors();
    }
    ChildProcess behind(program, {"--", "--help"});
    EXPECT_EQ(behind.exit_code(), 2);
    ChildProcess coloured(program, {"\x1b[31m\n"});
    EXPECT_EQ(coloured.exit_code(), 2);
    EXPECT_EQ(coloured.errors(),
              "tarnwick: unknown argument '\\x1b[31m\\x0a' (--help lists the known ones)\n");
}

TEST(CommandLine, SaysThatThereIsNoDisplay) {
    const TemporaryFolder folder;
    for (const char* display : {"", ":4711"}) {
        ChildProcess blind(program, {"--store", folder.path() + "/settings.sqlite"},
                           {{"DISPLAY", display}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", ""}});
        EXPECT_EQ(blind.exit_code(), 1) << display;
        EXPECT_EQ(lines_of(blind.errors()), 1) << blind.errors();
        EXPECT_NE(blind.errors().find("display"), std::string::npos) << blind.errors();
    }
}

TEST(CommandLine, RecordsTheGame) {
    const TemporaryFolder folder;
    const std::string record = folder.path() + "/game.txt";
    TwinGame game({.program = program, .deal = 26, .arguments = {"--record", record}});
    game.space();
    game.drag(6, 9);
    game.screen().key("ctrl+u");
    game.screen().key("F3");
    const auto recorded = [&] {
        std::ifstream file(record);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    EXPECT_TRUE(eventually([&] { return recorded() == "deal 26\nturn\ndrag 6 9\nundo\nrestart\n"; }))
        << recorded();
    const std::string store = folder.path() + "/settings.sqlite";
    ChildProcess confused(program, {"--record", folder.path() + "/./settings.sqlite", "--store", store});
    EXPECT_EQ(confused.exit_code(), 2);
    EXPECT_EQ(confused.errors(),
              "tarnwick: --record must not name the file of the settings, " + store + "\n");
    ChildProcess refused(program, {"--record", folder.path()});
    EXPECT_EQ(refused.exit_code(), 1);
    EXPECT_EQ(refused.errors(),
              "tarnwick: the record of the game cannot be written to " + folder.path() + "\n");
    ChildProcess second(program, {"--record", record, "--store", store});
    EXPECT_EQ(second.exit_code(), 1);
    EXPECT_EQ(lines_of(second.errors()), 1) << second.errors();
    EXPECT_NE(second.errors().find("another game is recorded in " + record), std::string::npos);
}

TEST(CommandLine, RecordsIntoNoPipeAndNoLinkThatLeadsNowhere) {
    const TemporaryFolder folder;
    const std::string store = folder.path() + "/settings.sqlite";
    const std::string other = folder.path() + "/other";
    std::ofstream(store).close();
    const auto errors = [&](int code) {
        ChildProcess refused(program, {"--record", other, "--store", store});
        EXPECT_EQ(refused.exit_code(), code);
        EXPECT_EQ(lines_of(refused.errors()), 1) << refused.errors();
        std::filesystem::remove(other);
        return refused.errors();
    };
    std::filesystem::create_hard_link(store, other);
    EXPECT_EQ(errors(2), "tarnwick: --record must not name the file of the settings, " + store + "\n");
    std::filesystem::create_symlink("settings.sqlite-journal", other);
    EXPECT_EQ(errors(2), "tarnwick: --record must not name the file of the settings, " + store + "\n");
    std::filesystem::create_symlink("other", other);
    EXPECT_NE(errors(1).find("leads round in a circle"), std::string::npos);
    ASSERT_EQ(mkfifo(other.c_str(), 0600), 0);
    EXPECT_NE(errors(1).find("nobody reads this pipe"), std::string::npos);
    // The store tells of its own link in the window.
    std::filesystem::create_symlink("loop", folder.path() + "/loop");
    ChildProcess game(program, {"--record", other, "--store", folder.path() + "/loop"});
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(other) || !game.running(); }));
    EXPECT_TRUE(game.running()) << game.errors();
}

TEST(CommandLine, GoesOnWithoutTheReaderOfItsRecord) {
    const TemporaryFolder folder;
    const std::string pipe = folder.path() + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    TwinGame game({.program = program, .deal = 26, .arguments = {"--record", pipe}});
    close(reader);
    game.screen().key("space");
    EXPECT_NE(game.wait_for("Tarnwick"), 0U);
    game.screen().key("Return");
    EXPECT_TRUE(game.goes("Tarnwick"));
    EXPECT_TRUE(game.program().running());
}

}  // namespace
}  // namespace tarnwick

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"

namespace tarnwick {
namespace {

using Arguments = std::vector<std::string>;

constexpr const char* program = TARNWICK_PROGRAM;
const Environment no_display{{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", ""}};

std::ptrdiff_t lines_of(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

TEST(CommandLine, TellsWhatItTakes) {
    for (const char* option : {"-h", "--help"}) {
        ChildProcess help(program, {option}, no_display);
        EXPECT_EQ(help.exit_code(), 0);
        for (const char* word : {"Usage: tarnwick ",
                                 "--deal",
                                 "--store",
                                 "--record",
                                 "--four-colors",
                                 "--high-contrast",
                                 "-h, --help",
                                 "-v, --version"}) {
            EXPECT_NE(help.output().find(word), std::string::npos) << word;
        }
        EXPECT_EQ(help.errors(), "");
    }
    for (const Arguments& arguments : {Arguments{"-v"},
                                       {"--deal=5", "--version"},
                                       {"--vers", "--dea", "4294967295"},
                                       {"--store=a b", "--record=b", "-v", "-v", "--"},
                                       {"--high", "--four", "--four-colors", "-v"}}) {
        ChildProcess version(program, arguments, no_display);
        EXPECT_EQ(version.exit_code(), 0) << version.errors();
        EXPECT_EQ(version.output(), "tarnwick " TARNWICK_VERSION "\n");
    }
}

TEST(CommandLine, SaysThatItsAnswerIsNotWritten) {
    for (const std::string option : {"--help", "--version"}) {
        ChildProcess full("/bin/sh", {"-c", "exec \"$0\" > /dev/full " + option, program});
        EXPECT_EQ(full.exit_code(), 1);
        EXPECT_EQ(full.errors(), "tarnwick: the output cannot be written: No space left on device\n");
        ChildProcess closed("/bin/sh",
                            {"-c", "{ sleep 0.2; \"$0\" " + option + "; echo $? >&2; } | true", program});
        EXPECT_EQ(closed.exit_code(), 0);
        EXPECT_EQ(closed.errors(), "tarnwick: the output cannot be written: Broken pipe\n1\n");
    }
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    for (const Arguments& arguments : {Arguments{"--fast"},
                                       {"--deal", "-1"},
                                       {"--deal", "1x"},
                                       {"--record"},
                                       {"--deal="},
                                       {"--store="},
                                       {"--record", "", "--help"},
                                       {"--help=always"},
                                       {"--four-colors=5"},
                                       {"--h"},
                                       {"--deal", "1", "--deal", "2"},
                                       {"--record", "a", "--record=b"},
                                       {"-hx"},
                                       {"-platform", "offscreen"},
                                       {"--platform", "offscreen"},
                                       {"--=5"},
                                       {"-"},
                                       {"7", "--help"}}) {
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
        ChildProcess blind(program,
                           {"--store", folder.path() + "/settings.sqlite"},
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
}

TEST(CommandLine, RecordsOverNoFileOfTheSettings) {
    const TemporaryFolder folder;
    const std::string store = folder.path() + "/settings.sqlite";
    const std::string other = folder.path() + "/other";
    std::ofstream(store).close();
    std::filesystem::create_hard_link(store, folder.path() + "/hard");
    std::filesystem::create_symlink("settings.sqlite-journal", folder.path() + "/soft");
    std::filesystem::create_symlink("loop", folder.path() + "/loop");
    const std::string confused = "tarnwick: --record must not name the file of the settings, " + store + "\n";
    for (const char* name : {"/./settings.sqlite", "/hard", "/soft"}) {
        ChildProcess refused(program, {"--record", folder.path() + name, "--store", store});
        EXPECT_EQ(refused.exit_code(), 2) << name;
        EXPECT_EQ(refused.errors(), confused);
    }
    ChildProcess refused(program, {"--record", folder.path(), "--store", store});
    EXPECT_EQ(refused.exit_code(), 1);
    EXPECT_EQ(refused.errors(),
              "tarnwick: the record of the game cannot be written to " + folder.path() + "\n");
    // The store tells of its own link in the window.
    ChildProcess game(program, {"--record", other, "--store", folder.path() + "/loop"});
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(other) || !game.running(); }));
    EXPECT_TRUE(game.running()) << game.errors();
}

}  // namespace
}  // namespace tarnwick

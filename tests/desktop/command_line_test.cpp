#include <gtest/gtest.h>

#include <algorithm>
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
    for (const char* word : {"Usage: tarnwick", "--deal", "--store", "--record", "--help", "--version"}) {
        EXPECT_NE(help.output().find(word), std::string::npos) << word;
    }
    EXPECT_EQ(help.errors(), "");
    ChildProcess version(program, {"--version"});
    EXPECT_EQ(version.exit_code(), 0);
    EXPECT_EQ(version.output(), "tarnwick " TARNWICK_VERSION "\n");
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--fast"},
                                                      {"--deal", "-1"},
                                                      {"--deal", "1x"},
                                                      {"--deal"},
                                                      {"--store"},
                                                      {"--record"},
                                                      {"7"}}) {
        ChildProcess refused(program, arguments);
        EXPECT_EQ(refused.exit_code(), 2) << arguments[0];
        EXPECT_EQ(refused.output(), "");
        EXPECT_EQ(lines_of(refused.errors()), 1) << refused.errors();
        EXPECT_NE(refused.errors().find(arguments[0]), std::string::npos) << refused.errors();
    }
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
}

}  // namespace
}  // namespace tarnwick

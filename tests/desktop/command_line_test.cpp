#include <gtest/gtest.h>

#include <algorithm>

#include "tools/driver/twin_game.h"

namespace tarnwick {
namespace {

constexpr const char* program = TARNWICK_PROGRAM;

std::ptrdiff_t lines_of(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

TEST(CommandLine, TellsWhatItTakes) {
    ChildProcess help(program, {"--help"});
    EXPECT_EQ(help.exit_code(), 0);
    for (const char* word : {"Usage: tarnwick", "--deal", "--store", "--help", "--version"}) {
        EXPECT_NE(help.output().find(word), std::string::npos) << word;
    }
    EXPECT_EQ(help.errors(), "");
}

TEST(CommandLine, TellsItsVersion) {
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

}  // namespace
}  // namespace tarnwick

#include "notation/outside_text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "notation/position.h"
#include "notation/record_text.h"
#include "tests/notation/refusal.h"

namespace tarnwick {
namespace {

TEST(OutsideText, IsShownWithoutWhatATerminalWouldObey) {
    for (const auto& [text, shown] : std::vector<std::pair<std::string, std::string>>{
             {"10♦ ü \\", "10♦ ü \\"},
             {"\x1b[31m\n\x7f", R"(\x1b[31m\x0a\x7f)"},
             {"a\xff\x80z", R"(a\xff\x80z)"},
             {"\xc2\x9b[", R"(\xc2\x9b[)"},
             {"\xc0\xaf \xed\xa0\x80 \xf4\x90\x80\x80", R"(\xc0\xaf \xed\xa0\x80 \xf4\x90\x80\x80)"},
             {"\u202e\U0001f0a1", "\\xe2\\x80\\xae\U0001f0a1"},
             {std::string("\0\xe2\x99", 3), R"(\x00\xe2\x99)"}}) {
        EXPECT_EQ(printable(text), shown);
    }
    EXPECT_EQ(excerpt(std::string(40, '\x1b') + 'x').size(), 40 * 4 + 3U);
}

TEST(OutsideText, IsRefusedInWordsThatCanBeShown) {
    const std::string bad = "\x1b" + std::string(60, 'x');
    const auto expect_shown = [](const std::string& fault, const std::string& shown) {
        EXPECT_EQ(fault.find('\x1b'), std::string::npos) << fault;
        EXPECT_NE(fault.find(shown), std::string::npos) << fault;
        EXPECT_LT(fault.size(), 120U);
    };
    for (const std::string line : {"deal 1\n", "deal ", "deal 1\ndrag ", "deal 1\nturn "}) {
        expect_shown(refusal([&] { parse_record(line + bad); }), "\"\\x1b" + std::string(39, 'x') + "...\"");
    }
    for (const std::string line : {"0: ", "score: ", "ace ", "", "\x1b 1: 7♠\n\x1b"}) {
        expect_shown(refusal([&] { parse_position(line + bad + (line.empty() ? ":" : ": ")); }), R"(\x1b)");
    }
}

TEST(OutsideText, HasLinesOf4096CharactersAtMost) {
    std::string suits = "deal 1 #";
    while (suits.size() < 8 + 4088 * 3) suits += "♠";
    EXPECT_EQ(parse_record(suits).size(), 1U);
    const std::string fault =
        "more than 4,096 characters in the line that begins with \"deal 1 "
        "#♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠♠...\"";
    EXPECT_EQ(refusal([&] { parse_record('\n' + suits + "x"); }), "line 2: " + fault);
    EXPECT_EQ(refusal([] { parse_position("0: 7♠\n" + std::string(5000, '9')); }).substr(0, 30),
              fault.substr(0, 30));
    std::istringstream endless(std::string(1000000, 'x'));
    std::string line;
    EXPECT_TRUE(read_line(endless, line));
    EXPECT_LT(line.size(), 20000U);
}

TEST(OutsideText, MayBeginWithAByteOrderMark) {
    EXPECT_EQ(parse_record("\ufeffdeal 1\nturn").size(), 2U);
    EXPECT_EQ(text_of(parse_position("\ufeffscore: 3\n")), text_of(parse_position("score: 3\n")));
    EXPECT_THROW(parse_record("deal 1\n\ufeffturn"), std::invalid_argument);
}

}  // namespace
}  // namespace tarnwick

#include "notation/record_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "notation/position.h"
#include "notation/record_player.h"
#include "tests/notation/refusal.h"

// That records are played as they should be is told by the signature of the recorded games.

namespace tarnwick {
namespace {

TEST(Record, IsWrittenAsItIsRead) {
    const std::string text =
        "deal 4294967295\nturn\ndrag 4 7\ndrag tablet ace 2\ndrag ace 0 9 at 70\ndrag 5 5\nundo\nrestart\n";
    std::string written;
    for (const Action& action : parse_record("# a game\n\n" + text + "  # its end")) {
        written += text_of(action) + '\n';
    }
    EXPECT_EQ(written, text);
}

TEST(Record, NamesTheLineThatIsWrong) {
    const std::string pile = "a pile (0 to 9, tablet, ace 0 to ace 3) should stand";
    for (const auto& [text, fault] : std::vector<std::pair<std::string, std::string>>{
             {"turn", "line 1: a record begins with a deal"},
             {"deal 1\n\njump", "line 3: \"jump\" is none of deal, turn, drag, undo and restart"},
             {"deal 4294967296", "line 1: \"4294967296\" where the number of a deal should stand"},
             {"deal 1\ndrag 4 10", "line 2: \"10\" where " + pile},
             {"deal 1\ndrag 4 5 at -1", "line 2: \"-1\" where a place on a card, 0 to 70, should stand"},
             {"deal 1\nturn over", "line 2: \"over\" should not stand there"}}) {
        EXPECT_EQ(refusal([&, &text = text] { parse_record(text); }), fault);
    }
}

TEST(RecordPlayer, RefusesWhatCannotBeDone) {
    RecordPlayer player;
    for (const Action& action : parse_record("deal 1\nturn\nturn\nundo")) player.play(action);
    EXPECT_EQ(current_position().turned, 4);
    EXPECT_THROW(player.play(parse_record("deal 1\ndrag ace 0 3").back()), std::invalid_argument);
}

}  // namespace
}  // namespace tarnwick

// A failure is forced at every statement, and at every access to state and widgets, of every routine with a
// handler.

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/fault_point.h"
#include "state/soundness.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "statements.h"
#include "tools/driver/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

std::set<std::string> words_of(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

const std::set<std::string> reporting_routines = words_of(
    "redisplay_aces ace_score redisplay_column display_column change_back end_game add_undo "
    "undo_from_tablet_to_column undo_from_tablet_to_ace undo_next_tablet_card undo_from_column_to_ace");

bool may_be_resumed(const std::string& routine) { return listed_statements().contains(routine); }

struct Situation {
    const char* name;
    std::string position;
    std::function<void(Play&)> prepare;
    std::function<void(Play&)> action;
};

void nothing(Play&) {}
void undo(Play& play) { play.undo(); }

// A move that is made beforehand, to be taken back.
std::function<void(Play&)> drag(int from, int to) {
    return [=](Play& play) { play.drag(from, to); };
}

std::vector<Situation> situations() {
    const std::string complete = "ace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\n";
    return {
        {"a turn", "tablet: ..", nothing, [](Play& play) { play.space(); }},
        {"the last turn of a pass", "tablet: 2♣ (3♣) 4♣", nothing, [](Play& play) { play.space(); }},
        {"a new pass", "tablet: 2♣ 3♣ 4♣ 5♣ 6♣ (7♣)", nothing, [](Play& play) { play.space(); }},
        {"tablet to column", "0: 7♠\ntablet: 3♣ (6♥) 9♣", nothing, drag(tablet_pile, 0)},
        {"the last card of the tablet", "0: 7♠\ntablet: (6♥)", nothing, drag(tablet_pile, 0)},
        {"column to column", "0: 7♠\n4: [2♣] 6♥ 5♠", nothing, drag(4, 0)},
        {"an exchange", "1: [2♦] K♠ Q♥\n5: J♣ 10♦", nothing, drag(1, 5)},
        {"ace pile to column", "0: 7♠\nace 0: .. 6♥", nothing, drag(ace_pile(0), 0)},
        {"a two off its ace", "0: 3♥\nace 0: A♠ 2♠", nothing, drag(ace_pile(0), 0)},
        {"column to ace pile", "4: [2♣] A♥", nothing, drag(4, ace_pile(1))},
        {"a card that an ace pile refuses", "4: 9♥", nothing, drag(4, ace_pile(1))},
        {"tablet to ace pile", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", nothing, drag(tablet_pile, ace_pile(0))},
        {"a click with a slide", "ace 0: A♠\n3: 2♠", [](Play& play) { play.save("anamate", "True"); },
         [](Play& play) {
             play.click(3);
             play.desktop.advance(1000);
         }},
        {"the fourth ace", "0: A♣\nace 0: A♠\nace 1: A♥\nace 2: A♦", nothing, drag(0, ace_pile(3))},
        {"the winning card", "2: K♠'\nace 0: .. K♠\n" + complete, nothing, drag(2, ace_pile(0))},
        {"undo of a turn", "0: 7♠\n4: 6♥\ntablet: ..",
         [](Play& play) {
             play.drag(4, 0);
             play.space(2);
         },
         undo},
        {"undo of tablet to column", "0: 7♠\ntablet: 3♣ (6♥) 9♣", drag(tablet_pile, 0), undo},
        {"undo of tablet to ace pile", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", drag(tablet_pile, ace_pile(0)), undo},
        {"undo of column to ace pile", "4: [2♣] A♥", drag(4, ace_pile(1)), undo},
        {"undo of column to column", "0: 7♠\n4: [2♣] 6♥", drag(4, 0), undo},
        {"undo of ace pile to column", "0: 7♠\nace 0: .. 6♥", drag(ace_pile(0), 0), undo},
        {"new settings", "0: 7♠", [](Play&) { frmcards.mnuSetings.choose(); },
         [](Play&) {
             frmFeatures.optCardBack(3).click();
             frmFeatures.cmdOk.click();
         }},
        {"a new game", "0: 7♠\n4: [2♣] 6♥", drag(4, 0), [](Play&) { frmcards.mnuNew.choose(); }},
    };
}

// Whatever has happened, the player closes what is open and deals anew.
void deal_anew() {
    if (frmError.visible()) frmError.Command1.click();
    frmFeatures.close();
    for (int i = 0; i < 2; ++i) {
        frmyouwin.txtYourName.key_down(13);
        frmBestScore.cmdOk.click();
        if (i == 0) frmcards.mnuNew.choose();
    }
}

// Forces a failure at the n-th point of the action; false when the action has fewer points.
bool fail_at(const Situation& situation, int n, bool resume, std::set<std::string>& reported) {
    Play play;
    play.start(situation.position);
    situation.prepare(play);
    play.desktop.forget_messages();
    // What only looks ahead tells nobody; it has a test of its own.
    frmcards.mouse().on_hover = nullptr;
    resume_after_error = resume ? flag_true : flag_false;
    used_between_statements = nullptr;
    points_to_fault = n;
    try {
        situation.action(play);
    } catch (const ForcedFault&) {
        // Met where the test itself looks for an image: no routine of the game has failed.
        return true;
    }
    const bool forced = points_to_fault == 0;
    points_to_fault = 0;
    EXPECT_STREQ(used_between_statements, nullptr) << "uses state or widgets between its statements";
    if (!forced) return false;
    EXPECT_TRUE(frmError.visible() || !play.desktop.messages().empty()) << "nobody was told";
    if (frmError.visible()) {
        const std::string prefix = "Fatel Error in Subroutine ";
        const std::string routine = frmError.LblError.caption().substr(prefix.size());
        reported.insert(routine);
        EXPECT_TRUE(may_be_resumed(routine) || reporting_routines.contains(routine)) << routine;
        EXPECT_FALSE(resume_after_error && may_be_resumed(routine)) << routine;
    }
    play.click_stock();
    play.drag(0, 1);
    deal_anew();
    EXPECT_TRUE(frmcards.accepts_input());
    EXPECT_EQ(state_faults(), "");
    EXPECT_EQ(display_faults(), "");
    return true;
}

TEST(ForcedFault, IsReportedAndTheGameGoesOn) {
    for (const bool resume : {false, true}) {
        std::set<std::string> reported;
        int faults = 0;
        for (const Situation& situation : situations()) {
            for (int n = 1; fail_at(situation, n, resume, reported); ++n) {
                ++faults;
                ASSERT_FALSE(HasFailure())
                    << situation.name << ", point " << n << (resume ? ", resumed" : "");
            }
        }
        std::set<std::string> all = reporting_routines;
        for (const auto& [routine, statements] : listed_statements()) all.insert(routine);
        EXPECT_EQ(reported, all) << "every routine has failed";
        std::cout << faults << " faults forced" << (resume ? ", resumed\n" : "\n");
    }
}

TEST(ForcedFault, WhileLookingAheadLeavesTheDropAsItIs) {
    bool forced = true;
    for (int n = 1; forced; ++n) {
        Play play;
        play.start("0: 7♠\n4: [2♣] 6♥");
        Mouse& mouse = frmcards.mouse();
        const Image& target = top_image(0);
        mouse.press(top_image(4).left() + middle, top_image(4).top() + middle);
        points_to_fault = n;
        mouse.move(target.left() + middle, target.top() + middle);
        forced = points_to_fault == 0;
        points_to_fault = 0;
        EXPECT_EQ(mouse.receiver(), forced ? nullptr : &target) << "point " << n;
        EXPECT_EQ(play.message(), "");
        mouse.release(target.left() + middle, target.top() + middle);
        ASSERT_EQ(column_top(0), 1) << "point " << n;
        ASSERT_GT(n, forced ? 0 : 10) << "nothing has looked ahead";
    }
}

}  // namespace
}  // namespace tarnwick

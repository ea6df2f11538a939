// A failure is forced at every step, and at every access to state and widgets, of every routine with a
// handler.

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/fault_point.h"
#include "situations.h"
#include "steps.h"
#include "tests/play/soundness.h"
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

bool may_be_resumed(const std::string& routine) { return listed_steps().contains(routine); }

struct Action {
    std::string name;
    std::string position;
    std::function<void(Play&)> prepare;
    std::function<void(Play&)> act;
};

std::vector<Action> actions() {
    const auto undo = [](Play& play) { play.undo(); };
    std::vector<Action> all{
        {"undo of a turn", "tablet: ..", [](Play& play) { play.space(2); }, undo},
        {"new settings",
         "0: 7♠",
         [](Play&) { frmcards.mnuSetings.choose(); },
         [](Play&) {
             frmFeatures.optCardBack(3).click();
             frmFeatures.cmdOk.click();
         }},
        {"a new game",
         "0: 7♠\n4: [2♣] 6♥",
         [](Play& play) { play.drag(4, 0); },
         [](Play&) { frmcards.mnuNew.choose(); }},
    };
    for (const Situation& situation : situations()) {
        if (situation.fails == Fails::at_steps) continue;
        const auto move = [=](Play& play) {
            if (situation.from == turned_stock) return play.space();
            if (situation.from != situation.to) return play.drag(situation.from, situation.to);
            play.click(situation.from);
            play.desktop.advance(1000);
        };
        const auto prepare = [=](Play& play) { play.save("anamate", situation.slides ? "True" : "False"); };
        all.push_back({situation.name, situation.position, prepare, move});
        if (situation.fails == Fails::also_undone) {
            all.push_back({std::string("undo of ") + situation.name, situation.position, move, undo});
        }
    }
    return all;
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
bool fail_at(const Action& action, int n, bool resume, std::set<std::string>& reported) {
    Play play;
    play.start(action.position);
    action.prepare(play);
    play.desktop.forget_messages();
    // What only looks ahead tells nobody; it has a test of its own.
    frmcards.mouse().on_hover = nullptr;
    resume_after_error = resume ? flag_true : flag_false;
    points_to_fault = n;
    try {
        action.act(play);
    } catch (const ForcedFault&) {
        // Met where the test itself looks for an image: no routine of the game has failed.
        return true;
    }
    const bool forced = points_to_fault == 0;
    points_to_fault = 0;
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
        for (const Action& action : actions()) {
            for (int n = 1; fail_at(action, n, resume, reported); ++n) {
                ++faults;
                ASSERT_FALSE(HasFailure()) << action.name << ", point " << n << (resume ? ", resumed" : "");
            }
        }
        std::set<std::string> all = reporting_routines;
        for (const auto& [routine, steps] : listed_steps()) all.insert(routine);
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

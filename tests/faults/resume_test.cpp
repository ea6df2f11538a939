// Where a routine goes on after a failure: every statement of every routine that may be resumed fails at its
// beginning, in each situation that meets it.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "game/drop_dispatch.h"
#include "game/tablet.h"
#include "platform/fault_point.h"
#include "situations.h"
#include "state/statement_watch.h"
#include "statements.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// Makes a move; its result.
std::string move(int from, int to) {
    if (from == turned_stock) {
        next_tablet_card();
        return "turned ";
    }
    drag_source = from;
    return column_to_column(to) ? "moved " : "refused ";
}

template <class Array>
void write_rows(std::ostream& text, const std::string& name, const Array& array, int rows, int fields) {
    for (int row = 0; row < rows; ++row) {
        text << name << ' ' << row << ':';
        for (int field = 0; field < fields; ++field) text << ' ' << array(row, field);
        text << '\n';
    }
}

void write_variables(std::ostream& text) {
    for (int c = 0; c <= 9; ++c) {
        const auto column = [c](int slot, int field) { return layout(c, slot, field); };
        write_rows(text, "column " + std::to_string(c) + " slot", column, top_slot + 1, 4);
    }
    write_rows(text, "tablet", tablet, tablet_size + 1, 3);
    write_rows(text, "ace pile", aces, 4, last_used_field + 1);
    write_rows(text, "undo", undo_list, most_undo_records + 2, 3);
    for (int i = 0; i <= slide_wins_game; ++i) text << "animation " << i << ": " << animation(i) << '\n';
    text << "score " << score << "\nsource " << drag_source << "\nhelp " << suppress_help << "\nplace "
         << high_score_place << "\nclosing " << closing << "\nresume " << resume_after_error << '\n';
}

void write_place(std::ostream& text, const char* name, const Widget& widget, int number = 0) {
    text << name << ' ' << number << ": " << widget.left() << ' ' << widget.top() << ' ' << widget.width()
         << ' ' << widget.height() << (widget.visible() ? " visible\n" : " hidden\n");
}

void write_display(std::ostream& text) {
    std::vector<const Image*> images;
    frmcards.Image1.for_each([&](const Image& image) {
        images.push_back(&image);
        write_place(text, "image", image, image.index());
        text << "picture " << image.picture().number << '\n';
    });
    std::sort(images.begin(), images.end(),
              [](const Image* a, const Image* b) { return a->stacking() < b->stacking(); });
    for (const Image* image : images) text << "above: " << image->index() << '\n';
    frmcards.Shape1.for_each([&](const Outline& outline) { write_place(text, "outline", outline); });
    text << "label " << frmcards.LblScore.caption() << "\nundo " << frmcards.mnuUndo.visible() << "\ntwinkle "
         << frmcards.Timer1.interval() << "\nslide " << frmcards.Timer3.enabled() << "\nwin dialog "
         << frmyouwin.visible() << "\nbest scores " << frmBestScore.visible() << '\n';
}

struct Met {
    std::string routine;
    std::string name;
    int run;
    bool operator==(const Met&) const = default;
};

enum class Fault { none, passed_over, resumed, left };

struct Outcome {
    std::vector<Met> met;
    std::string state;         // at the end, with the results of the moves
    std::string before_fault;  // the state alone
    std::string after_fault;   // the state alone, when the next statement runs, or at the end
    std::string error;         // what the error dialog says; empty without one
};

std::string state_text(const Play& play) {
    std::ostringstream text;
    write_variables(text);
    write_display(text);
    for (const Message& message : play.desktop.messages()) text << message.text << '\n';
    return text.str();
}

// Plays a situation; the n-th statement that is met, from 0, is passed over or fails at its beginning.
Outcome outcome_of(const Situation& situation, Fault fault, std::size_t n = 0) {
    // What an earlier game has left in places that hold nothing must not tell two runs apart.
    layout = {};
    tablet = {};
    aces = {};
    animation = {};
    undo_list = {};
    Play play;
    play.start(situation.position);
    play.save("anamate", situation.slides ? "True" : "False");
    if (situation.sent_up_before != turned_stock) move(situation.sent_up_before, situation.sent_up_before);
    Outcome outcome;
    int runs_before = -1;
    used_between_statements = nullptr;
    before_statement = [&](const NextStatement& next) {
        if (outcome.met.empty()) runs_before = next.run;
        outcome.met.push_back({next.routine, next.name, next.run - runs_before});
        if (fault == Fault::left && outcome.met.size() == n + 2) outcome.after_fault = state_text(play);
        if (fault == Fault::none || outcome.met.size() != n + 1) return false;
        if (fault == Fault::passed_over) return true;
        if (fault == Fault::left) outcome.before_fault = state_text(play);
        resume_after_error = fault == Fault::resumed ? flag_true : flag_false;
        throw ForcedFault();
    };
    const std::string result = move(situation.from, situation.to);
    before_statement = nullptr;
    EXPECT_STREQ(used_between_statements, nullptr) << "uses state or widgets between its statements";
    outcome.state = result + '\n' + state_text(play);
    if (outcome.after_fault.empty()) outcome.after_fault = state_text(play);
    if (frmError.visible()) outcome.error = frmError.LblError.caption();
    return outcome;
}

// Each statement stands in the list, and within a run of its routine at the place that the list gives it.
void expect_listed(const std::vector<Met>& met, std::set<std::pair<std::string, std::string>>& all_met) {
    std::map<int, std::size_t> reached;  // by run: how many of the listed statements are behind it
    std::set<std::pair<int, std::string>> seen;
    for (const Met& statement : met) {
        all_met.insert({statement.routine, statement.name});
        const auto routine = listed_statements().find(statement.routine);
        ASSERT_NE(routine, listed_statements().end()) << statement.routine << " is not listed";
        const auto& names = routine->second;
        const auto listed = std::find_if(names.begin(), names.end(),
                                         [&](const auto& entry) { return entry.name == statement.name; });
        ASSERT_NE(listed, names.end()) << statement.routine << ": \"" << statement.name << "\" is not listed";
        if (!seen.insert({statement.run, statement.name}).second) {
            EXPECT_TRUE(listed->repeats) << statement.routine << ": \"" << statement.name << "\" runs twice";
            continue;
        }
        const auto place = static_cast<std::size_t>(listed - names.begin());
        EXPECT_GE(place, reached[statement.run])
            << statement.routine << ": \"" << statement.name << "\" is late";
        reached[statement.run] = place + 1;
    }
}

// The routine goes on as if the n-th statement had been passed over.
void expect_resumed_after(const Situation& situation, std::size_t n, const Met& failing) {
    const Outcome passed = outcome_of(situation, Fault::passed_over, n);
    const Outcome resumed = outcome_of(situation, Fault::resumed, n);
    EXPECT_TRUE(resumed.met == passed.met) << "the routine goes on elsewhere";
    EXPECT_EQ(resumed.state, passed.state);
    EXPECT_EQ(resumed.error,
              passed.error.empty() ? "Fatel Error in Subroutine " + failing.routine : passed.error);
}

// The routine is left at once: neither a statement of it runs any more, nor anything else before its caller.
void expect_left_after(const Situation& situation, std::size_t n, const Met& failing) {
    const Outcome left = outcome_of(situation, Fault::left, n);
    EXPECT_EQ(left.after_fault, left.before_fault);
    EXPECT_NE(left.error, "");
    for (std::size_t i = n + 1; i < left.met.size(); ++i) {
        EXPECT_NE(left.met[i].run, failing.run) << "\"" << left.met[i].name << "\" runs after the failure";
    }
}

TEST(Resume, GoesOnWithTheNextStatement) {
    std::set<std::pair<std::string, std::string>> all_met;
    int faults = 0;
    for (const Situation& situation : situations()) {
        SCOPED_TRACE(situation.name);
        const Outcome undisturbed = outcome_of(situation, Fault::none);
        EXPECT_EQ(undisturbed.error, "");
        expect_listed(undisturbed.met, all_met);
        for (std::size_t n = 0; n < undisturbed.met.size() && !HasFailure(); ++n) {
            const Met& failing = undisturbed.met[n];
            SCOPED_TRACE(failing.routine + ": \"" + failing.name + "\" fails");
            expect_resumed_after(situation, n, failing);
            expect_left_after(situation, n, failing);
            ++faults;
        }
    }
    for (const auto& [routine, names] : listed_statements()) {
        for (const auto& entry : names) {
            EXPECT_TRUE(all_met.contains({routine, entry.name}))
                << routine << ": \"" << entry.name << "\" is never met";
        }
    }
    std::cout << all_met.size() << " statements, failing " << faults << " times\n";
}

}  // namespace
}  // namespace tarnwick

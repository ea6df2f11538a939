// Where a routine goes on after a failure: every step of every routine that may be resumed fails at its
// beginning, in each situation that meets it.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "board/slide.h"
#include "game/drops.h"
#include "game/tablet.h"
#include "situations.h"
#include "state/routine.h"
#include "steps.h"
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
    for (int i = 0; i <= 7; ++i) text << "animation " << i << ": " << animation(i) << '\n';
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
    std::sort(images.begin(), images.end(), [](const Image* a, const Image* b) {
        return a->stacking() < b->stacking();
    });
    for (const Image* image : images) text << "above: " << image->index() << '\n';
    frmcards.Shape1.for_each([&](const Outline& outline) { write_place(text, "outline", outline); });
    text << "label " << frmcards.LblScore.caption() << "\nundo " << frmcards.mnuUndo.visible() << "\ntwinkle "
         << frmcards.Timer1.interval() << "\nslide " << slide_is_under_way() << "\nwin dialog "
         << frmyouwin.visible() << "\nbest scores " << frmBestScore.visible() << '\n';
}

struct Met {
    std::string routine;
    int number;
    int count;
    int run;
    bool operator==(const Met&) const = default;
};

enum class Fault { none, passed_over, resumed, left };

struct Outcome {
    std::vector<Met> met;
    std::string state;         // at the end, with the results of the moves
    std::string before_fault;  // the state alone
    std::string after_fault;   // the state alone, when the next step runs, or at the end
    std::string error;         // what the error dialog says; empty without one
};

std::string state_text(const Play& play) {
    std::ostringstream text;
    write_variables(text);
    write_display(text);
    for (const Message& message : play.desktop.messages()) text << message.text << '\n';
    return text.str();
}

// Plays a situation; the n-th step that is met, from 0, is passed over or fails at its beginning.
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
    before_step = [&](const NextStep& next) {
        if (outcome.met.empty()) runs_before = next.run;
        outcome.met.push_back({next.routine, next.number, next.count, next.run - runs_before});
        if (fault == Fault::left && outcome.met.size() == n + 2) outcome.after_fault = state_text(play);
        if (fault == Fault::none || outcome.met.size() != n + 1) return false;
        if (fault == Fault::passed_over) return true;
        if (fault == Fault::left) outcome.before_fault = state_text(play);
        resume_after_error = fault == Fault::resumed ? flag_true : flag_false;
        throw ForcedFault();
    };
    const std::string result = move(situation.from, situation.to);
    before_step = nullptr;
    outcome.state = result + '\n' + state_text(play);
    if (outcome.after_fault.empty()) outcome.after_fault = state_text(play);
    if (frmError.visible()) outcome.error = frmError.LblError.caption();
    return outcome;
}

// What the list calls a step.
std::string name_of(const Met& met) {
    const auto routine = listed_steps().find(met.routine);
    if (routine == listed_steps().end() || std::cmp_not_equal(routine->second.size(), met.count)) {
        ADD_FAILURE() << met.routine << " is listed with other steps";
        return met.routine;
    }
    return met.routine + ": " + routine->second.at(static_cast<std::size_t>(met.number - 1));
}

// The routine goes on as if the n-th step had been passed over.
void expect_resumed_after(const Situation& situation, std::size_t n, const Met& failing) {
    const Outcome passed = outcome_of(situation, Fault::passed_over, n);
    const Outcome resumed = outcome_of(situation, Fault::resumed, n);
    EXPECT_TRUE(resumed.met == passed.met) << "the routine goes on elsewhere";
    EXPECT_EQ(resumed.state, passed.state);
    EXPECT_EQ(resumed.error,
              passed.error.empty() ? "Fatel Error in Subroutine " + failing.routine : passed.error);
}

// The routine is left at once: neither a step of it runs any more, nor anything else before its caller.
void expect_left_after(const Situation& situation, std::size_t n, const Met& failing) {
    const Outcome left = outcome_of(situation, Fault::left, n);
    EXPECT_EQ(left.after_fault, left.before_fault);
    EXPECT_NE(left.error, "");
    for (std::size_t i = n + 1; i < left.met.size(); ++i) {
        EXPECT_NE(left.met[i].run, failing.run) << name_of(left.met[i]) << " runs after the failure";
    }
}

TEST(Resume, GoesOnWithTheNextStep) {
    std::set<std::string> met;
    int faults = 0;
    for (const Situation& situation : situations()) {
        SCOPED_TRACE(situation.name);
        const Outcome undisturbed = outcome_of(situation, Fault::none);
        EXPECT_EQ(undisturbed.error, "");
        for (std::size_t n = 0; n < undisturbed.met.size() && !HasFailure(); ++n) {
            const Met& failing = undisturbed.met[n];
            met.insert(name_of(failing));
            SCOPED_TRACE(name_of(failing) + " fails");
            expect_resumed_after(situation, n, failing);
            expect_left_after(situation, n, failing);
            ++faults;
        }
    }
    for (const auto& [routine, names] : listed_steps()) {
        for (const std::string& name : names) {
            EXPECT_TRUE(met.contains(routine + ": " + name)) << routine << ": " << name << " is never met";
        }
    }
    std::cout << met.size() << " steps, failing " << faults << " times\n";
}

}  // namespace
}  // namespace tarnwick

// Where a routine goes on after a failure: every statement of every routine that may be resumed fails at its
// beginning, in each situation that meets it.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "game/drop_dispatch.h"
#include "game/tablet.h"
#include "platform/fault_point.h"
#include "state/statement_watch.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "statements.h"
#include "tools/driver/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// What is done in a situation; the results of the moves.
using Played = std::function<std::string()>;

Played turn() {
    return [] {
        next_tablet_card();
        return std::string();
    };
}

Played drop(int from, int to) {
    return [=] {
        drag_source = from;
        return std::string(column_to_column(to) ? "moved " : "refused ");
    };
}

struct Situation {
    const char* name;
    std::string position;
    Played play;
    const char* slides = "False";
    Played before = [] { return std::string(); };
};

std::vector<Situation> situations() {
    const std::string complete = "ace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\n";
    return {
        {"a turn", "tablet: (2♣) 3♣ 4♣ 5♣ 6♣ 7♣ 8♣", turn()},
        {"the last turn of a pass", "tablet: 2♣ (3♣) 4♣", turn()},
        {"a new pass", "tablet: 2♣ 3♣ 4♣ 5♣ 6♣ (7♣)", turn()},
        {"a new pass of four", "tablet: 2♣ 3♣ 4♣ 5♣", turn()},
        {"no card to turn", "tablet: -", turn()},
        {"tablet to column", "0: 7♠\ntablet: 3♣ (6♥) 9♣ 10♣", drop(tablet_pile, 0)},
        {"tablet to column, refused", "0: 7♠\ntablet: 3♣ (6♠) 9♣", drop(tablet_pile, 0)},
        {"the last card of the tablet", "tablet: (K♥)", drop(tablet_pile, 0)},
        {"tablet to ace pile", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", drop(tablet_pile, ace_pile(0))},
        {"tablet sent to ace pile", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", drop(tablet_pile, tablet_pile)},
        {"ace of the tablet sent up", "tablet: 9♣ (A♥) 9♥", drop(tablet_pile, tablet_pile)},
        {"tablet slides", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", drop(tablet_pile, tablet_pile), "True"},
        {"column to column", "0: 7♠\n4: [2♣] 6♥ 5♠", drop(4, 0)},
        {"column to column, refused", "0: 7♠\n4: [2♣] 8♥ 7♣", drop(4, 0)},
        {"a King's run", "4: [2♣] K♥ Q♠", drop(4, 0)},
        {"an exchange", "1: [2♦] K♠ Q♥\n5: J♣ 10♦", drop(1, 5)},
        {"ace pile to column", "0: 7♠\nace 0: .. 6♥", drop(ace_pile(0), 0)},
        {"second card of its rank to column", "0: 7♠\nace 0: .. 6♥ 6♥'", drop(ace_pile(0), 0)},
        {"a King off its ace pile", "ace 0: .. K♥", drop(ace_pile(0), 0)},
        {"a two off its ace", "0: 3♥\nace 0: A♠ 2♠", drop(ace_pile(0), 0)},
        {"ace pile to column, refused", "0: 8♠\nace 0: .. 6♥", drop(ace_pile(0), 0)},
        {"an ace stays", "0: 2♥\nace 0: A♠", drop(ace_pile(0), 0)},
        {"column to ace pile", "4: [2♣] A♥", drop(4, ace_pile(1))},
        {"column to ace pile, covering", "4: [2♣] 2♥'\nace 1: A♥ 2♥", drop(4, ace_pile(1))},
        {"an ace sent up", "4: [2♣] A♥", drop(4, 4)},
        {"refused with a message", "4: 9♥\nace 1: A♥", drop(4, ace_pile(1))},
        {"refused for its suit", "4: 2♠\nace 1: A♥", drop(4, ace_pile(1))},
        {"column slides", "ace 0: A♠\n3: [9♣] 2♠", drop(3, 3), "True"},
        {"a drop while a card slides", "0: 7♠\nace 0: A♠\n3: [9♣] 2♠\n4: 6♥", drop(4, 0), "True", drop(3, 3)},
        {"the fourth ace", "0: A♣\nace 0: A♠\nace 1: A♥\nace 2: A♦", drop(0, ace_pile(3))},
        {"the winning card", "2: K♠'\nace 0: .. K♠\n" + complete, drop(2, ace_pile(0))},
    };
}

template <class Array>
void write_rows(std::ostream& text, const char* name, const Array& array, int rows, int fields) {
    for (int row = 0; row < rows; ++row) {
        text << name << ' ' << row << ':';
        for (int field = 0; field < fields; ++field) text << ' ' << array(row, field);
        text << '\n';
    }
}

void write_variables(std::ostream& text) {
    for (int c = 0; c <= 9; ++c) {
        for (int slot = 0; slot <= top_slot; ++slot) {
            text << "column " << c << " slot " << slot << ':';
            for (int field = 0; field <= 3; ++field) text << ' ' << layout(c, slot, field);
            text << '\n';
        }
    }
    write_rows(text, "tablet", tablet, tablet_size + 1, 3);
    write_rows(text, "ace pile", aces, 4, last_used_field + 1);
    write_rows(text, "undo", undo_list, most_undo_records + 2, 3);
    for (int i = 0; i <= slide_wins_game; ++i) text << "animation " << i << ": " << animation(i) << '\n';
    text << "score " << score << "\nsource " << drag_source << "\nhelp " << suppress_help << "\nplace "
         << high_score_place << "\nclosing " << closing << "\nresume " << resume_after_error << '\n';
}

void write_place(std::ostream& text, const Widget& widget) {
    text << ' ' << widget.left() << ' ' << widget.top() << ' ' << widget.width() << ' ' << widget.height()
         << ' ' << (widget.visible() ? "visible" : "hidden");
}

void write_display(std::ostream& text) {
    std::vector<const Image*> images;
    frmcards.Image1.for_each([&](const Image& image) { images.push_back(&image); });
    for (const Image* image : images) {
        text << "image " << image->index() << ':';
        write_place(text, *image);
        text << " picture " << image->picture().number << '\n';
    }
    std::sort(images.begin(), images.end(),
              [](const Image* a, const Image* b) { return a->stacking() < b->stacking(); });
    for (const Image* image : images) text << "above: " << image->index() << '\n';
    frmcards.Shape1.for_each([&](const Outline& outline) {
        text << "outline:";
        write_place(text, outline);
        text << '\n';
    });
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

// The lines that are not the same in two states.
std::string difference(const std::string& found, const std::string& expected) {
    std::istringstream left(found);
    std::istringstream right(expected);
    std::string text;
    for (std::string a, b; std::getline(left, a) && std::getline(right, b);) {
        if (a != b) text += a + " instead of " + b + '\n';
    }
    return text + (found.size() == expected.size() || !text.empty() ? "" : "more or fewer lines");
}

// What an earlier game has left in places that hold nothing must not tell two runs apart.
void forget_earlier_games() {
    layout = {};
    tablet = {};
    aces = {};
    animation = {};
    undo_list = {};
}

// Plays a situation; the n-th statement that is met, from 0, is passed over or fails at its beginning.
Outcome outcome_of(const Situation& situation, Fault fault, std::size_t n = 0) {
    forget_earlier_games();
    Play play;
    play.start(situation.position);
    play.save("anamate", situation.slides);
    situation.before();
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
    const std::string result = situation.play();
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
    EXPECT_EQ(difference(resumed.state, passed.state), "");
    EXPECT_EQ(resumed.error,
              passed.error.empty() ? "Fatel Error in Subroutine " + failing.routine : passed.error);
}

// The routine is left at once: neither a statement of it runs any more, nor anything else before its caller.
void expect_left_after(const Situation& situation, std::size_t n, const Met& failing) {
    const Outcome left = outcome_of(situation, Fault::left, n);
    EXPECT_EQ(difference(left.after_fault, left.before_fault), "");
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

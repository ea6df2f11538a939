#pragma once

#include "platform/fault_point.h"
#include "state/report_error.h"
#include "state/statement_watch.h"
#include "state/variables.h"

// How the routines of the game deal with failures. There are two groups of them, and a helper for each:
//
//     void display_column(...) {
//         reporting("display_column", [&] { ... });                    // reports, and leaves the routine
//     }
//     void take_from_tablet() {
//         resumable("take_from_tablet", [](Statements& then) {         // reports, and may go on
//             then("uncover the card beneath", [] { turned_slot() -= 1; });
//             if (then.holds("is there one?", [] { return turned_slot() > -1; })) { ... }
//         });
//     }
//
// Whatever can fail in a resumable routine, which includes every use of state and widgets, stands in one of
// its statements: between them there is nowhere to go on from. Names are unique within a routine;
// tests/faults lists them.

namespace tarnwick {

/// Runs the statements of a routine that may be resumed: after a failure, and where the player has chosen to
/// resume, the routine goes on with the statement after the one that failed.
class Statements {
  public:
    explicit Statements(const char* routine) : routine_(routine), watch_(routine) {}

    /// Runs one statement. A failure in it is reported; then the routine is left, or resumed after it.
    template <class Statement>
    void operator()(const char* name, Statement&& statement) {
        [[maybe_unused]] const auto within = watch_.enter_statement();
        try {
            if (!watch_.passes_over(name)) statement();
        } catch (...) {
            failed();
        }
    }

    /// The value of a condition. One that fails counts as false when the routine is resumed.
    template <class Condition>
    bool holds(const char* name, Condition&& condition) {
        bool value = false;
        (*this)(name, [&] { value = condition(); });
        return value;
    }

  private:
    template <class Body>
    friend void resumable(const char* routine, Body&& body);

    struct Leave {};

    void failed() {
        report_error(routine_);
        if (!resume_after_error) throw Leave{};
        resume_after_error = flag_false;
    }

    const char* routine_;
    [[no_unique_address]] RoutineWatch watch_;
};

/// The body of a routine that is resumed after a failure if the player chose "Resume Next" before.
template <class Body>
void resumable(const char* routine, Body&& body) {
    try {
        Statements statements(routine);
        body(statements);
    } catch (const Statements::Leave&) {
        // The failure is reported; whatever the routine has done until then stands.
    } catch (...) {
        // Between statements nothing should be able to fail; if something does, there is none to go on with.
        report_error(routine);
        resume_after_error = flag_false;
    }
}

/// The body of a routine that is left at once after a failure.
template <class Body>
void reporting(const char* routine, Body&& body) {
    try {
        body();
    } catch (...) {
        report_error(routine);
    }
}

}  // namespace tarnwick

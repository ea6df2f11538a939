#pragma once

#include "platform/fault_point.h"
#include "state/report_error.h"
#include "state/variables.h"

// How the routines of the game deal with failures. There are two groups of them, and a helper for each:
//
//     void display_column(...) {
//         reporting("display_column", [&] { ... });                    // reports, and leaves the routine
//     }
//     void take_from_tablet() {
//         resumable("take_from_tablet", [](Statements& then) {         // reports, and may go on
//             then([] { turned_slot() -= 1; });
//             if (then.holds([] { return turned_slot() > -1; })) { ... }
//         });
//     }

namespace tarnwick {

/// Runs the statements of a routine that may be resumed: after a failure, and where the player has chosen to
/// resume, the routine goes on with the statement after the one that failed.
class Statements {
  public:
    explicit Statements(const char* routine) : routine_(routine) {}

    /// Runs one statement. A failure in it is reported; then the routine is left, or resumed after it.
    template <class Statement>
    void operator()(Statement&& statement) {
        try {
            fault_point();
            statement();
        } catch (const Leave&) {
            throw;
        } catch (...) {
            failed();
        }
    }

    /// The value of a condition. One that fails counts as false when the routine is resumed.
    template <class Condition>
    bool holds(Condition&& condition) {
        bool value = false;
        (*this)([&] { value = condition(); });
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
};

/// The body of a routine that is resumed after a failure if the player chose "Resume Next" before.
template <class Body>
void resumable(const char* routine, Body&& body) {
    Statements statements(routine);
    try {
        statements([&] { body(statements); });
    } catch (const Statements::Leave&) {
        // The failure is reported; whatever the routine has done until then stands.
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

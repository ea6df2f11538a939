#pragma once

#include <type_traits>

#include "platform/fault_point.h"
#include "state/variables.h"

#ifdef TARNWICK_FAULTS
#include <functional>
#endif

// How the routines of the game deal with failures. There are two groups of them, and a helper for each:
//
//     void display_column(...) {
//         reporting("display_column", [&] { ... });        // a failure is reported, and the routine left
//     }
//     void take_from_tablet() {
//         resumable("take_from_tablet", uncover_card_beneath, close_gap, ...);
//     }
//
// A resumable routine is the list of its steps. One that fails is reported; then the routine is left or,
// where the player has chosen to resume, goes on with the next step. A step that returns a bool is a
// question: the steps after it are taken if the answer is yes, and a question that fails is answered with no.
// What a step has found out for later ones stands in a variable beside the list, which `when` and `unless`
// look at when their turn has come.

namespace tarnwick {

/// Shows the error dialog with the name of the routine that failed, and returns without waiting for an
/// answer.
void report_error(const char* routine);

#ifdef TARNWICK_FAULTS
/// A step that is about to be taken.
struct NextStep {
    const char* routine;
    int number;  ///< from 1
    int count;   ///< how many the routine has
    int run;     ///< tells the runs of routines apart
};
/// Asked before each step by tests: true passes over it, throwing makes it fail.
inline std::function<bool(const NextStep&)> before_step;
#endif

/// One run of a resumable routine.
class RoutineRun {
  public:
#ifdef TARNWICK_FAULTS
    RoutineRun(const char* routine, int steps) : next_{routine, 0, steps, ++runs}, routine_(routine) {}
#else
    RoutineRun(const char* routine, int) : routine_(routine) {}
#endif

    /// Takes one step; false when the routine ends with it.
    template <class Step>
    bool take(Step& step) {
        constexpr bool is_question = std::is_same_v<std::invoke_result_t<Step&>, bool>;
        try {
            if (passes_over_next()) return !is_question;
            if constexpr (is_question) {
                return step();
            } else {
                step();
                return true;
            }
        } catch (...) {
            report_error(routine_);
            if (!resume_after_error) return false;
            resume_after_error = flag_false;
            return !is_question;
        }
    }

  private:
#ifdef TARNWICK_FAULTS
    bool passes_over_next() {
        ++next_.number;
        fault_point();
        return before_step && before_step(next_);
    }

    inline static int runs = 0;
    NextStep next_;
#else
    static constexpr bool passes_over_next() { return false; }
#endif

    const char* routine_;
};

/// Takes the steps of a routine one after the other.
template <class... Steps>
void resumable(const char* routine, Steps&&... steps) {
    RoutineRun run(routine, sizeof...(Steps));
    static_cast<void>((run.take(steps) && ...));
}

/// A step for where `condition` holds by then, or does not; or where `choice` has fallen on `value`.
template <class Step>
auto when(const bool& condition, Step step) {
    return [&condition, step] { return condition ? step() : void(); };
}
template <class Step>
auto unless(const bool& condition, Step step) {
    return [&condition, step] { return condition ? void() : step(); };
}
template <class Choice, class Step>
auto when(const Choice& choice, Choice value, Step step) {
    return [&choice, value, step] { return choice == value ? step() : void(); };
}
// What is known before the routine begins is no condition of a step.
template <class Step>
void when(const bool&& condition, Step step) = delete;
template <class Step>
void unless(const bool&& condition, Step step) = delete;

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

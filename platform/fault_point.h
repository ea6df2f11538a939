#pragma once

#ifdef TARNWICK_FAULTS
#include <stdexcept>
#include <type_traits>
#endif

namespace tarnwick {

#ifdef TARNWICK_FAULTS

/// The failure that a test has asked for.
class ForcedFault : public std::runtime_error {
  public:
    ForcedFault() : std::runtime_error("a forced fault") {}
};

/// Fault points still to be passed before one of them throws; 0 for none.
inline int points_to_fault = 0;

/// The resumable routine that runs right now between two of its statements; null within a statement and
/// outside of such routines. What could fail there would leave no statement to go on with.
inline const char* between_statements_of = nullptr;
/// The last routine that has used state or widgets between its statements; null for none.
inline const char* used_between_statements = nullptr;

/// Notes that state or a widget is used.
constexpr void note_use() {
    if (std::is_constant_evaluated()) return;
    if (between_statements_of) used_between_statements = between_statements_of;
}

/// A place where a test can force a failure: each statement of a routine, each access to an array or a family
/// of widgets.
inline void fault_point() {
    note_use();
    if (points_to_fault > 0 && --points_to_fault == 0) throw ForcedFault();
}

#else

constexpr void note_use() {}
inline void fault_point() {}

#endif

}  // namespace tarnwick

#pragma once

#ifdef TARNWICK_FAULTS
#include <stdexcept>
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

/// A place where a test can force a failure: each step of a routine, each access to an array or a family of
/// widgets.
inline void fault_point() {
    if (points_to_fault > 0 && --points_to_fault == 0) throw ForcedFault();
}

#else

inline void fault_point() {}

#endif

}  // namespace tarnwick

#pragma once

#include "platform/fault_point.h"

#ifdef TARNWICK_FAULTS
#include <functional>
#endif

// What tests see of the statements of resumable routines, and do to them. Costs nothing without
// TARNWICK_FAULTS.

namespace tarnwick {

#ifdef TARNWICK_FAULTS

/// A statement that is about to run.
struct NextStatement {
    const char* routine;
    const char* name;
    int run;  ///< tells the runs of routines apart
};

/// Asked before each statement: true passes over it, throwing makes it fail.
inline std::function<bool(const NextStatement&)> before_statement;

/// Sets which routine is between its statements, for as long as it lives.
class BetweenStatements {
  public:
    explicit BetweenStatements(const char* routine) : before_(between_statements_of) {
        between_statements_of = routine;
    }
    ~BetweenStatements() { between_statements_of = before_; }
    BetweenStatements(const BetweenStatements&) = delete;
    BetweenStatements& operator=(const BetweenStatements&) = delete;

  private:
    const char* before_;
};

/// Lives as long as one run of a routine.
class RoutineWatch {
  public:
    explicit RoutineWatch(const char* routine) : routine_(routine), between_(routine), run_(++runs) {}

    BetweenStatements enter_statement() const { return BetweenStatements(nullptr); }
    bool passes_over(const char* name) const {
        fault_point();
        return before_statement && before_statement({routine_, name, run_});
    }

  private:
    inline static int runs = 0;

    const char* routine_;
    BetweenStatements between_;
    int run_;
};

#else

class RoutineWatch {
  public:
    explicit constexpr RoutineWatch(const char*) {}
    constexpr int enter_statement() const { return 0; }
    constexpr bool passes_over(const char*) const { return false; }
};

#endif

}  // namespace tarnwick

#pragma once

#include <cstdlib>

namespace tarnwick {

/// The program that the tests start: the one built with them, or another build that the environment names.
inline const char* tested_program() {
    const char* other = std::getenv("TARNWICK_PROGRAM");
    return other ? other : TARNWICK_PROGRAM;
}

}  // namespace tarnwick

#include "notation/standard_output.h"

#include <cerrno>
#include <iostream>
#include <stdexcept>
#include <system_error>

namespace tarnwick {

void flush_standard_output() {
    if (std::cout.flush()) return;
    throw std::runtime_error("the output cannot be written: " + std::generic_category().message(errno));
}

}  // namespace tarnwick

#pragma once

namespace tarnwick {

/// Sends off what was written to std::cout. Throws std::runtime_error, in one sentence, when that or
/// something before it could not be written. A closed pipe is told like this only where SIGPIPE is ignored.
void flush_standard_output();

}  // namespace tarnwick

#pragma once

namespace tarnwick {

/// Shows the error dialog with the name of the routine that failed, and returns without waiting for an
/// answer.
void report_error(const char* routine);

}  // namespace tarnwick

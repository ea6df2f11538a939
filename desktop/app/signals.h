#pragma once

#include <functional>

class QObject;

namespace tarnwick {

/// From now on SIGTERM, SIGINT and SIGHUP do not end the process at once: `end` is called from the event
/// loop, for as long as `context` lives, and has to end the program. A signal that is ignored stays so. Needs
/// a QApplication; throws std::system_error.
void catch_end_signals(QObject& context, std::function<void()> end);

/// Ends the process by the first signal that was caught, so that whoever sent it sees what it did; returns
/// where none was.
void end_by_caught_signal();

}  // namespace tarnwick

#pragma once

namespace tarnwick {

/// The key code that the windows' handlers know a key by, or 0 for a key without one. `qt_key` is a Qt::Key.
int key_code_of(int qt_key);

}  // namespace tarnwick

#pragma once

#include "settings/store.h"

namespace tarnwick {

/// Starts the game on the desktop in use: attaches what the windows do, and shows the main window. The store
/// must live as long as the program. A failure on the way is told to the player.
void start_program(Store& store);

/// Unloads every window and forgets desktop timers and store, so that the program can be started again.
void end_program();

}  // namespace tarnwick

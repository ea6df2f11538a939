#pragma once

#include "settings/store.h"

namespace tarnwick {

/// Starts the game on the desktop in use: attaches what the windows do, and shows the main window. The store
/// must live as long as the program. A failure on the way is told to the player.
void start_program(Store& store);

/// Ends the program as the closing of the main window does, but waits for nobody: the game in hand is
/// counted, a best score is recorded with the name typed so far (or none), and every window goes. For signals
/// and the end of a session or of the display.
void shut_down_program();

/// Unloads every window without running what it does at its end, and forgets the store, so that the program
/// can be started again.
void end_program();

}  // namespace tarnwick

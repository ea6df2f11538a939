#pragma once

namespace tarnwick {

// What each window does: these attach the handlers to the windows of the folder windows/.

void attach_main_window();
void attach_mouse_and_keys();
void attach_board_names();
void attach_menus();
void attach_error_dialog();
void attach_win_dialog();
void attach_statistics_dialog();
void attach_settings_dialog();

}  // namespace tarnwick

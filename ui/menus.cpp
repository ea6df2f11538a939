#include <exception>

#include "board/slide.h"
#include "game/deal.h"
#include "game/end_game.h"
#include "game/undo.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmBestScore.h"
#include "windows/frmCommon.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// A slide that wins the game must not end it behind a dialog: it lands before one opens. False when that has
// opened the win dialog.
bool can_open_dialog() {
    if (slide_is_under_way()) finish_slide();
    return phase == Phase::playing;
}

void show_best_scores() {
    if (!can_open_dialog()) return;
    frmcards.set_enabled(false);
    frmBestScore.show();
}

void restart() {
    if (!end_won_game()) restart_game();
}

void exit_program() {
    closing = flag_true;
    frmcards.unload();
}

void change_settings() {
    if (!can_open_dialog()) return;
    frmcards.set_enabled(false);
    frmFeatures.show();
}

void show_help() {
    frmCommon.load();
    CommonDialog& dialog = frmCommon.CommonDialog1;
    dialog.set_cancel_error(true);
    try {
        dialog.set_help_command(help_contents_command);
        dialog.set_help_file("Tarnwick.hlp");
        dialog.show_help();
    } catch (const std::exception&) {
        // Without its help file the program has nothing to show, and the player nothing to decide.
    }
}

}  // namespace

void attach_menus() {
    frmcards.mnuNew.on_click = end_game;
    frmcards.mnuRestart.on_click = restart;
    frmcards.mnuScore.on_click = show_best_scores;
    frmcards.mnuExit.on_click = exit_program;
    frmcards.mnuUndo.on_click = do_undo;
    frmcards.mnuSetings.on_click = change_settings;
    frmcards.mnuAbout.on_click = show_help;
}

}  // namespace tarnwick

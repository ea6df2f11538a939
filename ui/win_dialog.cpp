#include "game/end_game.h"
#include "game/statistics.h"
#include "platform/desktop.h"
#include "platform/key_codes.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

void load() {
    const bool won = all_ace_piles_complete() && high_score_place == 1;
    frmyouwin.lblYouWin.set_visible(won);
    frmyouwin.lblNewHighScore.set_visible(!won);
}

// Shows where the entry stands, in a table that may be open already.
void show_table() {
    if (!desktop().attended()) return;
    if (high_score_place == none) {
        deal_next_game();
        return;
    }
    if (frmBestScore.loaded()) frmBestScore.on_load();
    frmBestScore.show();
}

// However the dialog is closed, the score is not lost and the player gets on.
void unload() {
    if (phase != Phase::name_asked) return;
    phase = Phase::table_shown;
    high_score_place = none;
    desktop().after_event(show_table);
    high_score_place = enter_best_score(score, frmyouwin.txtYourName.text());
}

bool key_down(int key_code) {
    if (key_code != enter_key) return false;
    frmyouwin.unload();
    return true;
}

}  // namespace

void attach_win_dialog() {
    frmyouwin.on_load = load;
    frmyouwin.on_unload = unload;
    frmyouwin.txtYourName.on_key_down = key_down;
}

}  // namespace tarnwick

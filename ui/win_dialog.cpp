#include <string>

#include "platform/desktop.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int enter_key = 13;
constexpr int last_place = 5;

void load() {
    const bool won = all_ace_piles_complete() && high_score_place == 1;
    frmyouwin.lblYouWin.set_visible(won);
    frmyouwin.lblNewHighScore.set_visible(!won);
    if (!won) return;
    settings_store().transaction(
        [] { save_setting(key_games_won, text_of(to_double(read_setting(key_games_won, 0)) + 1)); });
}

void move_entry_down(int place) {
    const std::string best = read_setting(key_high_score(place), 0);
    const std::string name = read_setting(key_high_score_name(place), std::string());
    const std::string date = read_setting(key_high_score_date(place), std::string());
    save_setting(key_high_score(place + 1), best);
    save_setting(key_high_score_name(place + 1), name);
    save_setting(key_high_score_date(place + 1), date);
}

// All in one transaction: after a crash the table is the old one or the new one.
void record_entry() {
    settings_store().transaction([] {
        const int place = high_score_place;
        for (int i = last_place - 1; i >= place; --i) move_entry_down(i);
        save_setting(key_high_score(place), text_of(score));
        save_setting(key_high_score_date(place), desktop().short_date());
        save_setting(key_high_score_name(place), frmyouwin.txtYourName.text());
    });
}

// However the dialog is closed, the score is not lost and the player gets on.
void unload() {
    if (high_score_place == none) return;
    desktop().after_event([] { frmBestScore.show(); });
    record_entry();
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

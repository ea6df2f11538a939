#include <cmath>
#include <string>

#include "game/end_game.h"
#include "platform/desktop.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void mark_new_entry() {
    Outline& square = frmBestScore.shpBestSquare;
    if (high_score_place >= 1 && high_score_place <= best_score_places) {
        square.set_top(pixels(120 + 360 * high_score_place));
        square.show();
    } else {
        square.hide();
    }
    high_score_place = none;
}

void show_average() {
    const double played = to_double(read_setting(key_games_played, 0));
    if (played == 0) return;
    const double average = to_double(read_setting(key_average_score, 0)) / played;
    // nearbyint rounds ties to even.
    frmBestScore.lblAverageScore.set_caption(text_of(std::nearbyint(average * 10) / 10));
}

// As stored, but for the end of what nobody would read: a stored text may have any length.
void show(Label& label, const std::string& stored) {
    constexpr std::size_t most_shown = 200;
    label.set_caption(beginning_of(stored, most_shown));
}

void load() {
    mark_new_entry();
    show(frmBestScore.lblGamesWon, read_setting(key_games_won, 0));
    show(frmBestScore.lblGamesPlayed, read_setting(key_games_played, 0));
    for (int i = 1; i <= best_score_places; ++i) {
        show(frmBestScore.lblHighScore(i), read_setting(key_high_score(i), 0));
        show(frmBestScore.lblHighScoreName(i), read_setting(key_high_score_name(i), std::string()));
        show(frmBestScore.lblHighScoreDate(i), read_setting(key_high_score_date(i), std::string()));
    }
    show_average();
}

void unload() {
    if (closing) return;
    frmBestScore.shpBestSquare.hide();
    if (phase == Phase::table_shown) {
        deal_next_game();
        return;
    }
    frmcards.set_enabled(true);
    frmcards.raise();
}

void clear_score() {
    settings_transaction([] {
        save_setting(key_average_score, "0");
        save_setting(key_games_played, "0");
        for (int i = 1; i <= best_score_places; ++i) {
            save_setting(key_high_score(i), "0");
            save_setting(key_high_score_name(i), "");
            save_setting(key_high_score_date(i), "");
        }
    });
    frmBestScore.lblAverageScore.set_caption("");
    frmBestScore.lblGamesPlayed.set_caption("");
    for (int i = 1; i <= best_score_places; ++i) {
        frmBestScore.lblHighScore(i).set_caption("0");
        frmBestScore.lblHighScoreName(i).set_caption("");
        frmBestScore.lblHighScoreDate(i).set_caption("");
    }
}

void ask_to_clear_score() {
    desktop().ask(
        {"Clear Scores?", "Are you sure you want to clear the high scores?", MessageButtons::ok_cancel},
        [](MessageAnswer answer) {
            if (answer == MessageAnswer::ok) clear_score();
        });
}

void close() { frmBestScore.unload(); }

}  // namespace

void attach_statistics_dialog() {
    frmBestScore.on_load = load;
    frmBestScore.on_unload = unload;
    frmBestScore.on_click = close;
    frmBestScore.cmdOk.on_click = close;
    frmBestScore.cmdClearScore.on_click = ask_to_clear_score;
}

}  // namespace tarnwick

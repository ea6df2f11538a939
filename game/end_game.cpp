#include "game/end_game.h"

#include "board/timed_effects.h"
#include "game/deal.h"
#include "settings/settings.h"
#include "state/routine.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int best_scores = 5;

// From the win dialog to the end of the statistics dialog after it, the game is counted but the next one is
// not dealt yet.
bool is_counted_already() {
    return frmyouwin.visible() || (frmBestScore.visible() && frmBestScore.shpBestSquare.visible());
}

void add_to_setting(const char* key, int amount) {
    settings_store().transaction([&] {
        const double sum = to_double(read_setting(key, 0)) + amount;
        save_setting(key, text_of(sum));
    });
}

bool beats(int place) { return to_double(read_setting(key_high_score(place), 0)) <= score; }

// The place 1 to 5 that the score takes, or none. A score equal to a stored one goes above it.
int place_of_score() {
    int place = none;
    for (int i = best_scores; i >= 1 && beats(i); --i) place = i;
    return place;
}

void count_game() {
    add_to_setting(key_games_played, 1);
    add_to_setting(key_average_score, score);
    const int place = place_of_score();
    if (place == none) return;
    frmcards.set_enabled(false);
    high_score_place = place;
    frmyouwin.show();
}

}  // namespace

void end_game() {
    const bool slide_cut_short = frmcards.Timer3.enabled();
    bool ended = false;
    reporting("end_game", [&ended] {
        if (!is_counted_already()) {
            stop_effects();
            if (score != 0) count_game();
            if (frmcards.enabled()) new_game();
        }
        ended = true;
    });
    // After a failure the game goes on, and its cards must lie where they belong.
    if (slide_cut_short && !ended) land_slide();
}

void finish_slide() {
    land_slide();
    settle_landed_win();
}

void settle_landed_win() {
    if (animation(slide_wins_game) != 1 || frmcards.Timer3.enabled()) return;
    animation(slide_wins_game) = 0;
    if (all_ace_piles_complete()) end_game();
}

}  // namespace tarnwick

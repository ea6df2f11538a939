#include "game/end_game.h"

#include <exception>
#include <vector>

#include "board/display.h"
#include "board/slide.h"
#include "game/deal.h"
#include "game/statistics.h"
#include "platform/desktop.h"
#include "state/routine.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// Of each ace pile one card of every rank, from the King on top down.
std::vector<std::vector<const Image*>> won_piles() {
    std::vector<std::vector<const Image*>> piles(4);
    for (int p = 0; p < 4; ++p) {
        const int suit = ace_pile_card(p).suit;
        std::vector<const Image*>& pile = piles[static_cast<std::size_t>(p)];
        pile.push_back(&top_image(first_ace_pile + p));
        for (int rank = queen; rank >= ace; --rank) {
            pile.push_back(&frmcards.Image1(picture_of(rank, suit, false)));
        }
    }
    return piles;
}

// A game that has gone on after an error may be in no order. Whatever comes of that, the dialog opens.
void tell_board(bool won) {
    using Piles = std::vector<std::vector<const Image*>>;
    try {
        if (FormView* view = frmcards.view()) view->game_over(frmyouwin, won ? won_piles() : Piles());
    } catch (const std::exception&) {
        return;
    }
}

void count_and_ask_for_name(bool slide_cut_short) {
    const bool won = all_ace_piles_complete();
    const int place = count_game(score, won);
    if (place == none) return;
    phase = Phase::name_asked;
    // The table is seen behind the dialog, and its cards must lie where they belong.
    if (slide_cut_short) land_slide();
    high_score_place = place;
    frmcards.set_enabled(false);
    tell_board(won);
    frmyouwin.show();
}

void count(bool slide_cut_short) {
    if (desktop().attended()) {
        count_and_ask_for_name(slide_cut_short);
    } else {
        // In one change: whoever waits for the program to end may lose patience and kill it.
        count_and_enter_game(score, all_ace_piles_complete());
    }
}

}  // namespace

void end_game() {
    const bool slide_cut_short = slide_is_under_way();
    bool ended = false;
    reporting("end_game", [&ended, slide_cut_short] {
        if (phase == Phase::playing) {
            stop_effects();
            if (score != 0) count(slide_cut_short);
            if (frmcards.enabled()) new_game();
        }
        ended = true;
    });
    // After a failure the game goes on, and its cards must lie where they belong.
    if (slide_cut_short && !ended) land_slide();
}

void deal_next_game() {
    if (closing) return;
    // Enabled first: should the deal fail, the player must not be left with a dead table.
    frmcards.set_enabled(true);
    // The table went on twinkling behind the dialogs.
    stop_effects();
    new_game();
    frmcards.raise();
}

void finish_slide() {
    if (!end_won_game()) land_slide();
}

bool end_won_game() {
    if (!slide_wins() || !all_ace_piles_complete()) return false;
    land_slide();
    end_game();
    return true;
}

}  // namespace tarnwick

#include "game/ace_moves.h"

#include <string>

#include "board/display.h"
#include "board/score.h"
#include "board/slide.h"
#include "game/end_game.h"
#include "game/help_messages.h"
#include "game/tablet.h"
#include "settings/on_off_settings.h"
#include "state/piles.h"
#include "state/routine.h"
#include "state/undo_list.h"

namespace tarnwick {
namespace {

// Whether a rank comes next on an ace pile of its suit.
bool comes_next(int top, int beneath, int rank) {
    const bool other_of_rank = top > beneath && rank == top;
    const bool next_rank = top == beneath && rank == top + 1;
    const bool two_on_ace = top == ace && rank == two;
    return two_on_ace || next_rank || other_of_rank;
}

bool slides(bool animate) { return animate && animation_is_on(); }

}  // namespace

bool ace_pile_takes(int p, const Card& card) {
    if (ace_pile_is_empty(p)) return card.rank == ace;
    return card.suit == aces(p, suit_field) &&
           comes_next(aces(p, rank_field), aces(p, beneath_rank_field), card.rank);
}

bool to_ace(const Integer& target, const Integer& top_rank, const Integer& beneath_rank,
            const Integer& card_rank, const Integer& pile_suit, const Integer& card_suit, bool animate) {
    const bool from_column = is_column(drag_source);
    bool empty = false;
    bool legal = false;
    bool placed = false;
    bool explained = false;
    resumable(
        "to_ace",
        [&] { empty = top_rank == none; },
        when(empty, [&] { legal = card_rank == ace; }),
        unless(empty,
               [&] { legal = card_suit == pile_suit && comes_next(top_rank, beneath_rank, card_rank); }),
        when(legal, [&] { from_column ? layout_to_ace(target, animate) : tablet_to_ace(target, animate); }),
        when(legal, [&] { placed = true; }),
        unless(legal, [&] { explained = help_is_wanted(); }),
        when(explained, [&] { show_help(help_about_ace_pile(top_rank, beneath_rank, pile_suit)); }));
    return placed;
}

void tablet_to_ace(const Integer& target, bool animate) {
    const int p = target - first_ace_pile;
    bool alone = false;
    bool slide = false;
    resumable(
        "tablet_to_ace",
        [&] { alone = ace_pile_is_empty(p); },
        // Read before anything is changed: a stored text that does not convert must not stop the move
        // halfway.
        [&] { slide = slides(animate); },
        when(alone, [&] { start_ace_pile(p, turned_card()); }),
        unless(alone, [&] { cover_ace_pile(p, turned_card()); }),
        when(slide, [&] { begin_slide(p, alone, slide_steps_from_tablet(p)); }),
        unless(slide, [&] { redisplay_aces(p, alone ? single_card_mode : stacked_mode); }),
        take_from_tablet,
        when(slide, keep_sliding_card_in_front),
        // Recorded before it is scored: the move that wins may deal a new game, whose list begins empty.
        [&] { add_undo(tablet_pile, target, 1); },
        [&] { ace_score(p, animate); });
}

void layout_to_ace(const Integer& target, bool animate) {
    const int p = target - first_ace_pile;
    bool alone = false;
    bool slide = false;
    resumable(
        "layout_to_ace",
        [&] { alone = ace_pile_is_empty(p); },
        // Read before anything is changed, as in tablet_to_ace.
        [&] { slide = slides(animate); },
        when(alone, [&] { start_ace_pile(p, top_card(drag_source)); }),
        unless(alone, [&] { cover_ace_pile(p, top_card(drag_source)); }),
        [] { column_top(drag_source) -= 1; },
        when(slide, [&] { begin_slide(p, alone, slide_steps_from_column(p)); }),
        unless(slide, [&] { redisplay_aces(p, alone ? single_card_mode : stacked_mode); }),
        [] { redisplay_column(drag_source); },
        when(slide, keep_sliding_card_in_front),
        // Recorded before it is scored, as in tablet_to_ace.
        [&] { add_undo(drag_source, target, 1); },
        [&] { ace_score(p, animate); });
}

void ace_score(const Integer& p, bool animate) {
    reporting("ace_score", [&] {
        add_to_score(1);
        if (all_ace_piles_complete()) {
            if (slides(animate)) {
                let_slide_win();
            } else {
                end_game();
            }
        }
        if (aces(p, rank_field) == ace && empty_ace_piles() == 0) {
            add_to_score(fourth_ace_bonus);
        }
    });
}

}  // namespace tarnwick

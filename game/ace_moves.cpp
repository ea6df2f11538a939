#include "game/ace_moves.h"

#include <cmath>

#include "board/display.h"
#include "game/ace_messages.h"
#include "game/end_game.h"
#include "game/tablet.h"
#include "platform/desktop.h"
#include "settings/settings.h"
#include "state/ace_piles.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

bool fits_on_ace_pile(int top, int beneath, int rank, int pile_suit, int suit) {
    if (top == none) return rank == ace;
    if (suit != pile_suit) return false;
    const bool other_of_rank = top > beneath && rank == top;
    const bool next_rank = top == beneath && rank == top + 1;
    const bool two_on_ace = top == ace && rank == two;
    return two_on_ace || next_rank || other_of_rank;
}

// How many steps of the slide a distance in pixels takes beyond the least number.
int steps_for(float distance) { return static_cast<int>(std::abs(distance) / (175 * x_scale)); }

int steps_from_column(int p) {
    const Image& card = frmcards.Image1(aces(p, picture_field));
    const Outline& outline = frmcards.Shape1(p);
    return steps_for(card.left() - outline.left()) + 3 + steps_for(card.top() - outline.top());
}

// Asks for the slide of a card that lies on pile p by now, but is still seen where it came from.
void start_slide(Statements& then, int p, bool first_card, int steps) {
    then([=] { animation(sliding_picture) = aces(p, picture_field); });
    then([=] {
        animation(beneath_sliding) = first_card ? no_card_beneath : int{aces(p, beneath_picture_field)};
    });
    then([=] { animation(slide_source) = drag_source; });
    then([=] { animation(slide_pile) = p; });
    then([=] { animation(slide_steps) = steps; });
    then([] { frmcards.Timer3.set_enabled(true); });
}

bool slides(bool animate) { return animate && setting_is_on(key_anamate); }

}  // namespace

bool ace_pile_takes(int p, const Card& card) {
    return fits_on_ace_pile(aces(p, rank_field), aces(p, beneath_rank_field), card.rank, aces(p, suit_field),
                            card.suit);
}

bool to_ace(const Integer& target, const Integer& top_rank, const Integer& beneath_rank,
            const Integer& card_rank, const Integer& pile_suit, const Integer& card_suit, bool animate) {
    bool placed = false;
    resumable("to_ace", [&](Statements& then) {
        if (fits_on_ace_pile(top_rank, beneath_rank, card_rank, pile_suit, card_suit)) {
            placed = true;
            if (drag_source < first_ace_pile) {
                then([&] { layout_to_ace(target, animate); });
            } else {
                then([&] { tablet_to_ace(target, animate); });
            }
        } else if (then.holds([] { return !suppress_help && setting_is_on(key_show_message); })) {
            const std::string message = ace_pile_message(top_rank, beneath_rank, pile_suit);
            if (!message.empty()) then([&] { desktop().message_box({"Tarnwick", message}); });
        }
    });
    return placed;
}

void tablet_to_ace(const Integer& target, bool animate) {
    resumable("tablet_to_ace", [&](Statements& then) {
        const int p = target - first_ace_pile;
        bool first_card = false;
        then([&] { first_card = ace_pile_is_empty(p); });
        // Read before anything is changed: a stored text that does not convert must not stop the move
        // halfway.
        const bool slide = then.holds([&] { return slides(animate); });
        then([&] { push_on_ace_pile(p, turned_card()); });
        if (slide) {
            start_slide(then, p, first_card, 2 * p + 3);
        } else {
            then([&] { redisplay_aces(p, first_card ? single_card_mode : stacked_mode); });
        }
        then([] { take_from_tablet(); });
        // Recorded before it is scored: the move that wins may deal a new game, whose list begins empty.
        then([&] { add_undo(tablet_pile, target, 1); });
        then([&] { ace_score(p, animate); });
    });
}

void layout_to_ace(const Integer& target, bool animate) {
    resumable("layout_to_ace", [&](Statements& then) {
        const int p = target - first_ace_pile;
        const int c = drag_source;
        bool first_card = false;
        then([&] { first_card = ace_pile_is_empty(p); });
        // Read before anything is changed, as in tablet_to_ace.
        const bool slide = then.holds([&] { return slides(animate); });
        then([&] { push_on_ace_pile(p, top_card(c)); });
        then([&] { column_top(c) -= 1; });
        if (slide) {
            int steps = 1;
            then([&] { steps = steps_from_column(p); });
            start_slide(then, p, first_card, steps);
        } else {
            then([&] { redisplay_aces(p, first_card ? single_card_mode : stacked_mode); });
        }
        then([&] { redisplay_column(c); });
        // Recorded before it is scored, as in tablet_to_ace.
        then([&] { add_undo(c, target, 1); });
        then([&] { ace_score(p, animate); });
    });
}

void ace_score(const Integer& p, bool animate) {
    reporting("ace_score", [&] {
        score += 1;
        show_score();
        if (all_ace_piles_complete()) {
            if (slides(animate)) {
                animation(slide_wins_game) = 1;
            } else {
                end_game();
            }
        }
        if (aces(p, rank_field) == ace && empty_ace_piles() == 0) {
            score += fourth_ace_bonus;
            show_score();
        }
    });
}

}  // namespace tarnwick

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

// Whether a rank comes next on an ace pile of its suit.
bool comes_next(int top, int beneath, int rank) {
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

int steps_from_tablet(int p) { return 2 * p + 3; }

// Asks for the slide of a card that lies on ace pile `target` by now, but is still seen where it came from.
void start_slide(Statements& then, const Integer& target, bool first_card, int (*steps)(int p)) {
    const auto p = [&] { return target - first_ace_pile; };
    then("slide: name the card", [&] { animation(sliding_picture) = aces(p(), picture_field); });
    then("slide: name the card beneath", [&] {
        animation(beneath_sliding) = first_card ? no_card_beneath : int{aces(p(), beneath_picture_field)};
    });
    then("slide: name the source", [] { animation(slide_source) = drag_source; });
    then("slide: name the ace pile", [&] { animation(slide_pile) = p(); });
    then("slide: count the steps", [&] { animation(slide_steps) = steps(p()); });
    then("slide: start the clock", [] { frmcards.Timer3.set_enabled(true); });
}

// What has just been shown at the place that the card leaves must not cover it.
void bring_to_front(int p) { frmcards.Image1(aces(p, picture_field)).bring_to_front(); }

bool slides(bool animate) { return animate && setting_is_on(key_anamate); }

}  // namespace

bool ace_pile_takes(int p, const Card& card) {
    if (ace_pile_is_empty(p)) return card.rank == ace;
    return card.suit == aces(p, suit_field) &&
           comes_next(aces(p, rank_field), aces(p, beneath_rank_field), card.rank);
}

bool to_ace(const Integer& target, const Integer& top_rank, const Integer& beneath_rank,
            const Integer& card_rank, const Integer& pile_suit, const Integer& card_suit, bool animate) {
    bool placed = false;
    resumable("to_ace", [&](Statements& then) {
        bool legal = false;
        if (then.holds("is the pile empty?", [&] { return top_rank == none; })) {
            legal = then.holds("is the card an ace?", [&] { return card_rank == ace; });
        } else if (!then.holds("is the card of another suit?", [&] { return card_suit != pile_suit; })) {
            legal = then.holds("does its rank come next?",
                               [&] { return comes_next(top_rank, beneath_rank, card_rank); });
        }
        if (legal) {
            if (then.holds("does it come from a column?", [] { return drag_source < first_ace_pile; })) {
                then("move it from its column", [&] { layout_to_ace(target, animate); });
            } else {
                then("move it from the tablet", [&] { tablet_to_ace(target, animate); });
            }
            then("the card was placed", [&] { placed = true; });
        } else if (then.holds("is help wanted?",
                              [] { return !suppress_help && setting_is_on(key_show_message); })) {
            std::string message;
            then("find words for it", [&] { message = ace_pile_message(top_rank, beneath_rank, pile_suit); });
            if (message.empty()) return;
            then("show the message", [&] { desktop().notify({"Tarnwick", message}); });
        }
    });
    return placed;
}

void tablet_to_ace(const Integer& target, bool animate) {
    resumable("tablet_to_ace", [&](Statements& then) {
        const auto p = [&] { return target - first_ace_pile; };
        const bool first_card = then.holds("is the pile empty?", [&] { return ace_pile_is_empty(p()); });
        // Read before anything is changed: a stored text that does not convert must not stop the move
        // halfway.
        const bool slide = then.holds("does the card slide?", [&] { return slides(animate); });
        if (first_card) {
            then("start the pile", [&] { start_ace_pile(p(), turned_card()); });
        } else {
            then("cover the pile", [&] { cover_ace_pile(p(), turned_card()); });
        }
        if (slide) {
            start_slide(then, target, first_card, steps_from_tablet);
        } else {
            then("redisplay the pile",
                 [&] { redisplay_aces(p(), first_card ? single_card_mode : stacked_mode); });
        }
        then("take the card from the tablet", [] { take_from_tablet(); });
        if (slide) then("slide: keep the card in front", [&] { bring_to_front(p()); });
        // Recorded before it is scored: the move that wins may deal a new game, whose list begins empty.
        then("record the move", [&] { add_undo(tablet_pile, target, 1); });
        then("score it", [&] { ace_score(p(), animate); });
    });
}

void layout_to_ace(const Integer& target, bool animate) {
    resumable("layout_to_ace", [&](Statements& then) {
        const auto p = [&] { return target - first_ace_pile; };
        const bool first_card = then.holds("is the pile empty?", [&] { return ace_pile_is_empty(p()); });
        // Read before anything is changed, as in tablet_to_ace.
        const bool slide = then.holds("does the card slide?", [&] { return slides(animate); });
        if (first_card) {
            then("start the pile", [&] { start_ace_pile(p(), top_card(drag_source)); });
        } else {
            then("cover the pile", [&] { cover_ace_pile(p(), top_card(drag_source)); });
        }
        then("shorten the column", [] { column_top(drag_source) -= 1; });
        if (slide) {
            start_slide(then, target, first_card, steps_from_column);
        } else {
            then("redisplay the pile",
                 [&] { redisplay_aces(p(), first_card ? single_card_mode : stacked_mode); });
        }
        then("redisplay the column", [] { redisplay_column(drag_source); });
        if (slide) then("slide: keep the card in front", [&] { bring_to_front(p()); });
        // Recorded before it is scored, as in tablet_to_ace.
        then("record the move", [&] { add_undo(drag_source, target, 1); });
        then("score it", [&] { ace_score(p(), animate); });
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

#include "game/column_moves.h"

#include "board/display.h"
#include "game/tablet.h"
#include "state/ace_piles.h"
#include "state/columns.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

bool card_builds_on(const Card& card, const Card& below) {
    return builds_on(card.rank, card.suit, below.rank, below.suit);
}

// What the search for the card to move asks of card i of the source column. Inline, as a refused drop does
// little else.
inline bool run_builds(int source, int i, int c) {
    if (layout(source, i, face_down_field) != 0 || layout(source, i, rank_field) == king) return false;
    return !column_is_empty(c) && card_builds_on(column_card(source, i), top_card(c));
}

inline bool is_face_up_king(int source, int i) {
    return layout(source, i, rank_field) == king && layout(source, i, face_down_field) == 0;
}

inline bool king_fills_column(int source, int i, int c) {
    return is_face_up_king(source, i) && column_is_empty(c);
}

inline bool column_continues_king(int source, int i, int c) {
    if (!is_face_up_king(source, i) || column_is_empty(c)) return false;
    return layout(c, 0, face_down_field) == 0 && card_builds_on(column_card(c, 0), top_card(source));
}

// Moves the cards `first` to `last` of the source column.
void move_run(Statements& then, int first, int last, const Integer& c) {
    for (int j = first; j <= last; ++j) {
        then("run: lay a card on the column", [&] { push_on_column(c, column_card(drag_source, j)); });
        then("run: shorten its own column", [] { column_top(drag_source) -= 1; });
        then("run: hide the card",
             [&] { frmcards.Image1(layout(drag_source, j, column_picture_field)).hide(); });
    }
    then("run: redisplay its own column", [] { redisplay_column(drag_source); });
    then("run: redisplay the column", [&] { redisplay_column(c); });
    then("run: record the move", [&] { add_undo(drag_source, c, last - first); });
}

void copy_face_up(int source, int from, int c, int to) { put_into_slot(c, to, column_card(source, from)); }

// The whole target column goes onto the source column, which ends at `top`, and from the King in slot
// `king_slot` on everything comes back.
void exchange(Statements& then, int king_slot, int top, const Integer& c) {
    int target_top = -1;
    then("exchange: where does the other column end?", [&] { target_top = column_top(c); });
    for (int j = 0; j <= target_top; ++j) {
        then("exchange: copy a card onto the King's run",
             [&] { copy_face_up(c, j, drag_source, top + 1 + j); });
    }
    int moved = 0;
    for (int j = king_slot; j <= top + target_top + 1; ++j, ++moved) {
        then("exchange: copy a card into the other column", [&] { copy_face_up(drag_source, j, c, moved); });
    }
    then("exchange: lengthen the other column", [&] { column_top(c) = moved - 1; });
    then("exchange: shorten the King's column", [&] { column_top(drag_source) = king_slot - 1; });
    then("exchange: record the way there", [&] { add_undo(c, drag_source, target_top); });
    then("exchange: redisplay the King's column", [] { redisplay_column(drag_source); });
    then("exchange: redisplay the other column", [&] { redisplay_column(c); });
    then("exchange: record the way back", [&] { add_undo(drag_source, c, moved - 1); });
}

int source_pile() { return drag_source - first_ace_pile; }
Card source_card() { return ace_pile_card(source_pile()); }

bool two_leaves_its_ace(int c) {
    const int p = source_pile();
    return aces(p, rank_field) == two && aces(p, beneath_rank_field) == ace &&
           card_builds_on(source_card(), top_card(c));
}

void lay_on_column(Statements& then, const Integer& c) {
    then("lay the card on the column", [&] { push_on_column(c, source_card()); });
    then("hide the card", [] { frmcards.Image1(source_card().picture).hide(); });
}

void take_off_ace_pile(Statements& then) {
    if (then.holds("is the card beneath of the rank below?",
                   [] { return lower_rank_is_beneath(source_pile()); })) {
        then("uncover the rank below", [] { uncover_lower_rank(source_pile()); });
    } else {
        then("uncover the other card of the rank", [] { uncover_same_rank(source_pile()); });
    }
    then("move the cards beneath up", [] { move_up_on_ace_pile(source_pile()); });
}

}  // namespace

bool column_takes_card(int c, const Card& card) {
    return column_is_empty(c) ? card.rank == king : card_builds_on(card, top_card(c));
}

bool column_takes_run_of(int c, int source) {
    for (int i = column_top(source); i >= 0; --i) {
        if (run_builds(source, i, c) || king_fills_column(source, i, c) ||
            column_continues_king(source, i, c)) {
            return true;
        }
    }
    return false;
}

bool from_tablet_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_tablet_to_column", [&](Statements& then) {
        if (then.holds("is the column empty?", [&] { return column_is_empty(c); })) {
            if (!then.holds("is the card a King?", [] { return turned_card().rank == king; })) return;
        } else if (!then.holds("does the card build on the column?",
                               [&] { return card_builds_on(turned_card(), top_card(c)); })) {
            return;
        }
        then("lay the card on the column", [&] { push_on_column(c, turned_card()); });
        then("hide the card", [] { frmcards.Image1(turned_card().picture).hide(); });
        then("redisplay the column", [&] { redisplay_column(c); });
        then("take the card from the tablet", [] { take_from_tablet(); });
        then("record the move", [&] { add_undo(tablet_pile, c, 1); });
        then("a move was made", [&] { moved = true; });
    });
    return moved;
}

bool from_column_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_column_to_column", [&](Statements& then) {
        int top = -1;
        then("where does the column end?", [&] { top = column_top(drag_source); });
        for (int i = top; i >= 0; --i) {
            if (then.holds("does a run from this card build?",
                           [&] { return run_builds(drag_source, i, c); }) ||
                then.holds("does a King fill the empty column?",
                           [&] { return king_fills_column(drag_source, i, c); })) {
                move_run(then, i, top, c);
            } else if (then.holds("does the other column continue a King's run?",
                                  [&] { return column_continues_king(drag_source, i, c); })) {
                exchange(then, i, top, c);
            } else {
                continue;
            }
            then("a move was made", [&] { moved = true; });
            return;
        }
    });
    return moved;
}

bool from_ace_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_ace_to_column", [&](Statements& then) {
        int mode = stacked_mode;
        if (then.holds("is the column empty?", [&] { return column_is_empty(c); })) {
            if (!then.holds("is the card a King?", [] { return source_card().rank == king; })) return;
            lay_on_column(then, c);
            take_off_ace_pile(then);
        } else if (then.holds("does a two leave its ace?", [&] { return two_leaves_its_ace(c); })) {
            lay_on_column(then, c);
            then("hide the ace", [] { frmcards.Image1(aces(source_pile(), beneath_picture_field)).hide(); });
            then("leave the ace alone", [] { leave_ace_alone(source_pile()); });
            mode = single_card_mode;
        } else if (then.holds("does the card build on the column?",
                              [&] { return card_builds_on(source_card(), top_card(c)); })) {
            lay_on_column(then, c);
            take_off_ace_pile(then);
        } else {
            return;
        }
        then("lose a point", [] { score -= 1; });
        then("show the score", [] { show_score(); });
        then("redisplay the column", [&] { redisplay_column(c); });
        then("redisplay the ace pile", [&] { redisplay_aces(source_pile(), mode); });
        then("record the move", [&] { add_undo(drag_source, c, 1); });
        then("a move was made", [&] { moved = true; });
    });
    return moved;
}

}  // namespace tarnwick

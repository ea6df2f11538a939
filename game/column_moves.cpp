#include "game/column_moves.h"

#include "board/display.h"
#include "board/score.h"
#include "game/tablet.h"
#include "state/piles.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// What a move between columns does: the cards of a run, from slot `first` on, go to the other column, or
// change places with all of it.
enum class Kind { run, exchange };
struct ColumnMove {
    Kind kind = Kind::run;
    int first = 0;
    int last = 0;  // the top of the source column
};

// What the search for the card to move asks of card i of the source column. Inline, as a refused drop does
// little else.
inline bool run_builds(int source, int i, int c) {
    if (layout(source, i, face_down_field) != 0 || layout(source, i, rank_field) == king) return false;
    return !column_is_empty(c) && builds_on(column_card(source, i), top_card(c));
}

inline bool is_face_up_king(int source, int i) {
    return layout(source, i, rank_field) == king && layout(source, i, face_down_field) == 0;
}

inline bool king_fills_column(int source, int i, int c) {
    return is_face_up_king(source, i) && column_is_empty(c);
}

inline bool column_continues_king(int source, int i, int c) {
    if (!is_face_up_king(source, i) || column_is_empty(c)) return false;
    return layout(c, 0, face_down_field) == 0 && builds_on(column_card(c, 0), top_card(source));
}

// Searches the card to move, from the top of the source column down; false when none fits.
bool find_move(int source, int c, ColumnMove& move) {
    const int top = column_top(source);
    for (int i = top; i >= 0; --i) {
        const bool run = run_builds(source, i, c) || king_fills_column(source, i, c);
        if (!run && !column_continues_king(source, i, c)) continue;
        move = {run ? Kind::run : Kind::exchange, i, top};
        return true;
    }
    return false;
}

void move_run(const ColumnMove& move, const Integer& c) {
    for (int j = move.first; j <= move.last; ++j) {
        push_on_column(c, column_card(drag_source, j));
        column_top(drag_source) -= 1;
        hide_face(layout(drag_source, j, column_picture_field));
    }
}

void copy_column_onto_run(const ColumnMove& move, int c) {
    const int target_top = column_top(c);
    for (int j = 0; j <= target_top; ++j) put_into_slot(drag_source, move.last + 1 + j, column_card(c, j));
}

void copy_run_into_column(const ColumnMove& move, int c) {
    const int last = move.last + column_top(c) + 1;
    for (int j = move.first; j <= last; ++j) put_into_slot(c, j - move.first, column_card(drag_source, j));
}

int pile_of_source() { return drag_source - first_ace_pile; }
Card card_of_source() { return ace_pile_card(pile_of_source()); }

}  // namespace

bool column_takes_card(int c, const Card& card) {
    return column_is_empty(c) ? card.rank == king : builds_on(card, top_card(c));
}

bool column_takes_run_of(int c, int source) {
    ColumnMove move;
    return find_move(source, c, move);
}

int first_slot_to_move(int c, int source) {
    ColumnMove move;
    return find_move(source, c, move) ? move.first : none;
}

bool from_tablet_to_column(const Integer& c) {
    bool moved = false;
    resumable(
        "from_tablet_to_column",
        [&] { return column_takes_card(c, turned_card()); },
        [&] { push_on_column(c, turned_card()); },
        [] { hide_face(turned_card().picture); },
        [&] { redisplay_column(c); },
        take_from_tablet,
        [&] { add_undo(tablet_pile, c, 1); },
        [&] { moved = true; });
    return moved;
}

bool from_column_to_column(const Integer& c) {
    ColumnMove move;
    int target_top = -1;
    bool moved = false;
    const Kind& kind = move.kind;
    resumable(
        "from_column_to_column",
        [&] { return find_move(drag_source, c, move); },
        when(kind, Kind::run, [&] { move_run(move, c); }),
        when(kind, Kind::run, [] { redisplay_column(drag_source); }),
        when(kind, Kind::run, [&] { redisplay_column(c); }),
        when(kind, Kind::run, [&] { add_undo(drag_source, c, move.last - move.first); }),
        when(kind, Kind::exchange, [&] { target_top = column_top(c); }),
        when(kind, Kind::exchange, [&] { copy_column_onto_run(move, c); }),
        when(kind, Kind::exchange, [&] { copy_run_into_column(move, c); }),
        when(kind, Kind::exchange, [&] { column_top(c) += move.last - move.first + 1; }),
        when(kind, Kind::exchange, [&] { column_top(drag_source) = move.first - 1; }),
        when(kind, Kind::exchange, [&] { add_undo(c, drag_source, target_top); }),
        when(kind, Kind::exchange, [] { redisplay_column(drag_source); }),
        when(kind, Kind::exchange, [&] { redisplay_column(c); }),
        when(kind, Kind::exchange, [&] { add_undo(drag_source, c, column_top(c)); }),
        [&] { moved = true; });
    return moved;
}

bool from_ace_to_column(const Integer& c) {
    bool bares_ace = false;
    bool lower_rank_follows = false;
    bool same_rank_follows = false;
    bool moved = false;
    resumable(
        "from_ace_to_column",
        [&] { return column_takes_card(c, card_of_source()); },
        [&] { bares_ace = aces(pile_of_source(), beneath_rank_field) == ace; },
        [&] { lower_rank_follows = !bares_ace && lower_rank_is_beneath(pile_of_source()); },
        [&] { same_rank_follows = !bares_ace && !lower_rank_follows; },
        [&] { push_on_column(c, card_of_source()); },
        [] { hide_face(card_of_source().picture); },
        when(bares_ace, [] { hide_face(aces(pile_of_source(), beneath_picture_field)); }),
        when(bares_ace, [] { leave_ace_alone(pile_of_source()); }),
        when(lower_rank_follows, [] { uncover_lower_rank(pile_of_source()); }),
        when(same_rank_follows, [] { uncover_same_rank(pile_of_source()); }),
        unless(bares_ace, [] { move_up_on_ace_pile(pile_of_source()); }),
        [] { add_to_score(-1); },
        [&] { redisplay_column(c); },
        [&] { redisplay_aces(pile_of_source(), bares_ace ? single_card_mode : stacked_mode); },
        [&] { add_undo(drag_source, c, 1); },
        [&] { moved = true; });
    return moved;
}

}  // namespace tarnwick

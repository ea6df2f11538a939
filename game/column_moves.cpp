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

// What the search for the card to move finds for one card of the source column.
enum class Found { nothing, run, exchange };

// Inline, as a refused drop does little else.
inline Found move_for_card(int source, int i, int c) {
    const bool face_up = layout(source, i, face_down_field) == 0;
    const Card card = column_card(source, i);
    if (!face_up || card.rank != king) {
        const bool fits = face_up && !column_is_empty(c) && card_builds_on(card, top_card(c));
        return fits ? Found::run : Found::nothing;
    }
    if (column_is_empty(c)) return Found::run;
    const bool continues =
        layout(c, 0, face_down_field) == 0 && card_builds_on(column_card(c, 0), top_card(source));
    return continues ? Found::exchange : Found::nothing;
}

void move_run(Statements& then, int source, int first, int c) {
    const int last = column_top(source);
    for (int j = first; j <= last; ++j) {
        then([=] { push_on_column(c, column_card(source, j)); });
        then([=] { column_top(source) -= 1; });
        then([=] { frmcards.Image1(layout(source, j, column_picture_field)).hide(); });
    }
    then([=] { redisplay_column(source); });
    then([=] { redisplay_column(c); });
    then([=] { add_undo(source, c, last - first); });
}

void copy_face_up(int source, int from, int c, int to) { put_into_slot(c, to, column_card(source, from)); }

// The whole target column goes onto the source column, and from the King on everything comes back.
void exchange(Statements& then, int source, int first, int c) {
    const int top = column_top(source);
    const int target_top = column_top(c);
    for (int j = 0; j <= target_top; ++j) {
        then([=] { copy_face_up(c, j, source, top + 1 + j); });
    }
    int moved = 0;
    for (int j = first; j <= top + target_top + 1; ++j, ++moved) {
        then([=] { copy_face_up(source, j, c, moved); });
    }
    then([=] { column_top(c) = moved - 1; });
    then([=] { column_top(source) = first - 1; });
    then([=] { add_undo(c, source, target_top); });
    then([=] { redisplay_column(source); });
    then([=] { redisplay_column(c); });
    then([=] { add_undo(source, c, moved - 1); });
}

}  // namespace

bool column_takes_card(int c, const Card& card) {
    return column_is_empty(c) ? card.rank == king : card_builds_on(card, top_card(c));
}

bool column_takes_run_of(int c, int source) {
    for (int i = column_top(source); i >= 0; --i) {
        if (move_for_card(source, i, c) != Found::nothing) return true;
    }
    return false;
}

bool from_tablet_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_tablet_to_column", [&](Statements& then) {
        if (!then.holds([&] { return column_takes_card(c, turned_card()); })) return;
        then([&] { push_on_column(c, turned_card()); });
        then([&] { frmcards.Image1(turned_card().picture).hide(); });
        then([&] { redisplay_column(c); });
        then([] { take_from_tablet(); });
        then([&] { add_undo(tablet_pile, c, 1); });
        moved = true;
    });
    return moved;
}

bool from_column_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_column_to_column", [&](Statements& then) {
        const int source = drag_source;
        int top = -1;
        then([&] { top = column_top(source); });
        for (int i = top; i >= 0 && !moved; --i) {
            Found found = Found::nothing;
            then([&] { found = move_for_card(source, i, c); });
            if (found == Found::run) move_run(then, source, i, c);
            if (found == Found::exchange) exchange(then, source, i, c);
            moved = found != Found::nothing;
        }
    });
    return moved;
}

bool from_ace_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_ace_to_column", [&](Statements& then) {
        const int p = drag_source - first_ace_pile;
        if (!then.holds([&] { return column_takes_card(c, ace_pile_card(p)); })) return;
        then([&] { push_on_column(c, ace_pile_card(p)); });
        then([&] { frmcards.Image1(ace_pile_card(p).picture).hide(); });
        then([&] { pop_ace_pile(p); });
        then([] { score -= 1; });
        then([] { show_score(); });
        then([&] { redisplay_column(c); });
        then([&] { redisplay_aces(p, ace_pile_mode(p)); });
        then([&] { add_undo(first_ace_pile + p, c, 1); });
        moved = true;
    });
    return moved;
}

}  // namespace tarnwick

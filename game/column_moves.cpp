#include "game/column_moves.h"

#include "board/display.h"
#include "game/tablet.h"
#include "state/ace_piles.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void place_on_column(int c, int rank, int suit, int picture) {
    column_top(c) += 1;
    const int slot = column_top(c);
    layout(c, slot, rank_field) = rank;
    layout(c, slot, suit_field) = suit;
    layout(c, slot, face_down_field) = 0;
    layout(c, slot, column_picture_field) = picture;
}

bool fits_on_top(int c, int rank, int suit) {
    if (column_is_empty(c)) return rank == king;
    const int top = column_top(c);
    return builds_on(rank, suit, layout(c, top, rank_field), layout(c, top, suit_field));
}

bool column_card_fits(int source, int i, int rank_below, int suit_below) {
    return builds_on(layout(source, i, rank_field), layout(source, i, suit_field), rank_below, suit_below);
}

// What the search for the card to move finds for one card of the source column.
enum class Found { nothing, run, exchange };

Found move_for_card(int source, int i, int c) {
    const bool face_up = layout(source, i, face_down_field) == 0;
    const bool face_up_king = face_up && layout(source, i, rank_field) == king;
    if (!face_up_king) {
        if (!face_up || column_is_empty(c)) return Found::nothing;
        const int top = column_top(c);
        const bool fits = column_card_fits(source, i, layout(c, top, rank_field), layout(c, top, suit_field));
        return fits ? Found::run : Found::nothing;
    }
    if (column_is_empty(c)) return Found::run;
    const int top = column_top(source);
    const bool continues =
        layout(c, 0, face_down_field) == 0 &&
        column_card_fits(c, 0, layout(source, top, rank_field), layout(source, top, suit_field));
    return continues ? Found::exchange : Found::nothing;
}

void move_run(Statements& then, int source, int first, int c) {
    const int last = column_top(source);
    for (int j = first; j <= last; ++j) {
        then([=] {
            place_on_column(c, layout(source, j, rank_field), layout(source, j, suit_field),
                            layout(source, j, column_picture_field));
        });
        then([=] { column_top(source) -= 1; });
        then([=] { frmcards.Image1(layout(source, j, column_picture_field)).hide(); });
    }
    then([=] { redisplay_column(source); });
    then([=] { redisplay_column(c); });
    then([=] { add_undo(source, c, last - first); });
}

void copy_face_up(int source, int from, int c, int to) {
    layout(c, to, rank_field) = layout(source, from, rank_field);
    layout(c, to, suit_field) = layout(source, from, suit_field);
    layout(c, to, face_down_field) = 0;
    layout(c, to, column_picture_field) = layout(source, from, column_picture_field);
}

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

bool from_tablet_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_tablet_to_column", [&](Statements& then) {
        const int slot = turned_slot();
        const int rank = tablet(slot, rank_field);
        const int suit = tablet(slot, suit_field);
        const int picture = tablet(slot, picture_field);
        if (!then.holds([&] { return fits_on_top(c, rank, suit); })) return;
        then([&] { place_on_column(c, rank, suit, picture); });
        then([&] { frmcards.Image1(picture).hide(); });
        then([&] { redisplay_column(c); });
        then([&] { take_from_tablet(); });
        then([&] { add_undo(tablet_pile, c, 1); });
        moved = true;
    });
    return moved;
}

bool from_column_to_column(const Integer& c) {
    bool moved = false;
    resumable("from_column_to_column", [&](Statements& then) {
        const int source = drag_source;
        for (int i = column_top(source); i >= 0 && !moved; --i) {
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
        const int rank = aces(p, rank_field);
        const int picture = aces(p, picture_field);
        if (!then.holds([&] { return fits_on_top(c, rank, aces(p, suit_field)); })) return;
        then([&] { place_on_column(c, rank, aces(p, suit_field), picture); });
        then([&] { frmcards.Image1(picture).hide(); });
        // An ace that will be alone is shown by another image than the plain ace beneath another card.
        then([&] { frmcards.Image1(aces(p, beneath_picture_field)).hide(); });
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

#include "game/undo_moves.h"

#include "board/display.h"
#include "game/ace_moves.h"
#include "state/ace_piles.h"
#include "state/columns.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void add_to_score(int points) {
    score += points;
    show_score();
}

// Where the move had turned up the card in slot `top` of column c, turns it down again; its record goes with
// the move's.
void turn_down_again(int c, int top) {
    if (undo_count() < 2 || undo_list(1, 0) != turned_up_record) return;
    layout(c, top, face_down_field) = 1;
    remove_undo_record(0);
    add_to_score(-1);
}

}  // namespace

void take_back_from_ace_pile(int p) {
    frmcards.Image1(aces(p, picture_field)).hide();
    if (ace_pile_holds_one_card(p)) {
        empty_ace_pile(p);
        frmcards.Image1(first_ace_zone + p).show();
        if (empty_ace_piles() == 1) add_to_score(-fourth_ace_bonus);
        return;
    }
    pop_ace_pile(p);
    redisplay_aces(p, ace_pile_mode(p));
}

void undo_from_ace_to_column() {
    const int p = undo_list(0, 0) - first_ace_pile;
    const int c = undo_list(0, 1);
    push_on_ace_pile(p, top_card(c));
    column_top(c) -= 1;
    redisplay_aces(p, ace_pile_mode(p));
    add_to_score(1);
}

void undo_from_column_to_ace() {
    reporting("undo_from_column_to_ace", [] {
        const int c = undo_list(0, 0);
        const int p = undo_list(0, 1) - first_ace_pile;
        const int uncovered = column_top(c);
        push_on_column(c, ace_pile_card(p));
        take_back_from_ace_pile(p);
        turn_down_again(c, uncovered);
        add_to_score(-1);
        redisplay_column(c);
    });
}

void undo_from_column_to_column() {
    const int source = undo_list(0, 0);
    const int c = undo_list(0, 1);
    const int uncovered = column_top(source);
    const int last = column_top(c);
    for (int i = last - undo_list(0, 2); i <= last; ++i) {
        push_on_column(source, column_card(c, i));
        frmcards.Image1(layout(c, column_top(c), column_picture_field)).hide();
        column_top(c) -= 1;
    }
    turn_down_again(source, uncovered);
    redisplay_column(source);
    redisplay_column(c);
}

}  // namespace tarnwick

#include "game/undo.h"

#include "board/display.h"
#include "board/score.h"
#include "board/slide.h"
#include "game/ace_moves.h"
#include "game/end_game.h"
#include "state/piles.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Opens a slot of the tablet for the card that comes back; it becomes the turned one.
void make_room_in_tablet() {
    if (turned_slot() != -1) hide_face(tablet(turned_slot(), picture_field));
    last_tablet_slot() += 1;
    turned_slot() += 1;
    for (int i = last_tablet_slot(); i > turned_slot(); --i) {
        for (int field = 0; field <= 2; ++field) tablet(i, field) = tablet(i - 1, field);
    }
}

// A tablet of five cards or fewer leaves the stock as it is.
void restore_stock() {
    if (last_tablet_slot() > 4) show_stock();
}

// Where the move had turned up the card in slot `top` of column c, turns it down again; its record goes with
// the move's.
void turn_down_again(int c, int top) {
    if (undo_count() < 2 || undo_list(1, 0) != turned_up_record) return;
    layout(c, top, face_down_field) = 1;
    remove_undo_record(0);
    add_to_score(-1);
}

// Takes the top card off ace pile p and lays the pile out. A pile that is empty then shows its drop zone
// again, and the bonus goes back if the card was the fourth ace.
void take_back_from_ace_pile(int p) {
    hide_face(aces(p, picture_field));
    if (ace_pile_holds_one_card(p)) {
        empty_ace_pile(p);
        frmcards.Image1(first_ace_zone + p).show();
        if (empty_ace_piles() == 1) add_to_score(-fourth_ace_bonus);
        return;
    }
    pop_ace_pile(p);
    redisplay_aces(p, ace_pile_mode(p));
}

void reverse_newest_record() {
    const int a = undo_list(0, 0);
    const int b = undo_list(0, 1);
    // A turned-up record goes with its move; alone, after a failure, there is nothing that it could take
    // back.
    if (a == turned_up_record) return;
    if (a == turn_record) {
        undo_next_tablet_card();
    } else if (a == tablet_pile) {
        is_column(b) ? undo_from_tablet_to_column() : undo_from_tablet_to_ace();
    } else if (is_ace_pile(a)) {
        undo_from_ace_to_column();
    } else {
        is_column(b) ? undo_from_column_to_column() : undo_from_column_to_ace();
    }
}

}  // namespace

void do_undo() {
    if (end_won_game()) return;
    if (slide_is_under_way()) land_slide();
    reverse_newest_record();
    remove_undo_record(0);
    if (undo_count() < 1) frmcards.mnuUndo.set_visible(false);
}

void undo_next_tablet_card() {
    reporting("undo_next_tablet_card", [] {
        // The first turn of a game stays, as long as nothing else can be taken back.
        if (undo_count() == 1) return;
        turned_slot() = undo_list(0, 2);
        frmcards.Image1(shown_tablet_image()).pass(frmcards.Image1(stock_image));
        hide_face(shown_tablet_image());
        display_turned_card();
        show_stock();
    });
}

void undo_from_tablet_to_column() {
    reporting("undo_from_tablet_to_column", [] {
        const int c = undo_list(0, 1);
        const Card card = top_card(c);
        make_room_in_tablet();
        put_into_tablet(turned_slot(), card);
        hide_face(card.picture);
        column_top(c) -= 1;
        redisplay_column(c);
        display_turned_card();
        add_to_score(-1);
        restore_stock();
    });
}

void undo_from_tablet_to_ace() {
    reporting("undo_from_tablet_to_ace", [] {
        const int p = undo_list(0, 1) - first_ace_pile;
        make_room_in_tablet();
        put_into_tablet(turned_slot(), ace_pile_card(p));
        take_back_from_ace_pile(p);
        display_turned_card();
        add_to_score(-2);
        restore_stock();
    });
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
        hide_face(layout(c, column_top(c), column_picture_field));
        column_top(c) -= 1;
    }
    turn_down_again(source, uncovered);
    redisplay_column(source);
    redisplay_column(c);
}

}  // namespace tarnwick

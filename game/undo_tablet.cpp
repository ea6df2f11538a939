#include "game/undo_tablet.h"

#include "board/display.h"
#include "game/undo_moves.h"
#include "state/ace_piles.h"
#include "state/routine.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Opens a slot for the card that comes back; it becomes the turned one.
void make_room_in_tablet() {
    if (turned_slot() != -1) frmcards.Image1(tablet(turned_slot(), picture_field)).hide();
    last_tablet_slot() += 1;
    turned_slot() += 1;
    for (int i = last_tablet_slot(); i > turned_slot(); --i) {
        for (int field = 0; field <= 2; ++field) tablet(i, field) = tablet(i - 1, field);
    }
}

void put_into_turned_slot(const Card& card) {
    tablet(turned_slot(), rank_field) = card.rank;
    tablet(turned_slot(), suit_field) = card.suit;
    tablet(turned_slot(), picture_field) = card.picture;
}

void show_turned_slot() {
    const int picture = tablet(turned_slot(), picture_field);
    display_turned_card(picture);
    shown_tablet_image() = picture;
}

void show_stock() {
    Image& stock = frmcards.Image1(stock_image);
    const bool all_turned = turned_slot() == last_tablet_slot();
    stock.set_picture(all_turned ? frmcards.Image1(first_column_zone + 1).picture() : current_back());
    stock.show();
}

void restore_stock() {
    if (last_tablet_slot() > 4) show_stock();
}

void add_to_score(int points) {
    score += points;
    show_score();
}

}  // namespace

void undo_next_tablet_card() {
    reporting("undo_next_tablet_card", [] {
        // The first turn of a game stays, as long as nothing else can be taken back.
        if (undo_count() == 1) return;
        turned_slot() = undo_list(0, 2);
        frmcards.Image1(shown_tablet_image()).hide();
        if (turned_slot() != -1) {
            show_turned_slot();
        } else {
            shown_tablet_image() = empty_waste_image;
        }
        show_stock();
    });
}

void undo_from_tablet_to_column() {
    reporting("undo_from_tablet_to_column", [] {
        const int c = undo_list(0, 1);
        const Card card = top_card(c);
        make_room_in_tablet();
        put_into_turned_slot(card);
        frmcards.Image1(card.picture).hide();
        column_top(c) -= 1;
        redisplay_column(c);
        show_turned_slot();
        add_to_score(-1);
        restore_stock();
    });
}

void undo_from_tablet_to_ace() {
    reporting("undo_from_tablet_to_ace", [] {
        const int p = undo_list(0, 1) - first_ace_pile;
        make_room_in_tablet();
        put_into_turned_slot(ace_pile_card(p));
        take_back_from_ace_pile(p);
        show_turned_slot();
        add_to_score(-2);
        restore_stock();
    });
}

}  // namespace tarnwick

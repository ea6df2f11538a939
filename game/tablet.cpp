#include "game/tablet.h"

#include "board/display.h"
#include "board/score.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// What a click on the tablet does: the last three begin a new pass.
enum class Turn { undecided, five, the_rest, nothing_left, last_pass, new_pass };
constexpr bool begins_pass(Turn turn) { return turn >= Turn::nothing_left; }

Turn next_turn() {
    const int face_down = last_tablet_slot() - turned_slot();
    if (turned_slot() != -1 && face_down != 0)
        return face_down > cards_per_turn ? Turn::five : Turn::the_rest;
    if (last_tablet_slot() == -1) return Turn::nothing_left;
    return last_tablet_slot() < cards_per_turn ? Turn::last_pass : Turn::new_pass;
}

void hide_shown_card() { hide_face(shown_tablet_image()); }

// Turns the cards up to `slot`.
void turn_to(int slot) {
    shown_tablet_image() = tablet(slot, picture_field);
    frmcards.Image1(shown_tablet_image()).pass(frmcards.Image1(stock_image));
    add_undo(turn_record, turn_record, turned_slot());
    turned_slot() = slot;
}

void turn_five() {
    hide_shown_card();
    turn_to(turned_slot() + cards_per_turn);
    show_stock_depth();
}

void turn_the_rest() {
    hide_shown_card();
    turn_to(last_tablet_slot());
    show_stock();
}

void turn_last_pass() {
    hide_stock();
    turn_to(last_tablet_slot());
}

void turn_new_pass() {
    turn_to(cards_per_turn - 1);
    show_stock();
}

void uncover_next_card() { turned_slot() -= 1; }

void close_gap() {
    const int last = last_tablet_slot();
    for (int slot = turned_slot() + 2; slot <= last; ++slot) {
        for (int field = 0; field <= 2; ++field) tablet(slot - 1, field) = tablet(slot, field);
    }
}

void shorten_tablet() { last_tablet_slot() -= 1; }
void earn_point() { add_to_score(1); }

void hide_stock_when_turned_for_good() {
    if (tablet_is_turned_for_good()) hide_stock();
}

}  // namespace

void next_tablet_card() {
    Turn turn = Turn::undecided;
    bool pass_begins = false;
    resumable(
        "next_tablet_card",
        [&] { turn = next_turn(); },
        [&] { pass_begins = begins_pass(turn); },
        when(turn, Turn::five, turn_five),
        when(turn, Turn::the_rest, turn_the_rest),
        when(pass_begins, hide_shown_card),
        when(turn, Turn::nothing_left, hide_stock),
        when(turn, Turn::last_pass, turn_last_pass),
        when(turn, Turn::new_pass, turn_new_pass),
        display_turned_card);
}

bool tablet_is_turned_for_good() {
    return last_tablet_slot() < cards_per_turn && turned_slot() == last_tablet_slot();
}

void take_from_tablet() {
    resumable("take_from_tablet",
              uncover_next_card,
              display_turned_card,
              close_gap,
              shorten_tablet,
              earn_point,
              hide_stock_when_turned_for_good);
}

}  // namespace tarnwick

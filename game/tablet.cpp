#include "game/tablet.h"

#include "board/display.h"
#include "state/routine.h"
#include "state/undo_list.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr int cards_per_turn = 5;

Image& stock() { return frmcards.Image1(stock_image); }
Picture empty_place() { return frmcards.Image1(first_column_zone + 1).picture(); }

void hide_shown_card() { frmcards.Image1(shown_tablet_image()).hide(); }
void record_turn() { add_undo(turn_record, turn_record, turned_slot()); }
void show_slot(int slot) { shown_tablet_image() = tablet(slot, picture_field); }

void turn_on(Statements& then) {
    if (then.holds("are more than five of them left?",
                   [] { return last_tablet_slot() - turned_slot() > cards_per_turn; })) {
        then("turn five: record it", [] { record_turn(); });
        then("turn five", [] { turned_slot() += cards_per_turn; });
        then("turn five: hide the card shown", [] { hide_shown_card(); });
        then("turn five: show the last of them", [] { show_slot(turned_slot()); });
    } else {
        then("turn the rest: empty the stock's place", [] { stock().set_picture(empty_place()); });
        then("turn the rest: hide the card shown", [] { hide_shown_card(); });
        then("turn the rest: show the last card", [] { show_slot(last_tablet_slot()); });
        then("turn the rest: record it", [] { record_turn(); });
        then("turn the rest", [] { turned_slot() = last_tablet_slot(); });
    }
}

void start_new_pass(Statements& then) {
    then("new pass: hide the card shown", [] { hide_shown_card(); });
    if (then.holds("is the tablet empty?", [] { return last_tablet_slot() == -1; })) {
        then("nothing to turn: hide the stock", [] { stock().hide(); });
    } else if (then.holds("are fewer than five left?", [] { return last_tablet_slot() < cards_per_turn; })) {
        then("last pass: hide the stock", [] { stock().hide(); });
        then("last pass: show the last card", [] { show_slot(last_tablet_slot()); });
        then("last pass: record it", [] { record_turn(); });
        then("last pass: turn all", [] { turned_slot() = last_tablet_slot(); });
    } else {
        then("new pass: show the stock", [] { stock().set_picture(current_back()); });
        then("new pass: show the fifth card", [] { show_slot(cards_per_turn - 1); });
        then("new pass: record it", [] { record_turn(); });
        then("new pass: turn five", [] { turned_slot() = cards_per_turn - 1; });
    }
}

}  // namespace

void next_tablet_card() {
    resumable("next_tablet_card", [](Statements& then) {
        if (then.holds("are cards of this pass left?",
                       [] { return turned_slot() != -1 && turned_slot() != last_tablet_slot(); })) {
            turn_on(then);
        } else {
            start_new_pass(then);
        }
        if (then.holds("is a card turned?", [] { return turned_slot() != -1; })) {
            then("display it", [] { display_turned_card(tablet(turned_slot(), picture_field)); });
        }
    });
}

bool tablet_is_turned_for_good() {
    return last_tablet_slot() < cards_per_turn && turned_slot() == last_tablet_slot();
}

void take_from_tablet() {
    resumable("take_from_tablet", [](Statements& then) {
        then("uncover the card beneath", [] { turned_slot() -= 1; });
        if (then.holds("is there one?", [] { return turned_slot() > -1; })) {
            then("display it", [] { display_turned_card(tablet(turned_slot(), picture_field)); });
            then("show it", [] { show_slot(turned_slot()); });
        } else {
            then("turn none", [] { turned_slot() = -1; });
            then("show the empty place", [] { shown_tablet_image() = empty_waste_image; });
        }
        int first = 0;
        int last = -1;
        then("find the gap", [&] {
            first = turned_slot() + 2;
            last = last_tablet_slot();
        });
        for (int slot = first; slot <= last; ++slot) {
            then("close it by a slot", [slot] {
                for (int field = 0; field <= 2; ++field) tablet(slot - 1, field) = tablet(slot, field);
            });
        }
        then("end a slot earlier", [] { last_tablet_slot() -= 1; });
        then("earn a point", [] { score += 1; });
        then("show the score", [] { show_score(); });
        if (then.holds("is nothing left to turn?", [] { return tablet_is_turned_for_good(); })) {
            then("hide the stock", [] { stock().hide(); });
        }
    });
}

}  // namespace tarnwick

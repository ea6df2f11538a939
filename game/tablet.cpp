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
    if (then.holds([] { return last_tablet_slot() - turned_slot() > cards_per_turn; })) {
        then([] { record_turn(); });
        then([] { turned_slot() += cards_per_turn; });
        then([] { hide_shown_card(); });
        then([] { show_slot(turned_slot()); });
    } else {
        then([] { stock().set_picture(empty_place()); });
        then([] { hide_shown_card(); });
        then([] { show_slot(last_tablet_slot()); });
        then([] { record_turn(); });
        then([] { turned_slot() = last_tablet_slot(); });
    }
}

void start_new_pass(Statements& then) {
    then([] { hide_shown_card(); });
    if (then.holds([] { return last_tablet_slot() == -1; })) {
        then([] { stock().hide(); });
    } else if (then.holds([] { return last_tablet_slot() < cards_per_turn; })) {
        then([] { stock().hide(); });
        then([] { show_slot(last_tablet_slot()); });
        then([] { record_turn(); });
        then([] { turned_slot() = last_tablet_slot(); });
    } else {
        then([] { stock().set_picture(current_back()); });
        then([] { show_slot(cards_per_turn - 1); });
        then([] { record_turn(); });
        then([] { turned_slot() = cards_per_turn - 1; });
    }
}

}  // namespace

void next_tablet_card() {
    resumable("next_tablet_card", [](Statements& then) {
        if (then.holds([] { return turned_slot() != -1 && turned_slot() != last_tablet_slot(); })) {
            turn_on(then);
        } else {
            start_new_pass(then);
        }
        if (then.holds([] { return turned_slot() != -1; })) {
            then([] { display_turned_card(tablet(turned_slot(), picture_field)); });
        }
    });
}

bool tablet_is_turned_for_good() {
    return last_tablet_slot() < cards_per_turn && turned_slot() == last_tablet_slot();
}

void take_from_tablet() {
    resumable("take_from_tablet", [](Statements& then) {
        then([] { turned_slot() -= 1; });
        if (then.holds([] { return turned_slot() > -1; })) {
            then([] { display_turned_card(tablet(turned_slot(), picture_field)); });
            then([] { show_slot(turned_slot()); });
        } else {
            then([] { turned_slot() = -1; });
            then([] { shown_tablet_image() = empty_waste_image; });
        }
        for (int slot = turned_slot() + 2; slot <= last_tablet_slot(); ++slot) {
            then([slot] {
                for (int field = 0; field <= 2; ++field) tablet(slot - 1, field) = tablet(slot, field);
            });
        }
        then([] { last_tablet_slot() -= 1; });
        then([] { score += 1; });
        then([] { show_score(); });
        if (then.holds([] { return tablet_is_turned_for_good(); })) {
            then([] { stock().hide(); });
        }
    });
}

}  // namespace tarnwick

#include "state/variables.h"

namespace tarnwick {

BoundedArray<99, 2> deck;
Layout layout;
Layout saved_layout;
Tablet tablet;
Tablet saved_tablet;
BoundedArray<3, 29> aces;
BoundedArray<7> animation;
BoundedArray<300, 2> undo_list;

Integer score;
Integer drag_source;
float x_scale = 0;
float card_scale = 0;
Integer card_back;
Integer high_score_place;
Phase phase = Phase::playing;
Integer closing;
Integer suppress_help;
Integer resume_after_error;

Card turned_card() {
    const int slot = turned_slot();
    return {tablet(slot, rank_field), tablet(slot, suit_field), tablet(slot, picture_field)};
}

Card column_card(int c, int slot) {
    return {layout(c, slot, rank_field), layout(c, slot, suit_field), layout(c, slot, column_picture_field)};
}

Card top_card(int c) { return column_card(c, column_top(c)); }

Card ace_pile_card(int p) { return {aces(p, rank_field), aces(p, suit_field), aces(p, picture_field)}; }

int empty_ace_piles() {
    int empty = 0;
    for (int p = 0; p <= 3; ++p) empty += ace_pile_is_empty(p) ? 1 : 0;
    return empty;
}

bool all_ace_piles_complete() {
    for (int p = 0; p <= 3; ++p) {
        if (!ace_pile_is_complete(p)) return false;
    }
    return true;
}

}  // namespace tarnwick

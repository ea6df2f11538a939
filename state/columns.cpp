#include "state/columns.h"

namespace tarnwick {

void put_into_slot(int c, int slot, const Card& card) {
    layout(c, slot, rank_field) = card.rank;
    layout(c, slot, suit_field) = card.suit;
    layout(c, slot, face_down_field) = 0;
    layout(c, slot, column_picture_field) = card.picture;
}

void push_on_column(int c, const Card& card) {
    column_top(c) += 1;
    put_into_slot(c, column_top(c), card);
}

}  // namespace tarnwick

#include "state/piles.h"

namespace tarnwick {
namespace {

void put_on_top(int p, const Card& card) {
    aces(p, rank_field) = card.rank;
    aces(p, suit_field) = card.suit;
    aces(p, picture_field) = card.picture;
}

}  // namespace

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

void put_into_tablet(int slot, const Card& card) {
    tablet(slot, rank_field) = card.rank;
    tablet(slot, suit_field) = card.suit;
    tablet(slot, picture_field) = card.picture;
}

int ace_pile_size(int p) {
    if (ace_pile_is_empty(p)) return 0;
    const int last = aces(p, last_used_field);
    return last == picture_field ? 1 : last - beneath_picture_field + 2;
}

void push_on_ace_pile(int p, const Card& card) {
    if (ace_pile_is_empty(p)) {
        start_ace_pile(p, card);
    } else {
        cover_ace_pile(p, card);
    }
}

void start_ace_pile(int p, const Card& card) {
    aces(p, last_used_field) = picture_field;
    put_on_top(p, card);
}

void cover_ace_pile(int p, const Card& card) {
    if (aces(p, last_used_field) == picture_field) {
        aces(p, last_used_field) = beneath_picture_field;
    } else {
        aces(p, last_used_field) += 1;
        for (int i = aces(p, last_used_field); i >= third_picture_field; --i) aces(p, i) = aces(p, i - 1);
    }
    for (int field = rank_field; field <= picture_field; ++field) {
        aces(p, beneath_rank_field + field) = aces(p, field);
    }
    put_on_top(p, card);
}

void pop_ace_pile(int p) {
    if (aces(p, beneath_rank_field) == ace) {
        leave_ace_alone(p);
        return;
    }
    if (lower_rank_is_beneath(p)) {
        uncover_lower_rank(p);
    } else {
        uncover_same_rank(p);
    }
    move_up_on_ace_pile(p);
}

void leave_ace_alone(int p) {
    aces(p, rank_field) = ace;
    aces(p, picture_field) = aces(p, beneath_picture_field);
    aces(p, beneath_rank_field) = none;
    aces(p, last_used_field) = picture_field;
}

bool lower_rank_is_beneath(int p) { return aces(p, rank_field) != aces(p, beneath_rank_field); }

// The rank beneath stays: the pile holds both cards of a rank one after the other.
void uncover_lower_rank(int p) {
    aces(p, rank_field) = aces(p, beneath_rank_field);
    aces(p, picture_field) = aces(p, beneath_picture_field);
}

void uncover_same_rank(int p) {
    aces(p, picture_field) = aces(p, beneath_picture_field);
    aces(p, beneath_rank_field) -= 1;
}

void move_up_on_ace_pile(int p) {
    aces(p, last_used_field) -= 1;
    for (int k = beneath_picture_field; k <= aces(p, last_used_field); ++k) aces(p, k) = aces(p, k + 1);
}

void empty_ace_pile(int p) {
    aces(p, rank_field) = none;
    aces(p, suit_field) = none;
}

}  // namespace tarnwick

#include "state/ace_piles.h"

namespace tarnwick {

void push_on_ace_pile(int p, const Card& card) {
    if (ace_pile_is_empty(p)) {
        aces(p, last_used_field) = picture_field;
    } else {
        if (aces(p, last_used_field) == picture_field) {
            aces(p, last_used_field) = beneath_picture_field;
        } else {
            aces(p, last_used_field) += 1;
            for (int i = aces(p, last_used_field); i >= third_picture_field; --i) aces(p, i) = aces(p, i - 1);
        }
        for (int field = rank_field; field <= picture_field; ++field) {
            aces(p, beneath_rank_field + field) = aces(p, field);
        }
    }
    aces(p, rank_field) = card.rank;
    aces(p, suit_field) = card.suit;
    aces(p, picture_field) = card.picture;
}

void pop_ace_pile(int p) {
    aces(p, picture_field) = aces(p, beneath_picture_field);
    if (aces(p, beneath_rank_field) == ace) {
        aces(p, rank_field) = ace;
        aces(p, beneath_rank_field) = none;
        aces(p, last_used_field) = picture_field;
        return;
    }
    // The pile holds both cards of a rank one after the other: the card beneath tells the rank that follows.
    if (aces(p, rank_field) != aces(p, beneath_rank_field)) {
        aces(p, rank_field) = aces(p, beneath_rank_field);
    } else {
        aces(p, beneath_rank_field) -= 1;
    }
    aces(p, last_used_field) -= 1;
    for (int k = beneath_picture_field; k <= aces(p, last_used_field); ++k) aces(p, k) = aces(p, k + 1);
}

void empty_ace_pile(int p) {
    aces(p, rank_field) = none;
    aces(p, suit_field) = none;
}

}  // namespace tarnwick

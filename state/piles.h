#pragma once

#include "state/variables.h"

namespace tarnwick {

// The fields of columns and ace piles as cards come and go. Nothing is scored or displayed here.

/// Writes a card into a slot of column c, face up. The column's top stays as it is.
void put_into_slot(int c, int slot, const Card& card);
/// Puts a card on top of column c, face up.
void push_on_column(int c, const Card& card);

/// Writes a card into a slot of the tablet.
void put_into_tablet(int slot, const Card& card);

// Ace pile p, 0 to 3.

int ace_pile_size(int p);
/// Puts a card on top.
void push_on_ace_pile(int p, const Card& card);
// Its two cases: the first card, and any other.
void start_ace_pile(int p, const Card& card);
void cover_ace_pile(int p, const Card& card);

/// Takes the top card off a pile of two cards or more.
void pop_ace_pile(int p);
// Its steps. Taking a two off its ace is one of its own; otherwise the card beneath comes to the top, and
// then the cards further down move up.
void leave_ace_alone(int p);
bool lower_rank_is_beneath(int p);
void uncover_lower_rank(int p);
void uncover_same_rank(int p);
void move_up_on_ace_pile(int p);

/// Makes a pile of one card an empty one.
void empty_ace_pile(int p);

}  // namespace tarnwick

#pragma once

#include "state/variables.h"

namespace tarnwick {

// The fields of ace pile p, 0 to 3, as cards come and go. Nothing is scored or displayed here.

/// Puts a card on top.
void push_on_ace_pile(int p, const Card& card);

/// Takes the top card off a pile of two cards or more.
void pop_ace_pile(int p);

/// Makes a pile of one card an empty one.
void empty_ace_pile(int p);

}  // namespace tarnwick

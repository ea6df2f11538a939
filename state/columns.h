#pragma once

#include "state/variables.h"

namespace tarnwick {

/// Writes a card into a slot of column c, face up. The column's top stays as it is.
void put_into_slot(int c, int slot, const Card& card);

/// Puts a card on top of column c, face up. Nothing is scored or displayed.
void push_on_column(int c, const Card& card);

}  // namespace tarnwick

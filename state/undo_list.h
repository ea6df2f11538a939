#pragma once

#include "state/checked_numbers.h"

namespace tarnwick {

/// First number of the record of a turn of the tablet; its third one is the slot turned before.
inline constexpr int turn_record = 25;
/// All three numbers of the record of a card that was turned up; it lies right beneath its move's record.
inline constexpr int turned_up_record = 99;

/// Puts (a, b, c) into the undo list as its newest record and shows the menu entry. A full list loses its
/// oldest record: a move together with the turned-up record that belongs to it.
void add_undo(const Integer& a, const Integer& b, const Integer& c);

/// Takes record `index` out of the list and closes the gap.
void remove_undo_record(int index);

}  // namespace tarnwick

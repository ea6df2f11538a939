#pragma once

#include "state/checked_numbers.h"
#include "state/variables.h"

namespace tarnwick {

/// Whether the rule lets a single card onto column c.
bool column_takes_card(int c, const Card& card);

/// Whether a move from column `source` to column c would be made.
bool column_takes_run_of(int c, int source);

/// The slot of column `source` from which on its cards would go to column c; none when the move would be
/// refused.
int first_slot_to_move(int c, int source);

// Moves that end on column c, 0 to 9. Each checks the rule for columns, moves, scores, draws and records the
// move; the result is false when the move is refused, and nothing has changed then.

/// The turned card of the tablet.
bool from_tablet_to_column(const Integer& c);

/// A card of column `drag_source` with all that lie on it: the one that fits is searched from the top down. A
/// King's run changes places with a whole column that continues it.
bool from_column_to_column(const Integer& c);

/// The top card of ace pile `drag_source` - 12, which costs a point.
bool from_ace_to_column(const Integer& c);

}  // namespace tarnwick

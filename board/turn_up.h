#pragma once

namespace tarnwick {

/// Turns up the top card of column c where that lies face down: one point, and an undo record, which lies
/// beneath that of the move.
void turn_up_top_card(int c);

}  // namespace tarnwick

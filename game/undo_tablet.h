#pragma once

namespace tarnwick {

// Reversing the newest undo record, where the tablet gets a card back or its turn is taken back.

void undo_next_tablet_card();
void undo_from_tablet_to_column();
void undo_from_tablet_to_ace();

}  // namespace tarnwick

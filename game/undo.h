#pragma once

namespace tarnwick {

/// Takes back the newest record of the undo list and removes it; a card that slides to its ace pile lands
/// first. The list must not be empty.
void do_undo();

// Reversing the newest record, for each kind of move; do_undo removes it then.
void undo_next_tablet_card();
void undo_from_tablet_to_column();
void undo_from_tablet_to_ace();
void undo_from_ace_to_column();
void undo_from_column_to_ace();
void undo_from_column_to_column();

}  // namespace tarnwick

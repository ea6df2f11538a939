#pragma once

namespace tarnwick {

// Reversing the newest undo record, where cards go back between columns and ace piles.

void undo_from_ace_to_column();
void undo_from_column_to_ace();
void undo_from_column_to_column();

/// Takes the top card off ace pile p and lays the pile out. A pile that is empty then shows its drop zone
/// again, and the bonus goes back if the card was the fourth ace.
void take_back_from_ace_pile(int p);

}  // namespace tarnwick

#pragma once

namespace tarnwick {

// The peek at a face-down card, which shows its face for a moment.

/// Lets the timer end it; for the start of the program.
void attach_peek();
/// Shows the face of the card behind image `index`, if that is a face-down card. One that is being peeked at
/// is covered, and the moment begins anew.
void peek_at(int index);
bool peek_is_under_way();
/// Whether image `index` shows its face just now.
bool is_peeked_at(int index);
/// Ends a peek that is under way: the back in use, and then the stored one, is put on the card again. Throws
/// ConversionError where what is stored does not read as a number; the peek is over then as well.
void end_peek();
/// None is under way, for a new deal.
void reset_peek();

}  // namespace tarnwick

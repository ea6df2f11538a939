#pragma once

#include <string>

namespace tarnwick {

// What a player is told whose card was refused.

/// Whether to tell it: the player has not put messages off, and the drop is no automatic move. Throws
/// ConversionError where the stored setting does not read as a flag.
bool help_is_wanted();

/// What an ace pile waits for; empty when there is nothing to tell.
std::string help_about_ace_pile(int top_rank, int beneath_rank, int pile_suit);

/// Shows such a message, unless it is empty.
void show_help(const std::string& message);

}  // namespace tarnwick

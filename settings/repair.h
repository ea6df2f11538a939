#pragma once

#include "platform/graphics.h"

namespace tarnwick {

// Stored texts that do not convert: set back at the start, and stood in for later.

/// Sets back every stored text that does not convert for those who read it, and a card back outside 0 to
/// `card_backs` - 1, and tells the player in one message. What is set back is kept under its own key with
/// " (damaged)" behind it. For the start of the program, before anything else is read.
void repair_settings(int card_backs);

// Stored settings as a window needs them when it is loaded or laid out. A text that does not convert must not
// keep it from appearing: the default stands in for it, and the player is told once.

/// @param count  how many card backs there are
int stored_card_back(int count);
Color stored_back_color();
Color stored_text_color();
/// A setting that is on unless it is stored as off.
bool stored_flag(const char* key);

/// Tells about each text that does not convert anew; for the start of the program.
void forget_told_settings();

}  // namespace tarnwick

#pragma once

#include "platform/color.h"

namespace tarnwick {

// Stored settings as a window needs them when it is loaded. A text that does not convert must not keep the window
// from appearing: its default stands in for it, and the player is told.

int stored_card_back();
Color stored_back_color();
Color stored_text_color();
/// A setting that is on unless it is stored as off.
bool stored_flag(const char* key);

}  // namespace tarnwick

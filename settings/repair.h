#pragma once

namespace tarnwick {

/// Sets back every stored text that does not convert for those who read it, and a card back outside 0 to
/// `card_backs` - 1, and tells the player in one message. What is set back is kept under its own key with
/// " (damaged)" behind it. For the start of the program, before anything else is read.
void repair_settings(int card_backs);

}  // namespace tarnwick

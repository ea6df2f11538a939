#pragma once

namespace tarnwick {

// The settings that the player switches on and off, and what each changes when it is off. All are on until
// the player has put them off.

/// "Animate cards". Off: a card that is sent to its ace pile lies there at once, one that nobody received
/// is back at once, and no card is seen on its way. Throws ConversionError.
bool animation_is_on();

/// "Display Messages". Off: a card that an ace pile refuses is refused without a word. Throws
/// ConversionError.
bool messages_are_on();

/// "Scale Cards To Fit Window". Off: cards keep their size in a window of 800 pixels or more. A text that
/// does not convert stands for on, and the player is told once.
bool scaling_is_on();

}  // namespace tarnwick

#pragma once

namespace tarnwick {

// The glint that runs over the ace of Spades, when it comes to lie on top of an ace pile and now and then
// while it lies there.

/// Lets the timer play it; for the start of the program.
void attach_twinkle();
/// Begins the glint.
void begin_twinkle();
bool twinkle_is_under_way();
/// Ends a glint that is under way: the ace is plain at once.
void stop_twinkle();
/// None is under way, for a new deal.
void reset_twinkle();

}  // namespace tarnwick

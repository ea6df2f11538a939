#pragma once

namespace tarnwick {

/// Turns the next five cards of the tablet, or starts a new pass when all have been turned.
void next_tablet_card();

/// Whether a turn would show nothing new: five cards or fewer are left, and the last one is the turned one.
bool tablet_is_turned_for_good();

/// Takes the turned card, which lies on another pile by now, out of the tablet: one point.
void take_from_tablet();

}  // namespace tarnwick

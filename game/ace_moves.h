#pragma once

#include "state/variables.h"

namespace tarnwick {

/// Whether the rule lets a card onto ace pile p, 0 to 3.
bool ace_pile_takes(int p, const Card& card);

/// Puts the card of `drag_source` on ace pile `target` (12 to 15) when the rule allows it, else shows a help
/// message about the pile (unless `suppress_help` or the settings forbid it). True when the card was placed.
/// @param top_rank,beneath_rank,pile_suit  fields of the pile as they stand
/// @param card_rank,card_suit              the card that is offered
/// @param animate                          whether the card may slide to the pile (an automatic move)
bool to_ace(const Integer& target, const Integer& top_rank, const Integer& beneath_rank,
            const Integer& card_rank, const Integer& pile_suit, const Integer& card_suit, bool animate);

/// Moves the turned card of the tablet onto ace pile `target`, records and scores it.
void tablet_to_ace(const Integer& target, bool animate);

/// Moves the top card of column `drag_source` onto ace pile `target`, records and scores it.
void layout_to_ace(const Integer& target, bool animate);

/// Scores the card just placed on ace pile p, with the bonus for the fourth ace, and notices a won game.
void ace_score(const Integer& p, bool animate);

}  // namespace tarnwick

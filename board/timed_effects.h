#pragma once

namespace tarnwick {

// Ending the three timed effects of the table: twinkle, peek and slide.

/// Ends all of them where they are: the ace of Spades plain, the peeked card covered again, the sliding card
/// left where it is, for whoever deals or lays out the cards anew.
void stop_effects();

/// Puts the card back on the face-down card that is being peeked at.
void cover_peeked_card();
/// Covers the peeked card and forgets the peek.
void end_peek();

/// Stops the slide and lays its ace pile out, so that the card has arrived.
void land_slide();

}  // namespace tarnwick

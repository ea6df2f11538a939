#pragma once

namespace tarnwick {

/// Starts a fresh game: resets state and table, builds, shuffles and deals the deck, and draws the columns.
/// What fails in it goes to the caller.
void new_game();

/// Lays the same deal out again, with score, ace piles and undo list as new.
void restart_game();

/// Ends the timed effects where they are: the ace of Spades plain, a peeked card covered again, a sliding
/// card left where it is, for whoever deals or lays out the cards anew. Throws ConversionError as end_peek()
/// does.
void stop_effects();

/// Fills `deck` in order of suits and packs: row i holds picture 200 + i.
void build_deck();

/// Seeds the random generator anew and shuffles `deck`.
void shuffle_deck();

/// Lays `deck` out in columns and tablet, and keeps a copy of both for restart_game.
void deal_cards();

}  // namespace tarnwick

#pragma once

#include "state/cards.h"
#include "state/checked_numbers.h"

namespace tarnwick {

// The whole state of a game. Every routine reads and writes these variables directly.

/// Fields of a card in deck and tablet, and of the top card of an ace pile.
inline constexpr int rank_field = 0;
inline constexpr int suit_field = 1;
inline constexpr int picture_field = 2;

/// The 100 cards in dealing order: rank, suit, picture.
extern BoundedArray<99, 2> deck;

/// The columns: (column, slot, field), slot 0 at the bottom. The fields are rank, suit, face-down flag (1
/// face down), picture. Slot 22 is bookkeeping: its field 0 is the slot of the column's top card, -1 for
/// none.
using Layout = BoundedArray<9, 22, 3>;
extern Layout layout;
extern Layout saved_layout;
inline constexpr int top_slot = 22;
inline constexpr int face_down_field = 2;
inline constexpr int column_picture_field = 3;

/// The tablet: slots 0 to 44 in turning order. Row 45 is bookkeeping, read through the functions below.
using Tablet = BoundedArray<45, 2>;
extern Tablet tablet;
extern Tablet saved_tablet;
inline constexpr int tablet_size = 45;

/// The ace piles: (pile, field). Fields 0 to 2 are the top card and 3 to 5 the one beneath it (rank, suit,
/// picture), 6 to 28 the pictures of those further down, 29 is the highest field in use.
extern BoundedArray<3, 29> aces;
inline constexpr int beneath_rank_field = 3;
inline constexpr int beneath_picture_field = 5;
inline constexpr int third_picture_field = 6;
inline constexpr int last_used_field = 29;

/// The three timed effects, each with fields of its own: board/twinkle, board/peek and board/slide.
extern BoundedArray<7> animation;

/// Undo records of three numbers, 0 the newest; (300, 0) is how many there are.
extern BoundedArray<300, 2> undo_list;
inline constexpr int most_undo_records = 299;

extern Integer score;
/// Pile of the card that is dragged; 99 for none.
extern Integer drag_source;
/// Width of the main window in pixels divided by 800: stretches the table sideways.
extern float x_scale;
/// Size of the cards: x_scale while they are scaled, else 1.
extern float card_scale;
/// The card back in use, 0 to 5.
extern Integer card_back;
/// Place 1 to 5 that the finished game takes among the best scores; 99 for none.
extern Integer high_score_place;
/// How far the game in hand is. One that is counted and has entered the best scores waits for the player's
/// name, then for the end of the table that shows the entry; the next game is dealt after that.
enum class Phase { playing, name_asked, table_shown };
extern Phase phase;
/// Flag: the main window is closing.
extern Integer closing;
/// Flag: the running drop is an automatic move to an ace pile, which gives no help messages.
extern Integer suppress_help;
/// Flag: the player chose to resume at the next failure.
extern Integer resume_after_error;

/// Slot of the column's top card, -1 when it is empty.
inline Integer& column_top(int c) { return layout(c, top_slot, 0); }
inline bool column_is_empty(int c) { return column_top(c) == -1; }

/// Last slot of the tablet that holds a card, -1 when it is empty.
inline Integer& last_tablet_slot() { return tablet(tablet_size, 0); }
/// Slot of the turned card, the one that can be played; -1 when none is turned.
inline Integer& turned_slot() { return tablet(tablet_size, 1); }
/// Image that shows the turned card, or the empty waste place.
inline Integer& shown_tablet_image() { return tablet(tablet_size, 2); }

inline bool ace_pile_is_empty(int p) { return aces(p, rank_field) == none; }
inline bool ace_pile_holds_one_card(int p) { return aces(p, beneath_rank_field) == none; }
/// Both Kings lie on top.
inline bool ace_pile_is_complete(int p) { return aces(p, beneath_rank_field) == king; }
/// How many of the four piles hold no card.
int empty_ace_piles();
bool all_ace_piles_complete();

/// The turned card of the tablet; throws SubscriptOutOfRange when none is turned.
Card turned_card();
/// The card in a slot of column c.
Card column_card(int c, int slot);
/// The top card of column c; throws SubscriptOutOfRange when it is empty.
Card top_card(int c);
/// The top card of ace pile p.
Card ace_pile_card(int p);

inline Integer& undo_count() { return undo_list(300, 0); }

}  // namespace tarnwick

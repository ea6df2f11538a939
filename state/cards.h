#pragma once

namespace tarnwick {

// A card is three numbers: rank, suit, and the number of its picture, which tells the two packs apart.

inline constexpr int ace = 0;
inline constexpr int two = 1;
inline constexpr int jack = 10;
inline constexpr int queen = 11;
inline constexpr int king = 12;

inline constexpr int hearts = 0;
inline constexpr int spades = 1;
inline constexpr int diamonds = 2;
inline constexpr int clubs = 3;

/// Two packs less one ace of each suit.
inline constexpr int card_count = 100;
inline constexpr int cards_per_suit = 25;
inline constexpr int first_picture = 200;

/// Marks none in pile numbers and card fields.
inline constexpr int none = 99;

// Pile numbers: 0 to 9 are the columns.
inline constexpr int last_column = 9;
inline constexpr int first_ace_pile = 12;
inline constexpr int tablet_pile = 16;

constexpr bool opposite_colors(int suit_a, int suit_b) { return (suit_a - suit_b) % 2 != 0; }

/// Whether a card may lie on another one in a column: one rank below it, in the other colour.
constexpr bool builds_on(int rank, int suit, int rank_below, int suit_below) {
    return rank_below - rank == 1 && opposite_colors(suit_below, suit);
}

}  // namespace tarnwick

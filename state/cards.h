#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

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
inline constexpr int last_picture = first_picture + card_count - 1;

/// Marks none in pile numbers and card fields.
inline constexpr int none = 99;

/// A card as the routines hand it on.
struct Card {
    int rank = none;
    int suit = none;
    int picture = none;
};

// Pictures are numbered suit by suit: ace to King of the first pack, then two to King of the second.

constexpr bool is_picture(int picture) { return picture >= first_picture && picture <= last_picture; }
constexpr int suit_of_picture(int picture) { return (picture - first_picture) / cards_per_suit; }
constexpr int rank_of_picture(int picture) {
    const int place = (picture - first_picture) % cards_per_suit;
    return place <= king ? place : place - king;
}
/// The picture of this rank and suit in the first or the second pack. There is one ace of each suit only.
constexpr int picture_of(int rank, int suit, bool second_pack) {
    return first_picture + cards_per_suit * suit + rank + (second_pack && rank != ace ? king : 0);
}
constexpr Card card_of_picture(int picture) {
    return {rank_of_picture(picture), suit_of_picture(picture), picture};
}

// Names in English, as in "Queen of Hearts"; they throw std::out_of_range for what is no rank or suit.

inline std::string rank_name(int rank) {
    constexpr std::array<std::string_view, 13> names{
        "Ace", "2", "3", "4", "5", "6", "7", "8", "9", "10", "Jack", "Queen", "King"};
    return std::string(names.at(static_cast<std::size_t>(rank)));
}
inline std::string suit_name(int suit) {
    constexpr std::array<std::string_view, 4> names{"Hearts", "Spades", "Diamonds", "Clubs"};
    return std::string(names.at(static_cast<std::size_t>(suit)));
}
inline std::string card_name(int rank, int suit) { return rank_name(rank) + " of " + suit_name(suit); }

// Pile numbers: 0 to 9 are the columns.
inline constexpr int last_column = 9;
inline constexpr int first_ace_pile = 12;
inline constexpr int last_ace_pile = 15;
inline constexpr int tablet_pile = 16;

constexpr bool is_column(int pile) { return pile <= last_column; }
constexpr bool is_ace_pile(int pile) { return pile >= first_ace_pile && pile <= last_ace_pile; }

constexpr bool opposite_colors(int suit_a, int suit_b) { return (suit_a - suit_b) % 2 != 0; }

/// Whether a card may lie on another one in a column: one rank below it, in the other colour.
constexpr bool builds_on(const Card& card, const Card& below) {
    return below.rank - card.rank == 1 && opposite_colors(below.suit, card.suit);
}

}  // namespace tarnwick

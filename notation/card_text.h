#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// Cards as text: the rank, the suit, and ' for a card of the second pack, as in K♠, 10♦ or 2♥'. The suit may
// also be written with its letter: h, s, d or c.

/// A card written out.
std::string card_text(int picture);

/// The picture number of a card; throws std::invalid_argument when the text names none.
int card_from_text(std::string_view text);

constexpr int rank_of_picture(int picture) {
    const int k = (picture - 200) % 25;
    return k <= 12 ? k : k - 12;
}
constexpr int suit_of_picture(int picture) { return (picture - 200) / 25; }

/// The card of this rank and suit from the first or the second pack. There is one ace of each suit only.
constexpr int picture_of(int rank, int suit, bool second_pack) {
    return 200 + 25 * suit + rank + (second_pack && rank > 0 ? 12 : 0);
}

}  // namespace tarnwick

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

}  // namespace tarnwick

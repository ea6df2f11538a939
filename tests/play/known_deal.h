#pragma once

#include <cstdint>

namespace tarnwick {

// The columns of this deal end in Q♦ 10♥ K♦ 6♠ A♣ 2♥ J♦ 9♣ 6♦ Q♣.
inline constexpr std::uint32_t known_deal = 26;
inline constexpr int column_of_king = 2;
inline constexpr int column_of_ace = 4;
inline constexpr int column_of_jack = 6;
inline constexpr int column_of_queen = 9;

}  // namespace tarnwick

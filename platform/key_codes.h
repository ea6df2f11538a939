#pragma once

namespace tarnwick {

// The codes that the windows' handlers know keys by. Letters and digits have that of their capital in ASCII.
inline constexpr int enter_key = 13;
inline constexpr int escape_key = 27;
inline constexpr int space_key = 32;
inline constexpr int page_up_key = 33;
inline constexpr int page_down_key = 34;
inline constexpr int end_key = 35;
inline constexpr int home_key = 36;
inline constexpr int left_key = 37;
inline constexpr int up_key = 38;
inline constexpr int right_key = 39;
inline constexpr int down_key = 40;
inline constexpr int f11_key = 122;

}  // namespace tarnwick

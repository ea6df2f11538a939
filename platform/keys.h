#pragma once

namespace tarnwick {

// The keys that the windows know, by their codes.
inline constexpr int enter_key = 13;
inline constexpr int space_key = 32;

}  // namespace tarnwick

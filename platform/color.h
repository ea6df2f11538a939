#pragma once

#include <cstdint>

namespace tarnwick {

/// A colour as the settings keep it: red in the lowest byte, then green, then blue.
using Color = std::int32_t;

constexpr int red_of(Color color) { return color & 0xFF; }
constexpr int green_of(Color color) { return (color >> 8) & 0xFF; }
constexpr int blue_of(Color color) { return (color >> 16) & 0xFF; }

/// The colour with the given parts, each 0 to 255.
constexpr Color color_of(int red, int green, int blue) { return red | (green << 8) | (blue << 16); }

inline constexpr Color black = 0;

}  // namespace tarnwick

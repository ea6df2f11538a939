#pragma once

#include <cstdint>

// What windows are laid out and drawn with: lengths and places, colours, pictures.

namespace tarnwick {

/// Dialogs are laid out in twips, the table in pixels; a pixel is this many twips on every desktop.
inline constexpr int twips_per_pixel = 15;

/// Pixels for a length given in twips.
constexpr float pixels(int twips) { return static_cast<float>(twips) / static_cast<float>(twips_per_pixel); }

/// A whole number of pixels wide and high.
struct PixelSize {
    int width = 0;
    int height = 0;
    bool operator==(const PixelSize&) const = default;
};

/// A place in a window, in pixels from the top left corner of its client area (or of the frame it lies in).
struct Rect {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    float right() const { return left + width; }
    float bottom() const { return top + height; }
    bool empty() const { return width <= 0 || height <= 0; }
    bool contains(float x, float y) const { return x >= left && x < right() && y >= top && y < bottom(); }
    bool operator==(const Rect&) const = default;
};

/// A colour as the settings keep it: red in the lowest byte, then green, then blue.
using Color = std::int32_t;

constexpr int red_of(Color color) { return color & 0xFF; }
constexpr int green_of(Color color) { return (color >> 8) & 0xFF; }
constexpr int blue_of(Color color) { return (color >> 16) & 0xFF; }

/// The colour with the given parts, each 0 to 255.
constexpr Color color_of(int red, int green, int blue) { return red | (green << 8) | (blue << 16); }

inline constexpr Color black = 0;

/// Names one drawing of the program's catalogue; 0 is "no picture". Copying a picture from one widget to
/// another copies this name: what it looks like is the desktop's business.
struct Picture {
    std::uint16_t number = 0;

    bool none() const { return number == 0; }
    bool operator==(const Picture&) const = default;
};

}  // namespace tarnwick

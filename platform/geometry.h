#pragma once

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

}  // namespace tarnwick

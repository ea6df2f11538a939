#include "view/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnwick {
namespace {

constexpr Color white = color_of(255, 255, 255);

// Of every part that a colour can have: asked for far more often than there are any.
std::array<double, 256> linear_parts() {
    std::array<double, 256> parts{};
    for (int part = 0; part < 256; ++part) {
        const double value = part / 255.0;
        parts.at(static_cast<std::size_t>(part)) =
            value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return parts;
}

double linear(int part) {
    static const std::array<double, 256> parts = linear_parts();
    return parts.at(static_cast<std::size_t>(part));
}

double luminance(Color color) {
    return 0.2126 * linear(red_of(color)) + 0.7152 * linear(green_of(color)) +
           0.0722 * linear(blue_of(color));
}

Color laid_over(Color color, Color ground, int opacity) {
    const auto mix = [opacity](int above, int below) { return below + (above - below) * opacity / 255; };
    return color_of(mix(red_of(color), red_of(ground)),
                    mix(green_of(color), green_of(ground)),
                    mix(blue_of(color), blue_of(ground)));
}

}  // namespace

double contrast(Color a, Color b) {
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

Color farthest_from(Color color) { return contrast(black, color) > contrast(white, color) ? black : white; }

int opacity_for(double wanted, Color from, Color color, Color ground) {
    int opacity = 0;
    while (opacity < 255 && contrast(laid_over(color, ground, opacity), from) < wanted) ++opacity;
    return opacity;
}

// Pure black and white, or nearly: other desktops soften one of them.
bool is_high_contrast(Color text, Color ground) {
    constexpr double of_usual_desktops = 19;
    return contrast(text, ground) > of_usual_desktops;
}

StrongLine strong_line(Color wished, Color ground) {
    if (contrast(wished, ground) >= high_contrast) return {wished, std::nullopt};
    const Color color = farthest_from(ground);
    if (contrast(color, ground) >= high_contrast) return {color, std::nullopt};
    return {color, farthest_from(color)};
}

}  // namespace tarnwick

#pragma once

#include <optional>

#include "platform/graphics.h"

namespace tarnwick {

/// What is no text has to stand out so well to be seen by most.
inline constexpr double least_contrast = 3;

/// How well one colour stands out from another, from 1 (not at all) to 21 (black on white).
double contrast(Color a, Color b);

/// Black or white, whichever stands out more from a colour: never less than 4.5 to 1.
Color farthest_from(Color color);

/// The least opacity, of 255, at which `color` laid over `ground` stands out so well from `from`; 255 where
/// it never does.
int opacity_for(double wanted, Color from, Color color, Color ground);

/// High contrast, for those who see little: lines stand out so well at least and are so many pixels wide.
inline constexpr double high_contrast = 7;
inline constexpr int high_contrast_line = 2;

/// Whether that is what a desktop wants whose windows have texts and grounds of these colours.
bool is_high_contrast(Color text, Color ground);

/// A line that is seen in high contrast on its ground, and the rim that it needs where no colour stands out
/// so well from that: line and rim do from each other.
struct StrongLine {
    Color color = black;
    std::optional<Color> rim;
};

/// The same in a wished colour, should that stand out; else in black or white.
StrongLine strong_line(Color wished, Color ground);

}  // namespace tarnwick

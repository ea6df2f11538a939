#pragma once

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

}  // namespace tarnwick

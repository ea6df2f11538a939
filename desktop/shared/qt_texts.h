#pragma once

#include "view/text_measure.h"

namespace tarnwick {

/// Measures texts with the toolkit's fonts, in the desktop's font of the moment where no other is named.
const TextMeasure& qt_texts();

}  // namespace tarnwick

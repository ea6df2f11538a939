#pragma once

#include <QFont>

#include "view/text_measure.h"

namespace tarnwick {

/// The toolkit's font for the one asked for, where `own` is the one in use.
QFont qt_font(const QFont& own, const TextFont& font);

/// The size of a text that is broken into lines.
TextSize qt_wrapped(const QFont& font, const std::string& text, float width);

/// Measures texts with the toolkit's fonts, in the desktop's font of the moment where no other is named.
const TextMeasure& qt_texts();

}  // namespace tarnwick

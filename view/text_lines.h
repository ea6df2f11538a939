#pragma once

#include <string>

#include "view/text_measure.h"

namespace tarnwick {

/// As much of a text as fits before an ellipsis, and the ellipsis, where it does not fit as a whole.
std::string cut(const std::string& text, const TextFont& font, float width, const TextMeasure& measure);

/// The text, made so that even its longest words can be broken into lines.
std::string with_breaks(const std::string& text);

/// The text with line breaks, in as few lines as fit into the width, and these as even as can be: no word is
/// left alone at the end.
std::string evenly_broken(const std::string& text, const TextFont& font, float width,
                          const TextMeasure& measure);

}  // namespace tarnwick

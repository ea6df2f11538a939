#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// A font as a front end is asked for it: the family (empty is the desktop's), the size in pixels (0 is that
/// of the desktop's font), bold or not (nothing is as the desktop's font is).
struct TextFont {
    std::string family;
    float pixels = 0;
    std::optional<bool> bold = std::nullopt;
    bool operator==(const TextFont&) const = default;
};

/// How large a text is, in pixels.
struct TextSize {
    float width = 0;
    float height = 0;
};

/// How much room texts take: what a layout has to ask a front end.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;

    /// The size of the desktop's font, in pixels.
    virtual float desktop_size() const = 0;
    /// The width of a text in one line, and the height of a line.
    virtual float width(const std::string& text, const TextFont& font) const = 0;
    virtual float height(const TextFont& font) const = 0;
    /// The size of a text that is broken between its words into lines no wider than `width`, where its words
    /// allow it.
    virtual TextSize wrapped(const std::string& text, const TextFont& font, float width) const = 0;
};

}  // namespace tarnwick

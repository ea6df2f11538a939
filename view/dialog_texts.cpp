#include "view/dialog_texts.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "view/dialog_names.h"

namespace tarnwick {
namespace {

// Room between a label's text and what comes after it, in pixels.
constexpr float air = 2;

float size_of(const TextFont& font, const TextMeasure& measure) {
    return font.pixels > 0 ? font.pixels : measure.desktop_size();
}

// The least size at which a text in a font of the desktop's size can still be read.
float least_readable(const TextMeasure& measure) { return std::round(measure.desktop_size() / 2); }

// The font, made smaller until `fits` says of it that it fits, but not below `least` pixels.
template <class Fits>
TextFont shrunk(TextFont font, float least, const TextMeasure& measure, Fits fits) {
    while (!fits(font) && size_of(font, measure) > least) {
        font.pixels = std::ceil(size_of(font, measure)) - 1;
    }
    return font;
}

bool has_own_size(const Label& label) { return label.font().points > 0; }

TextFont label_font(const Label& label, double scale) {
    constexpr double pixels_per_point = 96.0 / 72.0;
    const double pixels = static_cast<double>(label.font().points) * pixels_per_point * scale;
    return {label.font().family, static_cast<float>(std::round(pixels)), label.font().bold};
}

bool takes_two_lines(const TextFont& font, PixelSize place, const TextMeasure& measure) {
    return static_cast<float>(place.height) >= 2 * measure.height(font);
}

// Whether a text fits with the room that is left beside it and above and below it, in all.
bool line_fits(const std::string& text, const TextFont& font, PixelSize place, float beside, float above,
               const TextMeasure& measure) {
    return measure.width(text, font) + beside <= static_cast<float>(place.width) &&
           measure.height(font) + above <= static_cast<float>(place.height);
}

bool label_fits(const std::string& text, const TextFont& font, PixelSize place, const TextMeasure& measure) {
    if (!takes_two_lines(font, place, measure)) return line_fits(text, font, place, air, 0, measure);
    const auto width = static_cast<float>(place.width);
    const TextSize needed = measure.wrapped(text, font, width);
    return needed.width <= width && needed.height <= static_cast<float>(place.height);
}

bool fits(const Widget& widget, const TextFont& font, PixelSize place, const DialogMeasure& measure) {
    constexpr float beside_title = 16;
    constexpr float beside_button = 18;
    constexpr float above_button = 6;
    const std::string& text = written_text(widget);
    switch (widget.kind()) {
        case WidgetKind::label:
            return label_fits(text, font, place, measure);
        case WidgetKind::frame:
            return measure.width(text, font) + beside_title <= static_cast<float>(place.width);
        case WidgetKind::button:
            return line_fits(text, font, place, beside_button, above_button, measure);
        case WidgetKind::check_box:
        case WidgetKind::option_button:
            return measure.marked_width(widget.kind(), text, font) <= static_cast<float>(place.width) &&
                   measure.height(font) <= static_cast<float>(place.height);
        case WidgetKind::text_box:
            // A long text is scrolled, and a swatch shows none.
            return static_cast<const TextBox&>(widget).is_swatch() ||
                   measure.height(font) <= static_cast<float>(place.height);
        case WidgetKind::image:
        case WidgetKind::outline:
            break;
    }
    return true;
}

// A font with a size of its own belongs to the layout, and gives way where it is too wide. So does the
// desktop's where the screen has no room for a larger dialog, but only as far as it can be read, a value not
// far, and only where this saves the text from being cut.
TextFont fitting_label_font(const Label& label, PixelSize place, double scale, const TextMeasure& measure) {
    constexpr float least_of_value = 0.75;
    const TextFont font = label_font(label, scale);
    const float least_of_text =
        label.label() ? std::round(least_of_value * measure.desktop_size()) : least_readable(measure);
    const float least = has_own_size(label) ? 1 : least_of_text;
    const auto fits_in = [&](const TextFont& smaller) {
        return label_fits(label.caption(), smaller, place, measure);
    };
    TextFont smaller = shrunk(font, least, measure, fits_in);
    if (fits_in(smaller) || takes_two_lines(smaller, place, measure)) return smaller;
    return shrunk(font, least, measure, [&](const TextFont& lower) {
        return measure.height(lower) <= static_cast<float>(place.height);
    });
}

// Whether a character is part of the letter before it: an accent, a variant, or what joins two.
bool belongs_to_letter_before(std::string_view character) {
    const auto is_between = [&](std::string_view first, std::string_view last) {
        return first <= character && character <= last;
    };
    return is_between("\u0300", "\u036F") || is_between("\uFE00", "\uFE0F") || character == "\u200D";
}

// The letters of a text in UTF-8.
std::vector<std::string> letters_of(const std::string& text) {
    std::vector<std::string> letters;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = begin + 1;
        while (end < text.size() && (text[end] & 0xC0) == 0x80) ++end;
        const std::string character = text.substr(begin, end - begin);
        begin = end;
        if (letters.empty() || !belongs_to_letter_before(character)) {
            letters.push_back(character);
        } else {
            letters.back() += character;
        }
    }
    return letters;
}

// As much of a text as fits before an ellipsis, and the ellipsis, where it does not fit as a whole.
std::string cut(const std::string& text, const TextFont& font, float width, const TextMeasure& measure) {
    if (measure.width(text, font) <= width) return text;
    const std::string ellipsis = "\u2026";
    const float room = width - measure.width(ellipsis, font);
    if (room < 0) return {};
    const std::vector<std::string> letters = letters_of(text);
    std::string shown;
    for (std::size_t i = 0; i + 1 < letters.size(); ++i) {
        // A letter may be drawn nearer to the one that follows.
        const std::string& next = letters[i + 1];
        const std::string longer = shown + letters[i];
        if (measure.width(longer + next, font) - measure.width(next, font) >= room) break;
        shown = longer;
    }
    return shown + ellipsis;
}

// The text, made so that even its longest words can be broken into lines.
std::string with_breaks(const std::string& text) {
    constexpr int longest_word = 30;
    const std::string may_break = "\u200B";
    std::string broken;
    int word = 0;
    for (const std::string& letter : letters_of(text)) {
        word = letter[0] == ' ' ? 0 : word + 1;
        if (word > longest_word) {
            broken += may_break;
            word = 1;
        }
        broken += letter;
    }
    return broken;
}

// Names can be of any length: what does not fit ends in an ellipsis and can be read in full in a tip.
ShownText fitted_label(const Label& label, PixelSize place, double scale, const TextMeasure& measure) {
    const std::string& text = label.caption();
    const TextFont font = fitting_label_font(label, place, scale, measure);
    if (takes_two_lines(font, place, measure)) return {font, text, true, ""};
    if (label_fits(text, font, place, measure)) return {font, text, false, ""};
    return {font, cut(text, font, static_cast<float>(place.width) - air, measure), false, with_breaks(text)};
}

}  // namespace

bool text_fits(const Widget& widget, PixelSize place, const DialogMeasure& measure) {
    if (widget.kind() != WidgetKind::label) return fits(widget, {}, place, measure);
    const auto& label = static_cast<const Label&>(widget);
    return has_own_size(label) || fits(label, label_font(label, 1), place, measure);
}

ShownText fitted_text(const Widget& widget, PixelSize place, double scale, const DialogMeasure& measure) {
    const std::string& text = written_text(widget);
    switch (widget.kind()) {
        case WidgetKind::label:
            return fitted_label(static_cast<const Label&>(widget), place, scale, measure);
        case WidgetKind::button:
        case WidgetKind::check_box:
        case WidgetKind::option_button:
            return {shrunk({},
                           least_readable(measure),
                           measure,
                           [&](const TextFont& font) { return fits(widget, font, place, measure); }),
                    text,
                    false,
                    ""};
        default:
            return {{}, text, false, ""};
    }
}

int least_height(const Widget& widget, const DialogMeasure& measure) {
    const bool is_written_in =
        widget.kind() == WidgetKind::text_box && !static_cast<const TextBox&>(widget).is_swatch();
    return is_written_in ? measure.box_height() : 0;
}

}  // namespace tarnwick

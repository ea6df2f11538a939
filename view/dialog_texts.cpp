#include "view/dialog_texts.h"

#include <algorithm>
#include <cmath>

#include "platform/controls.h"
#include "view/dialog_names.h"
#include "view/text_lines.h"

namespace tarnwick {
namespace {

// Room between a label's text and what comes after it, in pixels; a pixel more may get lost when edges are
// rounded.
constexpr float air = 2;
constexpr float air_before_value = 5;

float size_of(const TextFont& font, const TextMeasure& measure) {
    return font.pixels > 0 ? font.pixels : measure.desktop_size();
}

TextFont no_larger_than(float most, TextFont font, const TextMeasure& measure) {
    if (size_of(font, measure) > most) font.pixels = most;
    return font;
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

bool is_value(const Label& label) { return label.label() != nullptr; }

// What a text is to the other ones of its dialog.
enum class TextRole { none, caption, value, heading };

TextRole role_of(const Widget& widget) {
    switch (widget.kind()) {
        case WidgetKind::label: {
            const auto& label = static_cast<const Label&>(widget);
            if (has_own_size(label)) return TextRole::heading;
            return is_value(label) ? TextRole::value : TextRole::caption;
        }
        case WidgetKind::button:
        case WidgetKind::check_box:
        case WidgetKind::option_button:
            return TextRole::caption;
        default:
            return TextRole::none;
    }
}

// The room that a label leaves at the end of its place, in pixels: its value may begin before it ends.
float air_of(const Label& label, PixelSize place) {
    for (const Widget* widget : label.form().widgets()) {
        const bool follows = widget->top() == label.top() && widget->left() > label.left();
        if (widget->label() != &label || !follows) continue;
        const auto width = static_cast<float>(place.width);
        const float to_value = (widget->left() - label.left()) * width / label.width();
        return std::max(air, width - to_value + air_before_value);
    }
    return air;
}

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

bool label_fits(const Label& label, const TextFont& font, PixelSize place, const TextMeasure& measure) {
    const std::string& text = label.caption();
    if (!takes_two_lines(font, place, measure)) {
        return line_fits(text, font, place, air_of(label, place), 0, measure);
    }
    const auto width = static_cast<float>(place.width);
    const TextSize needed = measure.wrapped(text, font, width);
    return needed.width <= width && needed.height <= static_cast<float>(place.height);
}

bool fits(const Widget& widget, const TextFont& font, PixelSize place, const DialogMeasure& measure) {
    constexpr float beside_title = 16;
    constexpr float beside_button = 18;
    constexpr float above_button = 6;
    constexpr float beside_hint = 12;
    const std::string& text = written_text(widget);
    switch (widget.kind()) {
        case WidgetKind::label:
            return label_fits(static_cast<const Label&>(widget), font, place, measure);
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
                   line_fits(
                       static_cast<const TextBox&>(widget).hint(), font, place, beside_hint, 0, measure);
        case WidgetKind::image:
        case WidgetKind::outline:
            break;
    }
    return true;
}

// A font with a size of its own belongs to the layout, and gives way where it is too wide. So does the
// desktop's where the screen has no room for a larger dialog, but only as far as it can be read, a value not
// far, and only where this saves the text from being cut.
TextFont fitting_label_font(const Label& label, const TextFont& font, PixelSize place,
                            const TextMeasure& measure) {
    constexpr float least_of_value = 0.75;
    const float least_of_text =
        is_value(label) ? std::round(least_of_value * measure.desktop_size()) : least_readable(measure);
    const float least = has_own_size(label) ? 1 : least_of_text;
    const auto fits_in = [&](const TextFont& smaller) { return label_fits(label, smaller, place, measure); };
    TextFont smaller = shrunk(font, least, measure, fits_in);
    if (fits_in(smaller) || takes_two_lines(smaller, place, measure)) return smaller;
    return shrunk(font, least, measure, [&](const TextFont& lower) {
        return measure.height(lower) <= static_cast<float>(place.height);
    });
}

// Names can be of any length: what does not fit ends in an ellipsis and can be read in full in a tip.
ShownText fitted_label(const Label& label, PixelSize place, double scale, float most,
                       const TextMeasure& measure) {
    const std::string& text = label.caption();
    const auto width = static_cast<float>(place.width);
    const TextFont font =
        fitting_label_font(label, no_larger_than(most, label_font(label, scale), measure), place, measure);
    if (takes_two_lines(font, place, measure)) {
        const bool centered = label.alignment() == Alignment::center;
        return {font, centered ? evenly_broken(text, font, width, measure) : text, true, ""};
    }
    if (label_fits(label, font, place, measure)) return {font, text, false, ""};
    return {font, cut(text, font, width - air_of(label, place), measure), false, with_breaks(text)};
}

}  // namespace

bool text_fits(const Widget& widget, PixelSize place, const DialogMeasure& measure) {
    if (widget.kind() != WidgetKind::label) return fits(widget, {}, place, measure);
    const auto& label = static_cast<const Label&>(widget);
    return has_own_size(label) || fits(label, label_font(label, 1), place, measure);
}

ShownText fitted_text(const Widget& widget, PixelSize place, double scale, const DialogMeasure& measure,
                      float most) {
    const std::string& text = written_text(widget);
    switch (widget.kind()) {
        case WidgetKind::label:
            return fitted_label(static_cast<const Label&>(widget), place, scale, most, measure);
        case WidgetKind::button:
        case WidgetKind::check_box:
        case WidgetKind::option_button:
            return {shrunk(no_larger_than(most, {}, measure),
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

bool keeps_to(const Widget& widget, const Widget& other) {
    const TextRole role = role_of(other);
    switch (role_of(widget)) {
        case TextRole::heading:
            return role == TextRole::heading &&
                   static_cast<const Label&>(widget).font() == static_cast<const Label&>(other).font();
        case TextRole::value:
            return role == TextRole::caption || (role == TextRole::value && widget.label() == other.label());
        case TextRole::caption:
            return role == TextRole::caption;
        case TextRole::none:
            break;
    }
    return false;
}

int least_height(const Widget& widget, const DialogMeasure& measure) {
    const bool is_written_in =
        widget.kind() == WidgetKind::text_box && !static_cast<const TextBox&>(widget).is_swatch();
    return is_written_in ? measure.box_height() : 0;
}

}  // namespace tarnwick

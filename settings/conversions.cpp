#include "settings/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace tarnwick {
namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos) return {};
    return std::string_view(text).substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Compares with a word in lower case. Only ASCII letters: a locale has no say in what is stored.
bool is_word(std::string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b;
    });
}

// Takes the decimal digits off the front of a text; false when there is none.
bool take_digits(std::string_view& text) {
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(digits);
    return digits > 0;
}

bool take_one_of(std::string_view& text, std::string_view letters) {
    if (text.empty() || letters.find(text[0]) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

// Whether a text is a number with or without sign, decimals and exponent, and nothing else.
bool is_decimal(std::string_view text) {
    take_one_of(text, "+-");
    bool has_digits = take_digits(text);
    if (take_one_of(text, ".")) has_digits = take_digits(text) || has_digits;
    if (!has_digits) return false;
    if (!take_one_of(text, "eE")) return text.empty();
    take_one_of(text, "+-");
    return take_digits(text) && text.empty();
}

template <class Whole>
Whole to_whole(const std::string& text, const char* kind) {
    // Called with the default rounding mode: to nearest, halves to even.
    const double rounded = std::nearbyint(to_double(text));
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max()) {
        throw ConversionError(text, kind);
    }
    return static_cast<Whole>(rounded);
}

}  // namespace

std::string beginning_of(const std::string& text, std::size_t most_characters) {
    const auto begins_character = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    };
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (begins_character(text[i]) && characters++ == most_characters) return text.substr(0, i) + "…";
    }
    return text;
}

double to_double(const std::string& text) {
    const std::string_view number = trimmed(text);
    if (!is_decimal(number)) throw ConversionError(text, "a number");
    // Not every standard library has std::from_chars for a double. strtod reads the same numbers, with the
    // point of the locale.
    std::string readable(number);
    const std::size_t point = readable.find('.');
    if (point != std::string::npos) readable.replace(point, 1, std::localeconv()->decimal_point);
    const double value = std::strtod(readable.c_str(), nullptr);
    const bool too_small =
        value == 0 &&
        number.substr(0, number.find_first_of("eE")).find_first_of("123456789") != std::string_view::npos;
    if (too_small || !std::isfinite(value)) throw ConversionError(text, "a number");
    return value;
}

std::int16_t to_integer(const std::string& text) {
    return to_whole<std::int16_t>(text, "a whole number of 16 bits");
}

std::int32_t to_long(const std::string& text) {
    return to_whole<std::int32_t>(text, "a whole number of 32 bits");
}

bool to_boolean(const std::string& text) {
    const std::string_view word = trimmed(text);
    if (is_word(word, "true")) return true;
    if (is_word(word, "false")) return false;
    return to_double(text) != 0;
}

std::string text_of(int value) { return std::to_string(value); }

std::string text_of(double value) {
    // The longest double without an exponent has 309 digits before the point.
    std::array<char, 400> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return error == std::errc{} ? std::string(text.data(), end) : std::to_string(value);
}

std::string text_of(bool value) { return value ? "True" : "False"; }

}  // namespace tarnwick

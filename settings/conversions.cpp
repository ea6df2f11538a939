#include "settings/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
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
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; });
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
    std::string_view number = trimmed(text);
    if (number.size() > 1 && number[0] == '+' && number[1] != '-') number.remove_prefix(1);
    double value = 0;
    const char* end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, value);
    if (error != std::errc{} || stop != end || !std::isfinite(value)) throw ConversionError(text, "a number");
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

#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tarnwick {

/// The first characters of a text, with an ellipsis where there are more: what comes from outside may be of
/// any length.
std::string beginning_of(const std::string& text, std::size_t most_characters);

/// A stored text that does not read as the wanted kind of value, or lies outside its range.
class ConversionError : public std::runtime_error {
  public:
    ConversionError(const std::string& text, const char* kind)
        : std::runtime_error("\"" + beginning_of(text, 40) + "\" is not " + kind) {}
};

// Text to value. Blanks around the text do not count; numbers may have a sign, decimals and an exponent, with
// a point whatever the locale. All throw ConversionError.

double to_double(const std::string& text);
/// Decimals are rounded to the nearest whole number, halves to the even one.
std::int16_t to_integer(const std::string& text);
std::int32_t to_long(const std::string& text);
/// "True" and "False" in any letter case, or a number: zero is false, any other true.
bool to_boolean(const std::string& text);

// Value to text.

std::string text_of(int value);
/// The shortest decimal text that reads as the same number; without an exponent.
std::string text_of(double value);
/// "True" or "False".
std::string text_of(bool value);

}  // namespace tarnwick

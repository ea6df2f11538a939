#include "settings/conversions.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

enum class Kind { integer, long_integer, number, boolean };

// A converted value as text, "-" for a text that does not convert.
std::string converted(Kind kind, const std::string& text) {
    try {
        switch (kind) {
            case Kind::integer:
                return text_of(to_integer(text));
            case Kind::long_integer:
                return text_of(to_long(text));
            case Kind::number:
                return text_of(to_double(text));
            case Kind::boolean:
                return text_of(to_boolean(text));
        }
    } catch (const ConversionError&) {
    }
    return "-";
}

TEST(Conversion, OfStoredTexts) {
    const struct {
        const char* text;
        const char* integer;
        const char* long_integer;
        const char* number;
        const char* boolean;
    } cases[] = {
        {"0", "0", "0", "0", "False"},
        {"-1", "-1", "-1", "-1", "True"},
        {"+7", "7", "7", "7", "True"},
        {" 5 ", "5", "5", "5", "True"},
        {"32767", "32767", "32767", "32767", "True"},
        {"32768", "-", "32768", "32768", "True"},
        {"-32769", "-", "-32769", "-32769", "True"},
        {"2147483647", "-", "2147483647", "2147483647", "True"},
        {"2147483648", "-", "-", "2147483648", "True"},
        {"0.5", "0", "0", "0.5", "True"},
        {"1.5", "2", "2", "1.5", "True"},
        {"2.5", "2", "2", "2.5", "True"},
        {"1e3", "1000", "1000", "1000", "True"},
        {"True", "-", "-", "-", "True"},
        {"FALSE", "-", "-", "-", "False"},
        {"tRuE", "-", "-", "-", "True"},
        {"", "-", "-", "-", "-"},
        {"yes", "-", "-", "-", "-"},
        {"5 apples", "-", "-", "-", "-"},
        {"1,5", "-", "-", "-", "-"},
        {"+-5", "-", "-", "-", "-"},
        {"nan", "-", "-", "-", "-"},
        {"inf", "-", "-", "-", "-"},
        {"1e999", "-", "-", "-", "-"},
    };
    for (const auto& [text, integer, long_integer, number, boolean] : cases) {
        EXPECT_EQ(converted(Kind::integer, text), integer) << text;
        EXPECT_EQ(converted(Kind::long_integer, text), long_integer) << text;
        EXPECT_EQ(converted(Kind::number, text), number) << text;
        EXPECT_EQ(converted(Kind::boolean, text), boolean) << text;
    }
}

TEST(Conversion, WritesNumbersShortAndWithoutAnExponent) {
    EXPECT_EQ(text_of(63.5), "63.5");
    EXPECT_EQ(text_of(33.3), "33.3");
    EXPECT_EQ(text_of(17.0), "17");
    EXPECT_EQ(text_of(1e15), "1000000000000000");
    EXPECT_EQ(text_of(-0.1), "-0.1");
}

}  // namespace
}  // namespace tarnwick

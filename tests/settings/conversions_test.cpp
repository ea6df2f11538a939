#include "settings/conversions.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

// A converted value as text, "-" for a text that does not convert.
template <class Convert>
std::string converted(Convert convert, const char* text) {
    try {
        return text_of(convert(text));
    } catch (const ConversionError&) {
        return "-";
    }
}

TEST(Conversion, OfStoredTexts) {
    const struct {
        const char *text, *integer, *long_integer, *number, *boolean;
    } cases[] = {
        {"0", "0", "0", "0", "False"},
        {"-1", "-1", "-1", "-1", "True"},
        {" +7 ", "7", "7", "7", "True"},
        {"32768", "-", "32768", "32768", "True"},
        {"2147483648", "-", "-", "2147483648", "True"},
        {"0.5", "0", "0", "0.5", "True"},
        {"1.5", "2", "2", "1.5", "True"},
        {"True", "-", "-", "-", "True"},
        {"fALSE", "-", "-", "-", "False"},
        {"", "-", "-", "-", "-"},
        {"5 apples", "-", "-", "-", "-"},
        {"1,5", "-", "-", "-", "-"},
        {"nan", "-", "-", "-", "-"},
        {"1e999", "-", "-", "-", "-"},
        {"1e-999", "-", "-", "-", "-"},
        {"0e999", "0", "0", "0", "False"},
        {"-5.", "-5", "-5", "-5", "True"},
        {"\t.5E+1", "5", "5", "5", "True"},
        {"99999999999999999999999999999999999999999999e-43", "10", "10", "10", "True"},
    };
    for (const auto& [text, integer, long_integer, number, boolean] : cases) {
        EXPECT_EQ(converted(to_integer, text), integer) << text;
        EXPECT_EQ(converted(to_long, text), long_integer) << text;
        EXPECT_EQ(converted(to_double, text), number) << text;
        EXPECT_EQ(converted(to_boolean, text), boolean) << text;
    }
    for (const char* text : {".", "-", "+-1", "--1", "e5", "1e", "1e+", "0x10", "inf", "1\v", "1_0"}) {
        EXPECT_EQ(converted(to_double, text), "-") << text;
    }
    EXPECT_EQ(text_of(33.3), "33.3");
    EXPECT_EQ(text_of(1e15), "1000000000000000");
}

}  // namespace
}  // namespace tarnwick

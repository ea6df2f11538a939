#include "notation/outside_text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <system_error>

namespace tarnwick {
namespace {

constexpr std::size_t longest_line = 4096;
constexpr std::size_t longest_excerpt = 40;
constexpr std::size_t longest_character = 4;

struct Range {
    std::uint32_t first;
    std::uint32_t last;
};

// Beyond ASCII: control characters, those that are invisible or turn the direction of the text around,
// surrogates, and what is no character at all.
constexpr std::array<Range, 8> not_printable{{{0x80, 0x9f},
                                              {0x200b, 0x200f},
                                              {0x2028, 0x202e},
                                              {0x2060, 0x206f},
                                              {0xd800, 0xdfff},
                                              {0xfeff, 0xfeff},
                                              {0xfffe, 0xffff},
                                              {0x110000, 0x1fffff}}};

// The number of bytes that the printable character at the start of the text takes; 0 when there is none.
std::size_t printable_bytes(std::string_view text) {
    const auto byte = [&](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(text[i])}; };
    const std::uint32_t lead = byte(0);
    if (lead < 0x80) return lead >= 0x20 && lead != 0x7f ? 1 : 0;
    if (lead < 0xc2 || lead >= 0xf8) return 0;
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (text.size() < length) return 0;
    std::uint32_t code = lead & (0x7fU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0U) != 0x80) return 0;
        code = code << 6U | (byte(i) & 0x3fU);
    }
    constexpr std::array<std::uint32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    if (code < least[length]) return 0;
    const bool hidden = std::any_of(not_printable.begin(), not_printable.end(), [&](const Range& range) {
        return code >= range.first && code <= range.last;
    });
    return hidden ? 0 : length;
}

// Takes the first character off, and gives it back as it is shown.
std::string take_character(std::string_view& text) {
    const std::size_t length = printable_bytes(text);
    std::string shown(text.substr(0, length));
    if (length == 0) {
        constexpr std::string_view digits = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(text[0]);
        shown = {'\\', 'x', digits[byte >> 4U], digits[byte & 15U]};
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
    return shown;
}

}  // namespace

std::string printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) shown += take_character(text);
    return shown;
}

std::string excerpt(std::string_view text) {
    std::string shown;
    for (std::size_t i = 0; i < longest_excerpt && !text.empty(); ++i) shown += take_character(text);
    return text.empty() ? shown : shown + "...";
}

std::string_view without_byte_order_mark(std::string_view text) {
    constexpr std::string_view mark = "\xef\xbb\xbf";
    return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

void check_length(std::string_view line) {
    std::string_view rest = line;
    for (std::size_t i = 0; i < longest_line && !rest.empty(); ++i) take_character(rest);
    if (rest.empty()) return;
    throw std::invalid_argument("more than 4,096 characters in the line that begins with \"" + excerpt(line) +
                                '"');
}

bool read_line(std::istream& stream, std::string& line) {
    line.clear();
    for (char letter = 0; stream.get(letter);) {
        if (letter == '\n') return true;
        line += letter;
        if (line.size() > longest_line * longest_character) return true;
    }
    return !line.empty() && !stream.bad();
}

void flush_standard_output() {
    if (std::cout.flush()) return;
    throw std::runtime_error("the output cannot be written: " + std::generic_category().message(errno));
}

}  // namespace tarnwick

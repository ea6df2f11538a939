#include "view/text_lines.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <vector>

namespace tarnwick {
namespace {

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

struct Lines {
    std::string text;  ///< with a line break after each but the last one
    int count = 1;
    float longest = 0;
};

// The text in lines that are as long as the width allows, but for a word that is longer.
Lines lines_of(const std::string& text, const TextFont& font, float width, const TextMeasure& measure) {
    Lines lines;
    std::string line;
    const auto end_line = [&] {
        lines.text += line;
        lines.longest = std::max(lines.longest, measure.width(line, font));
    };
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        std::string longer = line;
        if (!longer.empty()) longer += ' ';
        longer += word;
        if (line.empty() || measure.width(longer, font) <= width) {
            line = longer;
            continue;
        }
        end_line();
        lines.text += '\n';
        ++lines.count;
        line = word;
    }
    end_line();
    return lines;
}

}  // namespace

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

std::string evenly_broken(const std::string& text, const TextFont& font, float width,
                          const TextMeasure& measure) {
    Lines best = lines_of(text, font, width, measure);
    while (true) {
        const Lines narrower = lines_of(text, font, best.longest - 1, measure);
        if (narrower.count > best.count || narrower.longest >= best.longest) return best.text;
        best = narrower;
    }
}

}  // namespace tarnwick

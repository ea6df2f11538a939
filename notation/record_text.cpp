#include "notation/record_text.h"

#include <charconv>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "notation/outside_text.h"
#include "state/cards.h"

namespace tarnwick {
namespace {

// The words of one line, read from left to right.
class Words {
  public:
    explicit Words(std::string_view line) : stream_(std::string(line.substr(0, line.find('#')))) { next(); }

    bool at_end() const { return word_.empty(); }

    /// Goes on when the next word is this one.
    bool take(const char* word) {
        if (word_ != word) return false;
        next();
        return true;
    }

    std::uint32_t take_number(std::uint32_t most, const char* what) {
        std::uint32_t number = 0;
        const char* end = word_.data() + word_.size();
        const auto [stop, error] = std::from_chars(word_.data(), end, number);
        if (at_end() || error != std::errc{} || stop != end || number > most) {
            throw std::invalid_argument((at_end() ? "the line ends" : '"' + excerpt(word_) + '"') +
                                        " where " + what + " should stand");
        }
        next();
        return number;
    }

    void expect_end() const {
        if (!at_end()) throw std::invalid_argument("\"" + excerpt(word_) + "\" should not stand there");
    }

    const std::string& word() const { return word_; }

  private:
    void next() {
        word_.clear();
        stream_ >> word_;
    }

    std::istringstream stream_;
    std::string word_;
};

int take_pile(Words& words) {
    if (words.take("tablet")) return tablet_pile;
    if (words.take("ace"))
        return first_ace_pile + static_cast<int>(words.take_number(3, "an ace pile, 0 to 3,"));
    return static_cast<int>(words.take_number(last_column, "a pile (0 to 9, tablet, ace 0 to ace 3)"));
}

std::string pile_text(int pile) {
    if (pile == tablet_pile) return "tablet";
    if (pile >= first_ace_pile) return "ace " + std::to_string(pile - first_ace_pile);
    return std::to_string(pile);
}

}  // namespace

bool parse_action(std::string_view line, Action& action) {
    check_length(line);
    Words words(line);
    if (words.at_end()) return false;
    action = {};
    if (words.take("deal")) {
        action.kind = ActionKind::deal;
        action.deal = words.take_number(std::numeric_limits<std::uint32_t>::max(), "the number of a deal");
    } else if (words.take("drag")) {
        action.kind = ActionKind::drag;
        action.source = take_pile(words);
        action.target = take_pile(words);
        constexpr std::uint32_t card_width_in_record = 70;
        if (words.take("at")) {
            action.offset =
                static_cast<int>(words.take_number(card_width_in_record, "a place on a card, 0 to 70,"));
        }
    } else if (words.take("undo")) {
        action.kind = ActionKind::undo;
    } else if (words.take("restart")) {
        action.kind = ActionKind::restart;
    } else if (!words.take("turn")) {
        throw std::invalid_argument("\"" + excerpt(words.word()) +
                                    "\" is none of deal, turn, drag, undo and restart");
    }
    words.expect_end();
    return true;
}

std::vector<Action> parse_record(std::string_view text) {
    std::vector<Action> actions;
    std::istringstream lines{std::string(without_byte_order_mark(text))};
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        Action action;
        try {
            if (!parse_action(line, action)) continue;
            if (actions.empty() && action.kind != ActionKind::deal) {
                throw std::invalid_argument("a record begins with a deal");
            }
        } catch (const std::invalid_argument& fault) {
            throw std::invalid_argument("line " + std::to_string(number) + ": " + fault.what());
        }
        action.line = number;
        actions.push_back(action);
    }
    return actions;
}

std::string text_of(const Action& action) {
    switch (action.kind) {
        case ActionKind::deal:
            return "deal " + std::to_string(action.deal);
        case ActionKind::turn:
            return "turn";
        case ActionKind::undo:
            return "undo";
        case ActionKind::restart:
            return "restart";
        case ActionKind::drag:
            break;
    }
    std::string text = "drag " + pile_text(action.source) + ' ' + pile_text(action.target);
    if (action.offset != Action::default_drop_offset) text += " at " + std::to_string(action.offset);
    return text;
}

}  // namespace tarnwick

#include <algorithm>
#include <charconv>
#include <set>
#include <stdexcept>
#include <string>

#include "notation/card_text.h"
#include "notation/outside_text.h"
#include "notation/position.h"
#include "state/variables.h"

namespace tarnwick {
namespace {

constexpr std::string_view the_rest = "..";

[[noreturn]] void refuse(const std::string& fault) { throw std::invalid_argument(fault); }

std::vector<std::string_view> split(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    for (std::size_t at = 0; (at = text.find_first_not_of(separators, at)) != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(separators, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = end;
    }
    return parts;
}

bool take_off(std::string_view& word, char before, char after) {
    if (word.size() < 2 || word.front() != before || word.back() != after) return false;
    word = word.substr(1, word.size() - 2);
    return true;
}

int number_from(std::string_view text, int least, int most) {
    int number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || stop != text.data() + text.size() || number < least || number > most) {
        refuse("\"" + excerpt(text) + "\" is not a number from " + std::to_string(least) + " to " +
               std::to_string(most));
    }
    return number;
}

class Reader {
  public:
    Position read(std::string_view text) {
        for (const std::string_view line : split(without_byte_order_mark(text), "\n")) {
            if (split(line, " \t\r").empty()) continue;
            check_length(line);
            read_pile(line);
        }
        place_the_rest();
        for (std::size_t c = 0; c < position_.columns.size(); ++c) check_column(c);
        return position_;
    }

  private:
    using Words = std::vector<std::string_view>;

    void read_pile(std::string_view line) {
        const std::size_t colon = line.find(':');
        const Words name = split(line.substr(0, colon), " \t\r");
        if (colon == std::string_view::npos || name.empty()) refuse("no pile in \"" + excerpt(line) + "\"");
        Words words = split(line.substr(colon + 1), " \t\r");
        std::string whole_name(name[0]);
        if (name.size() > 1) whole_name += ' ' + std::string(name[1]);
        if (!lines_.insert(whole_name).second) refuse("two lines for " + excerpt(whole_name));
        if (words == Words{"-"}) words.clear();
        if (name.size() == 2 && name[0] == "ace") {
            read_ace_pile(static_cast<std::size_t>(number_from(name[1], 0, 3)), words);
        } else if (name.size() > 1) {
            refuse("no pile is called \"" + excerpt(whole_name) + "\"");
        } else if (name[0] == "tablet") {
            read_tablet(words);
        } else if (name[0] == "score") {
            if (words.size() != 1) refuse("the score is one number");
            position_.score = number_from(words[0], -1000, 1000);
        } else {
            read_column(static_cast<std::size_t>(number_from(name[0], 0, last_column)), words);
        }
    }

    int name_card(std::string_view word) { return name_picture(card_from_text(word)); }

    int name_picture(int picture) {
        if (!named_.insert(picture).second) refuse(card_text(picture) + " is named twice");
        return picture;
    }

    void read_column(std::size_t c, const Words& words) {
        for (std::size_t i = 0; i < words.size(); ++i) {
            std::string_view word = words[i];
            const bool face_down = take_off(word, '[', ']');
            if (word == the_rest) {
                if (!face_down || i != 0) refuse("in a column, \"[..]\" stands at the bottom only");
                rest_in_column_[c] = true;
            } else {
                position_.columns[c].push_back({name_card(word), face_down});
            }
        }
    }

    void read_tablet(const Words& words) {
        for (std::string_view word : words) {
            if (rest_in_tablet_) refuse("in the tablet, \"..\" stands at the end only");
            if (word == the_rest) {
                rest_in_tablet_ = true;
                continue;
            }
            if (take_off(word, '(', ')')) {
                if (position_.turned != -1) refuse("two turned cards in the tablet");
                position_.turned = static_cast<int>(position_.tablet.size());
            }
            position_.tablet.push_back(name_card(word));
        }
        if (position_.tablet.size() > tablet_size) refuse("more than 45 cards in the tablet");
    }

    void read_ace_pile(std::size_t p, const Words& words) {
        bool fill = false;
        for (const std::string_view word : words) {
            if (word == the_rest) {
                fill = true;
                continue;
            }
            const int picture = card_from_text(word);
            while (fill && next_rank(p) < rank_of_picture(picture)) put_implied_card(p, picture);
            fill = false;
            put_on_ace_pile(p, picture);
        }
        if (fill) refuse("\"..\" on an ace pile wants a card after it");
    }

    // Ace, two, two, three, three ...
    int next_rank(std::size_t p) const { return (static_cast<int>(position_.ace_piles[p].size()) + 1) / 2; }

    void put_implied_card(std::size_t p, int like) {
        const int suit = suit_of_picture(like);
        const int first = picture_of(next_rank(p), suit, false);
        const std::vector<int>& pile = position_.ace_piles[p];
        const bool first_lies = !pile.empty() && pile.back() == first;
        put_on_ace_pile(p, first_lies ? picture_of(next_rank(p), suit, true) : first);
    }

    void put_on_ace_pile(std::size_t p, int picture) {
        std::vector<int>& pile = position_.ace_piles[p];
        if (rank_of_picture(picture) != next_rank(p) ||
            (!pile.empty() && suit_of_picture(picture) != suit_of_picture(pile.back()))) {
            refuse(card_text(picture) + " does not come next on ace pile " + std::to_string(p));
        }
        pile.push_back(name_picture(picture));
    }

    void place_the_rest() {
        std::vector<int> rest;
        for (int picture = first_picture; picture < first_picture + card_count; ++picture) {
            if (!named_.contains(picture)) rest.push_back(picture);
        }
        auto next = rest.begin();
        for (std::size_t c = 0; c < position_.columns.size(); ++c) {
            if (!rest_in_column_[c]) continue;
            auto& column = position_.columns[c];
            const auto face_down = static_cast<std::size_t>(
                std::count_if(column.begin(), column.end(), [](const auto& card) { return card.face_down; }));
            std::vector<Position::ColumnCard> filled;
            for (std::size_t k = face_down; k < c && next != rest.end(); ++k)
                filled.push_back({*next++, true});
            column.insert(column.begin(), filled.begin(), filled.end());
        }
        if (!rest_in_tablet_) return;
        while (next != rest.end() && position_.tablet.size() < tablet_size)
            position_.tablet.push_back(*next++);
    }

    void check_column(std::size_t c) const {
        const auto& column = position_.columns[c];
        const std::string where = " in column " + std::to_string(c);
        if (column.size() > top_slot) refuse("more than 22 cards" + where);
        if (!column.empty() && column.back().face_down) refuse("the top card is face down" + where);
        for (std::size_t s = 0; s < column.size(); ++s) {
            const int picture = column[s].picture;
            const bool face_down = column[s].face_down;
            if (face_down && s >= c) refuse("more face-down cards than are dealt" + where);
            if (s == 0 || column[s - 1].face_down) continue;
            const int below = column[s - 1].picture;
            if (face_down || !builds_on(card_of_picture(picture), card_of_picture(below))) {
                refuse(card_text(picture) + " cannot lie on " + card_text(below) + where);
            }
        }
    }

    Position position_;
    std::set<std::string> lines_;
    std::set<int> named_;
    std::array<bool, 10> rest_in_column_{};
    bool rest_in_tablet_ = false;
};

}  // namespace

Position parse_position(std::string_view text) { return Reader().read(text); }

void set_position(std::string_view text) { set_position(parse_position(text)); }

}  // namespace tarnwick

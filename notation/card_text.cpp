#include "notation/card_text.h"

#include <array>
#include <stdexcept>

#include "notation/outside_text.h"
#include "state/cards.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 13> rank_texts{
    "A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"};
constexpr std::array<std::string_view, 4> suit_signs{"♥", "♠", "♦", "♣"};
constexpr std::array<std::string_view, 4> suit_letters{"h", "s", "d", "c"};

// Which of the texts `rest` begins with, taking it off; none when it begins with none of them.
template <class Texts>
int take_one_of(const Texts& texts, std::string_view& rest) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!rest.starts_with(texts[i])) continue;
        rest.remove_prefix(texts[i].size());
        return static_cast<int>(i);
    }
    return none;
}

}  // namespace

std::string card_text(int picture) {
    const int rank = rank_of_picture(picture);
    const int suit = suit_of_picture(picture);
    std::string text(rank_texts.at(static_cast<std::size_t>(rank)));
    text += suit_signs.at(static_cast<std::size_t>(suit));
    if (picture != picture_of(rank, suit, false)) text += '\'';
    return text;
}

int card_from_text(std::string_view text) {
    std::string_view rest = text;
    const int rank = take_one_of(rank_texts, rest);
    int suit = take_one_of(suit_signs, rest);
    if (suit == none) suit = take_one_of(suit_letters, rest);
    const bool second_pack = rest == "'";
    if (rank == none || suit == none || !(rest.empty() || (second_pack && rank != ace))) {
        throw std::invalid_argument("\"" + excerpt(text) + "\" is not a card");
    }
    return picture_of(rank, suit, second_pack);
}

}  // namespace tarnwick

#include "notation/card_text.h"
#include "notation/position_text.h"
#include "state/cards.h"

namespace tarnwick {
namespace {

std::string line(const std::string& pile, const std::string& cards) {
    return pile + ":" + (cards.empty() ? " -" : cards) + '\n';
}

std::string column_text(const std::vector<Position::ColumnCard>& column) {
    std::string text;
    for (const auto& [picture, face_down] : column) {
        text += face_down ? " [" + card_text(picture) + ']' : ' ' + card_text(picture);
    }
    return text;
}

// Whether the pile's card number i is the one that ".." stands for.
bool is_implied(const std::vector<int>& pile, std::size_t i) {
    const int picture = pile[i];
    return picture == picture_of(rank_of_picture(picture), suit_of_picture(picture), i % 2 == 0);
}

std::string ace_pile_text(const std::vector<int>& pile) {
    std::string text;
    // Those of the top card's rank are always written.
    const std::size_t shown_from = pile.size() < 2 ? 0 : pile.size() / 2 * 2 - 1;
    bool implied = shown_from > 1;
    for (std::size_t i = 1; i < shown_from; ++i) implied = implied && is_implied(pile, i);
    for (std::size_t i = 0; i < pile.size(); ++i) {
        if (implied && i == 1) text += " ..";
        if (!implied || i == 0 || i >= shown_from) text += ' ' + card_text(pile[i]);
    }
    return text;
}

std::string tablet_text(const Position& position) {
    std::string text;
    for (std::size_t i = 0; i < position.tablet.size(); ++i) {
        const std::string card = card_text(position.tablet[i]);
        text += static_cast<int>(i) == position.turned ? " (" + card + ')' : ' ' + card;
    }
    return text;
}

}  // namespace

std::string text_of(const Position& position) {
    std::string text;
    for (std::size_t c = 0; c < position.columns.size(); ++c) {
        text += line(std::to_string(c), column_text(position.columns[c]));
    }
    for (std::size_t p = 0; p < position.ace_piles.size(); ++p) {
        text += line("ace " + std::to_string(p), ace_pile_text(position.ace_piles[p]));
    }
    text += line("tablet", tablet_text(position));
    if (position.score) text += line("score", ' ' + std::to_string(*position.score));
    return text;
}

std::string position_text() { return text_of(current_position()); }

}  // namespace tarnwick

#include "tests/play/rules.h"

#include <algorithm>

#include "notation/card_text.h"
#include "state/cards.h"

namespace tarnwick {
namespace {

using Column = std::vector<Position::ColumnCard>;

bool is_red(int picture) {
    return suit_of_picture(picture) == hearts || suit_of_picture(picture) == diamonds;
}

bool continues(int picture, int below) {
    return rank_of_picture(picture) + 1 == rank_of_picture(below) && is_red(picture) != is_red(below);
}

bool may_lie_on(const Column& column, int picture) {
    if (column.empty()) return rank_of_picture(picture) == king;
    return continues(picture, column.back().picture);
}

bool may_go_to_ace_pile(const std::vector<int>& pile, int picture) {
    const int rank = static_cast<int>(pile.size() + 1) / 2;
    if (rank_of_picture(picture) != rank) return false;
    return pile.empty() || suit_of_picture(pile.back()) == suit_of_picture(picture);
}

bool column_may_move(const Column& from, const Column& to) {
    if (from.empty()) return false;
    for (const auto& [picture, face_down] : from) {
        if (face_down) continue;
        if (may_lie_on(to, picture)) return true;
        const bool king_run = rank_of_picture(picture) == king && !to.empty();
        if (king_run && !to[0].face_down && continues(to[0].picture, from.back().picture)) return true;
    }
    return false;
}

}  // namespace

std::vector<Move> legal_moves(const Position& position) {
    std::vector<Move> moves;
    const auto offer = [&](int from, int picture) {
        for (int p = 0; p <= 3; ++p) {
            const auto& pile = position.ace_piles.at(static_cast<std::size_t>(p));
            if (from < first_ace_pile || from == tablet_pile) {
                if (may_go_to_ace_pile(pile, picture)) moves.push_back({from, first_ace_pile + p});
            }
        }
        for (int c = 0; c <= last_column && from > last_column; ++c) {
            const auto& column = position.columns.at(static_cast<std::size_t>(c));
            if (rank_of_picture(picture) != ace || from == tablet_pile) {
                if (may_lie_on(column, picture)) moves.push_back({from, c});
            }
        }
    };
    for (int c = 0; c <= last_column; ++c) {
        const auto& from = position.columns.at(static_cast<std::size_t>(c));
        if (!from.empty()) offer(c, from.back().picture);
        for (int d = 0; d <= last_column; ++d) {
            if (d != c && column_may_move(from, position.columns.at(static_cast<std::size_t>(d)))) {
                moves.push_back({c, d});
            }
        }
    }
    for (int p = 0; p <= 3; ++p) {
        const auto& pile = position.ace_piles.at(static_cast<std::size_t>(p));
        if (!pile.empty()) offer(first_ace_pile + p, pile.back());
    }
    if (position.turned >= 0)
        offer(tablet_pile, position.tablet.at(static_cast<std::size_t>(position.turned)));
    return moves;
}

Position random_position(std::mt19937& random, int progress) {
    Position position;
    const auto below = [&random](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    std::array<int, 4> suits{hearts, spades, diamonds, clubs};
    std::shuffle(suits.begin(), suits.end(), random);
    std::vector<int> rest;
    for (std::size_t p = 0; p < suits.size(); ++p) {
        const std::size_t height = below(4) == 0 ? below(static_cast<std::size_t>(progress) + 1)
                                                 : static_cast<std::size_t>(progress);
        for (std::size_t i = 0; i < 25; ++i) {
            const int picture = picture_of(static_cast<int>(i + 1) / 2, suits[p], i % 2 == 0);
            (i < height ? position.ace_piles[p] : rest).push_back(picture);
        }
    }
    std::shuffle(rest.begin(), rest.end(), random);
    const auto take = [&rest] {
        const int picture = rest.back();
        rest.pop_back();
        return picture;
    };
    for (std::size_t c = 0; c < 10; ++c) {
        // The tablet must be able to take the cards that are left.
        std::size_t face_down = rest.size() > 45 ? c : below(c + 1);
        if (rest.size() <= 45 && below(3) == 0) continue;
        for (; face_down > 0 && rest.size() > 1; --face_down) position.columns[c].push_back({take(), true});
        if (rest.empty()) break;
        position.columns[c].push_back({take(), false});
        while (!rest.empty() && continues(rest.back(), position.columns[c].back().picture)) {
            position.columns[c].push_back({take(), false});
        }
    }
    position.tablet = rest;
    position.turned = rest.empty() ? -1 : static_cast<int>(below(rest.size() + 1)) - 1;
    return position;
}

}  // namespace tarnwick

#include "notation/position.h"

#include "board/display.h"
#include "board/score.h"
#include "game/deal.h"
#include "game/tablet.h"
#include "notation/card_text.h"
#include "state/piles.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

int index_of(std::size_t place) { return static_cast<int>(place); }

// The plain ace of Spades is only another image of the same card.
int card_shown_by(int image) { return image == plain_ace_image ? ace_of_spades_image : image; }

std::vector<int> cards_of_ace_pile(int p) {
    if (ace_pile_is_empty(p)) return {};
    std::vector<int> from_top{card_shown_by(aces(p, picture_field))};
    for (int field = beneath_picture_field; field <= aces(p, last_used_field); ++field) {
        from_top.push_back(card_shown_by(aces(p, field)));
    }
    return {from_top.rbegin(), from_top.rend()};
}

void clear_cards() {
    for (int c = 1; c <= last_column; ++c) {
        for (int k = 0; k < c; ++k) frmcards.Image1(face_down_image(c, k)).hide();
    }
    for (int i = first_face_image; i <= last_face_image; ++i) frmcards.Image1(i).hide();
}

void set_column(int c, const std::vector<Position::ColumnCard>& cards) {
    column_top(c) = index_of(cards.size()) - 1;
    for (std::size_t s = 0; s < cards.size(); ++s) {
        const int slot = index_of(s);
        put_into_slot(c, slot, card_of_picture(cards[s].picture));
        layout(c, slot, face_down_field) = cards[s].face_down ? 1 : 0;
    }
    redisplay_column(c);
}

void set_ace_pile(int p, const std::vector<int>& cards) {
    for (const int picture : cards) {
        const bool beneath = picture == ace_of_spades_image && cards.size() > 1;
        push_on_ace_pile(
            p,
            {rank_of_picture(picture), suit_of_picture(picture), beneath ? int{plain_ace_image} : picture});
    }
    frmcards.Image1(first_ace_zone + p).set_visible(cards.empty());
    redisplay_aces(p, ace_pile_mode(p));
}

void set_tablet(const std::vector<int>& cards, int turned) {
    for (std::size_t i = 0; i < cards.size(); ++i) put_into_tablet(index_of(i), card_of_picture(cards[i]));
    last_tablet_slot() = index_of(cards.size()) - 1;
    turned_slot() = turned;
    display_turned_card();
    tablet_is_turned_for_good() ? hide_stock() : show_stock();
}

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

Position current_position() {
    Position position;
    for (int c = 0; c <= last_column; ++c) {
        for (int s = 0; s <= column_top(c); ++s) {
            position.columns.at(static_cast<std::size_t>(c))
                .push_back({layout(c, s, column_picture_field), layout(c, s, face_down_field) == 1});
        }
    }
    for (int p = 0; p <= 3; ++p) position.ace_piles.at(static_cast<std::size_t>(p)) = cards_of_ace_pile(p);
    for (int i = 0; i <= last_tablet_slot(); ++i) position.tablet.push_back(tablet(i, picture_field));
    position.turned = turned_slot();
    position.score = score;
    return position;
}

void set_position(const Position& position) {
    restart_game();
    clear_cards();
    for (std::size_t c = 0; c < position.columns.size(); ++c) set_column(index_of(c), position.columns[c]);
    for (std::size_t p = 0; p < position.ace_piles.size(); ++p) {
        set_ace_pile(index_of(p), position.ace_piles[p]);
    }
    set_tablet(position.tablet, position.turned);
    score = position.score.value_or(score_of_state());
    show_score();
    // An ace of Spades that lies alone has begun to twinkle.
    stop_effects();
}

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

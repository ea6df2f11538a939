#include "game/deal.h"

#include <algorithm>
#include <array>

#include "board/display.h"
#include "board/timed_effects.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr int shuffle_passes = 3;

using Cards = std::array<Card, card_count>;

void put_into_deck(int row, int rank, int suit, int picture) {
    deck(row, rank_field) = rank;
    deck(row, suit_field) = suit;
    deck(row, picture_field) = picture;
}

void reset_state() {
    score = 0;
    show_score();
    drag_source = none;
    turned_slot() = -1;
    shown_tablet_image() = empty_waste_image;
    for (int p = 0; p <= 3; ++p) {
        aces(p, rank_field) = none;
        aces(p, suit_field) = none;
        aces(p, beneath_rank_field) = none;
        aces(p, third_picture_field) = none;
    }
    animation(twinkle_frame) = no_twinkle;
    animation(peeked_image) = no_peek;
    animation(slide_wins_game) = 0;
    high_score_place = none;
    phase = Phase::playing;
    closing = flag_false;
    undo_count() = 0;
    resume_after_error = flag_false;
}

void clear_table() {
    // A card that is being dragged belongs to the old deal.
    frmcards.mouse().cancel();
    frmcards.mnuUndo.set_visible(false);
    frmcards.Image1(plain_ace_image).hide();
    for (int i = stock_image; i < first_ace_zone + 4; ++i) frmcards.Image1(i).show();
    frmcards.Image1(stock_image).set_picture(current_back());
    for (int i = first_face_image; i <= last_face_image; ++i) {
        Image& face = frmcards.Image1(i);
        face.set_drag_mode(DragMode::automatic);
        face.hide();
    }
}

// Draws the cards one by one from the first i + 1 rows, back to front, and lays them down in reverse.
void shuffle_once(Cards& cards) {
    Cards drawn;
    for (int i = card_count - 1; i >= 0; --i) {
        const int j = static_cast<int>(static_cast<float>(i + 1) * random_generator().next());
        const auto from = cards.begin() + j;
        drawn[static_cast<std::size_t>(i)] = *from;
        std::copy(from + 1, cards.begin() + i + 1, from);
    }
    std::copy(drawn.rbegin(), drawn.rend(), cards.begin());
}

void deal_to_column(int c, int slot, int row, bool face_down) {
    layout(c, slot, rank_field) = deck(row, rank_field);
    layout(c, slot, suit_field) = deck(row, suit_field);
    layout(c, slot, face_down_field) = face_down ? 1 : 0;
    layout(c, slot, column_picture_field) = deck(row, picture_field);
}

}  // namespace

void build_deck() {
    for (int suit = hearts; suit <= clubs; ++suit) {
        const int base = cards_per_suit * suit;
        for (int rank = ace; rank <= king; ++rank) {
            put_into_deck(base + rank, rank, suit, first_picture + base + rank);
        }
        // The second pack has no aces.
        for (int rank = two; rank <= king; ++rank) {
            put_into_deck(base + king + rank, rank, suit, first_picture + king + base + rank);
        }
    }
}

void shuffle_deck() {
    random_generator().randomize();
    Cards cards;
    for (int row = 0; row < card_count; ++row) {
        cards[static_cast<std::size_t>(row)] = {deck(row, rank_field), deck(row, suit_field),
                                                deck(row, picture_field)};
    }
    for (int pass = 0; pass < shuffle_passes; ++pass) shuffle_once(cards);
    for (int row = 0; row < card_count; ++row) {
        const Card& card = cards[static_cast<std::size_t>(row)];
        put_into_deck(row, card.rank, card.suit, card.picture);
    }
}

void deal_cards() {
    int row = 0;
    for (int c = 0; c <= last_column; ++c) {
        for (int slot = 0; slot <= c; ++slot) deal_to_column(c, slot, row++, slot < c);
        column_top(c) = c;
    }
    for (int slot = 0; slot < tablet_size; ++slot, ++row) {
        for (int field = 0; field <= 2; ++field) tablet(slot, field) = deck(row, field);
    }
    last_tablet_slot() = tablet_size - 1;
    saved_tablet = tablet;
    saved_layout = layout;
}

void new_game() {
    reset_state();
    clear_table();
    build_deck();
    shuffle_deck();
    deal_cards();
    for (int c = 0; c <= last_column; ++c) redisplay_column(c);
    change_back(to_integer(read_setting(key_card_back, default_card_back)));
}

void restart_game() {
    stop_effects();
    reset_state();
    clear_table();
    tablet = saved_tablet;
    layout = saved_layout;
    for (int c = 0; c <= last_column; ++c) redisplay_column(c);
}

}  // namespace tarnwick

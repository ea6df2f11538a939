#include "game/deal.h"

#include <algorithm>
#include <array>

#include "board/display.h"
#include "board/peek.h"
#include "board/score.h"
#include "board/slide.h"
#include "board/twinkle.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "state/piles.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr int shuffle_passes = 3;

using Cards = std::array<Card, card_count>;

Card card_in_deck(int row) {
    return {deck(row, rank_field), deck(row, suit_field), deck(row, picture_field)};
}

void put_into_deck(int row, const Card& card) {
    deck(row, rank_field) = card.rank;
    deck(row, suit_field) = card.suit;
    deck(row, picture_field) = card.picture;
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
    reset_twinkle();
    reset_peek();
    reset_slide();
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
    for (int p = 0; p <= 3; ++p) frmcards.Image1(first_ace_zone + p).show();
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

// Shows the deal as it lies in columns and tablet.
void show_deal() {
    show_stock();
    for (int c = 0; c <= last_column; ++c) redisplay_column(c);
}

}  // namespace

void stop_effects() {
    stop_twinkle();
    end_peek();
    stop_slide();
}

void build_deck() {
    for (int row = 0; row < card_count; ++row) put_into_deck(row, card_of_picture(first_picture + row));
}

void shuffle_deck() {
    random_generator().randomize();
    Cards cards;
    for (int row = 0; row < card_count; ++row) cards[static_cast<std::size_t>(row)] = card_in_deck(row);
    for (int pass = 0; pass < shuffle_passes; ++pass) shuffle_once(cards);
    for (int row = 0; row < card_count; ++row) put_into_deck(row, cards[static_cast<std::size_t>(row)]);
}

void deal_cards() {
    int row = 0;
    for (int c = 0; c <= last_column; ++c) {
        for (int slot = 0; slot <= c; ++slot) {
            put_into_slot(c, slot, card_in_deck(row++));
            layout(c, slot, face_down_field) = slot < c ? 1 : 0;
        }
        column_top(c) = c;
    }
    for (int slot = 0; slot < tablet_size; ++slot) put_into_tablet(slot, card_in_deck(row++));
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
    if (FormView* view = frmcards.view()) view->dealt(frmcards.Image1(stock_image));
    show_deal();
    change_back(to_integer(read_setting(key_card_back, default_card_back)));
}

void restart_game() {
    stop_effects();
    reset_state();
    clear_table();
    tablet = saved_tablet;
    layout = saved_layout;
    show_deal();
}

}  // namespace tarnwick

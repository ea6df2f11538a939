#include "game/drops.h"

#include "board/slide.h"
#include "game/ace_moves.h"
#include "game/column_moves.h"
#include "game/end_game.h"
#include "state/routine.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Left of this, before scaling, lies the tablet. A dragged card and a card dropped on are told by different
// limits; both lie between the turned card and the first ace pile.
constexpr float tablet_source_limit = 200;
constexpr float tablet_target_limit = 150;
// Images with their top above this belong to the top row.
constexpr float column_area_top = 15;
// A refused drop nearer than this to an edge of the image, in pixels, is tried on the neighbour there.
constexpr float left_neighbour_limit = 20;
constexpr float right_neighbour_limit = 41;
static_assert(left_neighbour_limit <= plain_click_offset && plain_click_offset <= right_neighbour_limit);

int column_at(float left) { return whole((left - 4 * x_scale) / (78 * x_scale)); }
int ace_pile_at(float left) { return first_ace_pile + whole((left - 241 * x_scale) / (158 * x_scale)); }

int pile_of(const Image& source) {
    // A card that slides to its ace pile belongs to the pile already, wherever it is seen.
    if (is_sliding(source)) return first_ace_pile + pile_of_slide();
    if (source.top() != static_cast<float>(top_row)) return column_at(source.left());
    if (source.left() < tablet_source_limit * x_scale) return tablet_pile;
    return ace_pile_at(source.left());
}

// The column that is tried when column c refuses a drop.
int neighbour_in_reach(int c, float x_pixels) {
    if (x_pixels < left_neighbour_limit && c > 0) return c - 1;
    if (x_pixels > right_neighbour_limit && c < last_column) return c + 1;
    return none;
}

// An automatic move sends an ace to an empty ace pile, and any other card to the pile of its suit.
int pile_for_ace(const Card& card) {
    if (card.rank != ace) return none;
    for (int k = 0; k <= 3; ++k) {
        if (ace_pile_is_empty(k)) return k;
    }
    return none;
}

int pile_of_suit(const Card& card) {
    if (card.rank == ace) return none;
    for (int k = 0; k <= 3; ++k) {
        if (aces(k, suit_field) == card.suit) return k;
    }
    return none;
}

bool offer_to_ace_pile(int p, const Card& card, bool animate) {
    return to_ace(first_ace_pile + p,
                  aces(p, rank_field),
                  aces(p, beneath_rank_field),
                  card.rank,
                  aces(p, suit_field),
                  card.suit,
                  animate);
}

bool has_card(int pile) {
    if (pile == tablet_pile) return turned_slot() != -1;
    return is_column(pile) ? !column_is_empty(pile) : !ace_pile_is_empty(pile - first_ace_pile);
}

Card card_of(int pile) {
    if (pile == tablet_pile) return turned_card();
    return is_column(pile) ? top_card(pile) : ace_pile_card(pile - first_ace_pile);
}

// Dropped on its own pile, a card is sent up, if an ace pile takes it.
bool is_sent_up(int from) {
    if (is_ace_pile(from)) return false;
    const int p = ace_pile_for(card_of(from));
    return p != none && ace_pile_takes(p, card_of(from));
}

bool takes(int pile, int from) {
    if (pile == tablet_pile) return false;
    if (is_ace_pile(pile)) return !is_ace_pile(from) && ace_pile_takes(pile - first_ace_pile, card_of(from));
    if (is_column(from)) return column_takes_run_of(pile, from);
    if (is_ace_pile(from) && card_of(from).rank < two) return false;
    return column_takes_card(pile, card_of(from));
}

}  // namespace

int ace_pile_for(const Card& card) { return card.rank == ace ? pile_for_ace(card) : pile_of_suit(card); }

Drop drop_of(const Image& source, const Image& target, float x) {
    const int from = pile_of(source);
    // A card in flight passes places that it does not belong to.
    if (is_sliding(target)) return {from, first_ace_pile + pile_of_slide()};
    if (target.top() >= column_area_top) {
        const int c = column_at(target.left());
        return {from, c, neighbour_in_reach(c, x / twips_per_pixel)};
    }
    if (target.left() > tablet_target_limit * x_scale) return {from, ace_pile_at(target.left())};
    return {from, from == tablet_pile ? tablet_pile : none};
}

int receiver_of_drop(const Image& target, const Image& source, float x) {
    const auto [from, first, second] = drop_of(source, target, x);
    if (!has_card(from)) return none;
    for (const int pile : {first, second}) {
        if (pile == none) continue;
        if (pile == from && is_sent_up(from)) return none;
        if (takes(pile, from)) return pile;
    }
    return none;
}

void drop_on_image(int index, const Image& source, float x) {
    if (end_won_game()) return;
    const Drop drop = drop_of(source, frmcards.Image1(index), x);
    drag_source = drop.source;
    const bool moved = drop.first != none && column_to_column(drop.first);
    if (!moved && drop.second != none) column_to_column(drop.second);
}

bool column_to_column(const Integer& target) {
    bool moved = false;
    const bool from_tablet = drag_source == tablet_pile;
    // A window that could not be laid out leads to numbers of no pile: they must fail, not be refused.
    const bool from_column = drag_source < first_ace_pile;
    const bool from_ace_pile = !from_tablet && !from_column;
    resumable(
        "column_to_column",
        [] {
            if (slide_is_under_way()) land_slide();
        },
        when(from_tablet, [&] { moved = from_tablet_to(target); }),
        when(from_ace_pile, [&] { moved = from_ace_to(target); }),
        when(from_column, [&] { moved = from_column_to(target); }));
    return moved;
}

bool from_tablet_to(const Integer& target) {
    const bool home = target == tablet_pile;
    const bool on_ace_pile = !home && target >= first_ace_pile;
    const bool on_column = target < first_ace_pile;
    int p = none;
    bool moved = false;
    resumable(
        "from_tablet_to",
        [] { suppress_help = flag_false; },
        when(home, [] { suppress_help = flag_true; }),
        when(home, [&] { p = pile_for_ace(turned_card()); }),
        when(home, [&] { p = p == none ? pile_of_suit(turned_card()) : p; }),
        when(home, [&] { moved = p != none && offer_to_ace_pile(p, turned_card(), true); }),
        when(on_ace_pile, [&] { moved = offer_to_ace_pile(target - first_ace_pile, turned_card(), false); }),
        when(on_column, [&] { moved = from_tablet_to_column(target); }));
    return moved;
}

bool from_column_to(const Integer& target) {
    const bool on_ace_pile = target >= first_ace_pile;
    const bool home = !on_ace_pile && target == drag_source;
    const bool on_column = !home && !on_ace_pile;
    int p = none;
    bool moved = false;
    resumable(
        "from_column_to",
        [] { suppress_help = flag_false; },
        when(on_ace_pile,
             [&] { moved = offer_to_ace_pile(target - first_ace_pile, top_card(drag_source), false); }),
        when(home, [] { suppress_help = flag_true; }),
        when(home, [&] { p = pile_for_ace(top_card(drag_source)); }),
        when(home, [&] { p = p == none ? pile_of_suit(top_card(drag_source)) : p; }),
        when(home, [&] { moved = p != none && offer_to_ace_pile(p, top_card(drag_source), true); }),
        when(on_column, [&] { moved = from_column_to_column(target); }));
    return moved;
}

bool from_ace_to(const Integer& target) {
    bool moved = false;
    resumable(
        "from_ace_to",
        [&] { return is_column(target) && aces(drag_source - first_ace_pile, rank_field) >= two; },
        [&] { moved = from_ace_to_column(target); });
    return moved;
}

}  // namespace tarnwick

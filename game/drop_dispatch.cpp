#include "game/drop_dispatch.h"

#include "board/display.h"
#include "board/timed_effects.h"
#include "game/ace_moves.h"
#include "game/column_moves.h"
#include "game/end_game.h"
#include "state/rounding.h"
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

int column_at(float left) { return whole((left - 4 * x_scale) / (78 * x_scale)); }
int ace_pile_at(float left) { return first_ace_pile + whole((left - 241 * x_scale) / (158 * x_scale)); }

// A card that slides to its ace pile belongs to the pile already, wherever it is seen.
bool is_sliding(const Image& image) {
    return frmcards.Timer3.enabled() && image.index() == animation(sliding_picture);
}

int pile_of(const Image& source) {
    if (is_sliding(source)) return first_ace_pile + animation(slide_pile);
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

bool offer_to_ace_pile(int p, const Card& card, bool animate) {
    return to_ace(first_ace_pile + p, aces(p, rank_field), aces(p, beneath_rank_field), card.rank,
                  aces(p, suit_field), card.suit, animate);
}

int first_empty_ace_pile() {
    for (int k = 0; k <= 3; ++k) {
        if (ace_pile_is_empty(k)) return k;
    }
    return none;
}

int ace_pile_of_suit(int suit) {
    for (int k = 0; k <= 3; ++k) {
        if (aces(k, suit_field) == suit) return k;
    }
    return none;
}

Card top_card_of_source() { return top_card(drag_source); }

void move_automatically(Statements& then, Card (*card)(), bool& moved) {
    then("give no help", [] { suppress_help = flag_true; });
    int p = none;
    if (then.holds("is the card an ace?", [&] { return card().rank == ace; })) {
        then("find an empty ace pile", [&] { p = first_empty_ace_pile(); });
    } else {
        then("find the ace pile of its suit", [&] { p = ace_pile_of_suit(card().suit); });
    }
    if (p == none) return;
    then("send it there", [&] { moved = offer_to_ace_pile(p, card(), true); });
}

}  // namespace

int ace_pile_for(const Card& card) {
    return card.rank == ace ? first_empty_ace_pile() : ace_pile_of_suit(card.suit);
}

Drop drop_of(const Image& source, const Image& target, float x) {
    const int from = pile_of(source);
    if (target.top() >= column_area_top) {
        // A click on a card in flight is no move to the column that it happens to pass.
        if (&target == &source && is_sliding(source)) return {from, from};
        const int c = column_at(target.left());
        return {from, c, neighbour_in_reach(c, x / twips_per_pixel)};
    }
    if (target.left() > tablet_target_limit * x_scale) {
        // A card in flight passes places that belong to no pile.
        return {from,
                is_sliding(target) ? first_ace_pile + animation(slide_pile) : ace_pile_at(target.left())};
    }
    return {from, from == tablet_pile ? tablet_pile : none};
}

void drop_on_image(int index, const Image& source, float x) {
    const Drop drop = drop_of(source, frmcards.Image1(index), x);
    drag_source = drop.source;
    const bool moved = drop.first != none && column_to_column(drop.first);
    if (!moved && drop.second != none) column_to_column(drop.second);
    settle_landed_win();
}

bool column_to_column(const Integer& target) {
    bool moved = false;
    resumable("column_to_column", [&](Statements& then) {
        then("no move was made", [&] { moved = false; });
        if (then.holds("does a card slide?", [] { return frmcards.Timer3.enabled(); })) {
            then("land it", [] { land_slide(); });
        }
        if (then.holds("does the card come from the tablet?", [] { return drag_source == tablet_pile; })) {
            then("move it from the tablet", [&] { moved = from_tablet_to(target); });
        } else if (then.holds("does it come from an ace pile?",
                              [] { return drag_source >= first_ace_pile; })) {
            then("move it from its ace pile", [&] { moved = from_ace_to(target); });
        } else {
            then("move it from its column", [&] { moved = from_column_to(target); });
        }
    });
    return moved;
}

bool from_tablet_to(const Integer& target) {
    bool moved = false;
    resumable("from_tablet_to", [&](Statements& then) {
        then("help is welcome", [] { suppress_help = flag_false; });
        if (then.holds("is it dropped on the tablet?", [&] { return target == tablet_pile; })) {
            move_automatically(then, turned_card, moved);
        } else if (then.holds("is it dropped on an ace pile?", [&] { return target >= first_ace_pile; })) {
            then("offer it to the ace pile",
                 [&] { moved = offer_to_ace_pile(target - first_ace_pile, turned_card(), false); });
        } else {
            then("offer it to the column", [&] { moved = from_tablet_to_column(target); });
        }
    });
    return moved;
}

bool from_column_to(const Integer& target) {
    bool moved = false;
    resumable("from_column_to", [&](Statements& then) {
        then("help is welcome", [] { suppress_help = flag_false; });
        if (then.holds("is it dropped on an ace pile?", [&] { return target >= first_ace_pile; })) {
            then("offer it to the ace pile",
                 [&] { moved = offer_to_ace_pile(target - first_ace_pile, top_card_of_source(), false); });
        } else if (then.holds("is it dropped on its own column?", [&] { return target == drag_source; })) {
            move_automatically(then, top_card_of_source, moved);
        } else {
            then("offer it to the column", [&] { moved = from_column_to_column(target); });
        }
    });
    return moved;
}

bool from_ace_to(const Integer& target) {
    bool moved = false;
    resumable("from_ace_to", [&](Statements& then) {
        if (then.holds("may the card leave for a column?", [&] {
                return target <= last_column && aces(drag_source - first_ace_pile, rank_field) >= two;
            })) {
            then("offer it to the column", [&] { moved = from_ace_to_column(target); });
        }
    });
    return moved;
}

}  // namespace tarnwick

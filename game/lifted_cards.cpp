#include "game/lifted_cards.h"

#include "board/display.h"
#include "game/column_moves.h"
#include "game/drops.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {

namespace {

Image* image(int picture) { return &frmcards.Image1(picture); }

std::vector<Image*> cards_from(int c, int slot) {
    std::vector<Image*> run;
    for (int s = slot; s <= column_top(c); ++s) run.push_back(image(layout(c, s, column_picture_field)));
    return run;
}

}  // namespace

std::vector<Image*> lifted_cards(Image& dragged) {
    for (int c = 0; c <= last_column; ++c) {
        for (int s = 0; s <= column_top(c); ++s) {
            if (layout(c, s, column_picture_field) == dragged.index()) return cards_from(c, s);
        }
    }
    for (int p = 0; p <= 3; ++p) {
        const bool in_pile = !ace_pile_is_empty(p) && aces(p, beneath_picture_field) == dragged.index();
        if (in_pile && !ace_pile_holds_one_card(p)) return {image(aces(p, picture_field))};
    }
    return {&dragged};
}

std::vector<Image*> moving_cards(const Image& dragged, const Image& target, float x) {
    const int pile = receiver_of_drop(target, dragged, x);
    if (pile == none) return {};
    const int from = drop_of(dragged, target, x).source;
    if (!is_column(from)) return {&top_image(from)};
    return cards_from(from, is_column(pile) ? first_slot_to_move(pile, from) : int{column_top(from)});
}

}  // namespace tarnwick

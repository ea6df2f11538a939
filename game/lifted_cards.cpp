#include "game/lifted_cards.h"

#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {

std::vector<Image*> lifted_cards(Image& dragged) {
    const auto image = [](int picture) { return &frmcards.Image1(picture); };
    for (int c = 0; c <= last_column; ++c) {
        for (int s = 0; s <= column_top(c); ++s) {
            if (layout(c, s, column_picture_field) != dragged.index()) continue;
            std::vector<Image*> run;
            for (int j = s; j <= column_top(c); ++j) run.push_back(image(layout(c, j, column_picture_field)));
            return run;
        }
    }
    for (int p = 0; p <= 3; ++p) {
        const bool in_pile = !ace_pile_is_empty(p) && aces(p, beneath_picture_field) == dragged.index();
        if (in_pile && !ace_pile_holds_one_card(p)) return {image(aces(p, picture_field))};
    }
    return {&dragged};
}

}  // namespace tarnwick

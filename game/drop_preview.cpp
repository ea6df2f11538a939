#include "game/drop_preview.h"

#include "game/ace_moves.h"
#include "game/column_moves.h"
#include "game/drop_dispatch.h"
#include "state/variables.h"

namespace tarnwick {
namespace {

bool has_card(int pile) {
    if (pile == tablet_pile) return turned_slot() != -1;
    if (pile >= first_ace_pile) return !ace_pile_is_empty(pile - first_ace_pile);
    return !column_is_empty(pile);
}

Card card_of(int pile) {
    if (pile == tablet_pile) return turned_card();
    if (pile >= first_ace_pile) return ace_pile_card(pile - first_ace_pile);
    return top_card(pile);
}

// Dropped on its own pile, a card is sent up, if an ace pile takes it.
bool is_sent_up(int from) {
    if (from >= first_ace_pile && from != tablet_pile) return false;
    const int p = ace_pile_for(card_of(from));
    return p != none && ace_pile_takes(p, card_of(from));
}

bool takes(int pile, int from) {
    const bool from_ace_pile = from >= first_ace_pile && from != tablet_pile;
    if (pile == tablet_pile) return false;
    if (pile >= first_ace_pile) return !from_ace_pile && ace_pile_takes(pile - first_ace_pile, card_of(from));
    if (from <= last_column) return column_takes_run_of(pile, from);
    if (from_ace_pile && card_of(from).rank < two) return false;
    return column_takes_card(pile, card_of(from));
}

}  // namespace

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

}  // namespace tarnwick

#include "game/help_messages.h"

#include "platform/desktop.h"
#include "settings/on_off_settings.h"
#include "state/variables.h"

namespace tarnwick {

bool help_is_wanted() { return !suppress_help && messages_are_on(); }

std::string help_about_ace_pile(int top_rank, int beneath_rank, int pile_suit) {
    if (top_rank == none) return "Place a Ace at the bottom of the pile first";
    if (top_rank == king && beneath_rank == king) return {};
    const std::string suit = suit_name(pile_suit);
    if (top_rank == ace) return "Only a 2 of " + suit + " can be placed on the Ace of " + suit;
    if (top_rank == beneath_rank) return "Place a " + card_name(top_rank + 1, pile_suit) + " on top";
    if (top_rank > beneath_rank) return "Place the other " + card_name(top_rank, pile_suit) + " on top";
    return {};
}

void show_help(const std::string& message) {
    if (!message.empty()) desktop().notify({"Tarnwick", message});
}

}  // namespace tarnwick

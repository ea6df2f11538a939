#include "game/ace_messages.h"

#include "state/cards.h"

namespace tarnwick {
namespace {

std::string rank_name(int rank) {
    switch (rank) {
        case jack:
            return "Jack";
        case queen:
            return "Queen";
        case king:
            return "King";
        default:
            return std::to_string(rank + 1);
    }
}

std::string suit_name(int suit) {
    switch (suit) {
        case hearts:
            return "Hearts";
        case spades:
            return "Spades";
        case diamonds:
            return "Diamonds";
        default:
            return "Clubs";
    }
}

}  // namespace

std::string ace_pile_message(int top_rank, int beneath_rank, int pile_suit) {
    const std::string suit = suit_name(pile_suit);
    if (top_rank == none) return "Place a Ace at the bottom of the pile first";
    if (top_rank == ace) return "Only a 2 of " + suit + " can be placed on the Ace of " + suit;
    if (top_rank == king && beneath_rank == king) return {};
    if (top_rank == beneath_rank) return "Place a " + rank_name(top_rank + 1) + " of " + suit + " on top";
    if (top_rank > beneath_rank) return "Place the other " + rank_name(top_rank) + " of " + suit + " on top";
    return {};
}

}  // namespace tarnwick

#pragma once

#include <array>
#include <vector>

#include "view/area.h"
#include "view/board_layers.h"

namespace tarnwick {

/// The soft shadow around a card, which tells the cards of a stack apart, and all cards from the table.
/// @param card  where the card is seen, in device pixels
PaintedShadow card_shadow(const Area& card);

/// What is painted of a card that has a shadow, in device pixels: the part that lies on a card of its column,
/// possibly empty, and the rest.
std::array<Area, 2> shadowed_parts(const PaintedImage& card);

/// Whether a card that is laid on others has a shadow of its own: it has none where one of them, which it
/// covers exactly, throws it already.
bool throws_shadow(const std::vector<PaintedImage>& below, const Area& place);

/// Says of the cards of a list, from the lowest one up, how far each lies on another one of its column.
void lay_in_columns(std::vector<PaintedImage>& cards);

/// What a card or a pile of them covers with its shadow, in pixels.
/// @param width  of a card
Box with_card_shadow(const Box& place, double width);
inline Box with_card_shadow(const Box& card) { return with_card_shadow(card, card.width); }

}  // namespace tarnwick

#pragma once

#include "platform/graphics.h"
#include "platform/image.h"
#include "state/checked_numbers.h"

namespace tarnwick {

// Showing the game: every card is an image of the main window, placed here. Positions are pixels from the top
// left corner of the table; those of the 800 pixels wide design are multiplied by x_scale.

/// Left of the turned card of the tablet, before scaling.
inline constexpr int turned_card_left = 83;

/// Left of ace pile p's top card, and of the one that shows beneath it, before scaling.
constexpr int ace_pile_left(int p) { return 158 * p + 241; }
constexpr int beneath_card_left(int p) { return 158 * p + 220; }

/// How many cards a turn of the tablet brings up.
inline constexpr int cards_per_turn = 5;

/// Places one card image at (left, top) in the size of a card, shows it and brings it to the front.
void display_column(const Integer& image, const Integer& top, const Integer& left);

/// Shows the turned card of the tablet, or the empty place where none is turned.
void display_turned_card();

/// Shows the stock as the tablet has it: a card back, or an empty place when all cards are turned.
void show_stock();
/// The stock gets as thick as there are turns left in it.
void show_stock_depth();
/// The stock is no longer needed.
void hide_stock();

/// Lays out column c, 0 to 9. A face-down card on top is turned up first: one point, and an undo record.
void redisplay_column(const Integer& c);

/// How an ace pile is laid out by redisplay_aces.
inline constexpr int empty_pile_mode = 0;
inline constexpr int single_card_mode = 1;
inline constexpr int stacked_mode = 2;

/// Lays out ace pile p, 0 to 3: single_card_mode when it holds one card, stacked_mode when it holds more; any
/// other mode only places its drop zone and outline.
void redisplay_aces(const Integer& p, const Integer& mode);

/// The mode that fits what ace pile p holds.
int ace_pile_mode(int p);

/// The image seen on top of a pile, or its drop zone (the stock for the tablet) when it is empty.
Image& top_image(int pile);

/// Hides the face of a card.
void hide_face(int picture);

/// Puts card back n, 0 to 5, on the stock and on all face-down cards. An empty place of the stock stays one.
void change_back(const Integer& n);
/// The picture of the card back in use.
Picture back_in_use();

}  // namespace tarnwick

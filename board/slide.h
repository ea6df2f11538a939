#pragma once

#include "platform/image.h"

namespace tarnwick {

// The slide of a card to its ace pile. The card belongs to the pile from the start, and is seen on its way.

/// Lets the timer carry it on; `arrived` is run when the card has come to its pile. For the start of the
/// program.
void attach_slide(void (*arrived)());

/// Where a slide begins decides how many ticks it takes: at the turned card of the tablet, or where the top
/// card of ace pile p, which has left its column, is still seen.
int slide_steps_from_tablet(int p);
int slide_steps_from_column(int p);
/// Begins the slide of the card on top of ace pile p, which lies there alone or not.
void begin_slide(int p, bool alone, int steps);
/// What has just been shown at the place that the card leaves must not cover it.
void keep_sliding_card_in_front();

bool slide_is_under_way();
/// Whether this image is the card that slides just now, and the ace pile, 0 to 3, that it slides to.
bool is_sliding(const Image& image);
int pile_of_slide();

/// Milliseconds until the slide moves this image again; 0 when it does not.
int time_to_next_slide_step(const Image& image);

/// The slide that has begun wins the game when it arrives.
void let_slide_win();
bool slide_wins();

/// Stops the slide where it is, for whoever lays out the cards anew.
void stop_slide();
/// Stops the slide and lays its ace pile out, so that the card has arrived. It wins nothing any more.
void land_slide();
/// None is under way, for a new deal.
void reset_slide();

}  // namespace tarnwick

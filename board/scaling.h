#pragma once

namespace tarnwick {

/// Decides whether the cards are scaled with the window, sets card_scale, and lays the whole table out again.
/// They are when the window is narrower than 800 pixels or the setting "scale cards" is on.
void stretch_cards();

/// Sets x_scale to the width of the main window.
void measure_window();

/// Places the stock with its outline, by the factors as they stand.
void place_stock();

/// Puts the score labels 70 pixels above the lower edge of the main window's frame.
void place_score_labels();

}  // namespace tarnwick

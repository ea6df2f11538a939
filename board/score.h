#pragma once

namespace tarnwick {

/// Changes the score by so many points, and shows it.
void add_to_score(int points);
/// Shows `score` in its label.
void show_score();

/// Points for the ace that fills the last empty ace pile, on top of the point for the card.
inline constexpr int fourth_ace_bonus = 10;

/// The score that belongs to the state: a point for each card that has left the tablet, lies on an ace pile
/// or was turned up, and the bonus once all four aces lie.
int score_of_state();

}  // namespace tarnwick

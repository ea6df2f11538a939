#pragma once

namespace tarnwick {

/// Changes the score by so many points, and shows it.
void add_to_score(int points);
/// Shows `score` in its label.
void show_score();

}  // namespace tarnwick

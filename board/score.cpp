#include "board/score.h"

#include <string>

#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {

void add_to_score(int points) {
    score += points;
    show_score();
}

void show_score() { frmcards.LblScore.set_caption(std::to_string(score)); }

}  // namespace tarnwick

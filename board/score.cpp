#include "board/score.h"

#include <string>

#include "state/piles.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr int dealt_face_down = 45;

int face_down_cards() {
    int count = 0;
    for (int c = 0; c <= last_column; ++c) {
        for (int s = 0; s <= column_top(c); ++s) count += layout(c, s, face_down_field);
    }
    return count;
}

}  // namespace

void add_to_score(int points) {
    score += points;
    show_score();
}

void show_score() { frmcards.LblScore.set_caption(std::to_string(score)); }

int score_of_state() {
    int points = tablet_size - 1 - last_tablet_slot();
    points += dealt_face_down - face_down_cards();
    for (int p = 0; p <= 3; ++p) points += ace_pile_size(p);
    return points + (empty_ace_piles() == 0 ? fourth_ace_bonus : 0);
}

}  // namespace tarnwick

#include "board/display.h"
#include "game/end_game.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// One n-th of the way that is left: with n steps to go, the last one arrives exactly.
float step_towards(float target, float from, int steps) {
    return from + (target - from) / static_cast<float>(steps);
}

void tick_slide() {
    const int steps = animation(slide_steps);
    const int p = animation(slide_pile);
    Image& card = frmcards.Image1(animation(sliding_picture));
    card.bring_to_front();
    card.move(step_towards(frmcards.Shape1(p).left(), card.left(), steps),
              step_towards(top_row, card.top(), steps));
    if (animation(beneath_sliding) != no_card_beneath) {
        Image& beneath = frmcards.Image1(animation(beneath_sliding));
        const float target = static_cast<float>(beneath_card_left(p)) * x_scale;
        beneath.move(step_towards(target, beneath.left(), steps), beneath.top());
    }
    animation(slide_steps) -= 1;
    if (animation(slide_steps) > 0) return;
    finish_slide();
}

}  // namespace

void attach_slide() { frmcards.Timer3.on_tick = tick_slide; }

}  // namespace tarnwick

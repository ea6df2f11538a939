#include "board/display.h"
#include "board/timed_effects.h"
#include "game/end_game.h"
#include "platform/random.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr int frame_time = 30;
constexpr int idle_time = 1000;
// An idle twinkle starts with one tick out of so many.
constexpr int twinkle_odds = 45;

Image& ace_of_spades() { return frmcards.Image1(ace_of_spades_image); }

bool ace_lies_on_top_of_a_pile() {
    constexpr float turned_card_limit = 83.333F;
    // The turned card lies a fraction of a pixel to the right of the limit at some widths.
    return shown_tablet_image() != ace_of_spades_image && ace_of_spades().visible() &&
           ace_of_spades().top() == static_cast<float>(top_row) &&
           ace_of_spades().left() > turned_card_limit * x_scale;
}

void show_twinkle_frame() {
    ace_of_spades().set_picture(frmcards.Image1(animation(twinkle_frame)).picture());
}

void step_twinkle() {
    animation(twinkle_frame) += 1;
    show_twinkle_frame();
    if (animation(twinkle_frame) == plain_ace_image) {
        animation(twinkle_frame) = no_twinkle;
        frmcards.Timer1.set_interval(idle_time);
    }
}

void tick_twinkle() {
    if (animation(twinkle_frame) != no_twinkle) {
        step_twinkle();
        return;
    }
    const int drawn = static_cast<int>(random_generator().next() * twinkle_odds);
    if (drawn != 1 || !ace_lies_on_top_of_a_pile()) return;
    animation(twinkle_frame) = first_twinkle_image;
    show_twinkle_frame();
    frmcards.Timer1.set_interval(frame_time);
}

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

void attach_timers() {
    frmcards.Timer1.on_tick = tick_twinkle;
    frmcards.Timer2.on_tick = end_peek;
    frmcards.Timer3.on_tick = tick_slide;
}

}  // namespace tarnwick

#include "board/display.h"
#include "platform/random.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// An idle twinkle starts with one tick out of so many.
constexpr int twinkle_odds = 45;

Image& ace_of_spades() { return frmcards.Image1(ace_of_spades_image); }

// In the top row, but not as the turned card of the tablet.
bool ace_lies_on_top_of_a_pile() {
    return shown_tablet_image() != ace_of_spades_image && ace_of_spades().visible() &&
           ace_of_spades().top() == static_cast<float>(top_row);
}

void show_twinkle_frame() {
    ace_of_spades().set_picture(frmcards.Image1(animation(twinkle_frame)).picture());
}

void step_twinkle() {
    animation(twinkle_frame) += 1;
    show_twinkle_frame();
    if (animation(twinkle_frame) == plain_ace_image) {
        animation(twinkle_frame) = no_twinkle;
        frmcards.Timer1.set_interval(twinkle_idle_time);
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
    frmcards.Timer1.set_interval(twinkle_frame_time);
}

}  // namespace

void attach_twinkle() { frmcards.Timer1.on_tick = tick_twinkle; }

}  // namespace tarnwick

#include "board/timed_effects.h"

#include "board/display.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void show_stored_back(int image) {
    const int back = to_integer(read_setting(key_card_back, default_card_back));
    frmcards.Image1(image).set_picture(frmcards.ImgCardBacks(back).picture());
}

}  // namespace

void stop_effects() {
    if (animation(twinkle_frame) != no_twinkle) {
        frmcards.Timer1.set_interval(twinkle_idle_time);
        frmcards.Image1(ace_of_spades_image).set_picture(frmcards.Image1(plain_ace_image).picture());
        animation(twinkle_frame) = no_twinkle;
    }
    if (frmcards.Timer2.enabled()) end_peek();
    if (frmcards.Timer3.enabled()) frmcards.Timer3.set_enabled(false);
}

void cover_peeked_card() {
    const int image = animation(peeked_image) - peek_mark;
    // First the back in use: should the stored one not be readable, no face must stay.
    frmcards.Image1(image).set_picture(current_back());
    show_stored_back(image);
}

void end_peek() {
    const int image = animation(peeked_image) - peek_mark;
    frmcards.Image1(image).set_picture(current_back());
    // Ended before the stored card back is read: should that fail, it must not fail again with every tick.
    frmcards.Timer2.set_enabled(false);
    animation(peeked_image) = no_peek;
    show_stored_back(image);
}

void land_slide() {
    frmcards.Timer3.set_enabled(false);
    const bool alone = animation(beneath_sliding) == no_card_beneath;
    redisplay_aces(animation(slide_pile), alone ? single_card_mode : stacked_mode);
}

}  // namespace tarnwick

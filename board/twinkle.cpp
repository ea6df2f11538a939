#include "board/twinkle.h"

#include "platform/random.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Of `animation`: the image of the frame shown last, or none.
constexpr int frame = 0;
constexpr int no_frame = -1;

// The clock, in milliseconds: from frame to frame, and between two looks whether to begin.
constexpr int frame_time = 30;
constexpr int idle_time = 1000;
// One look out of so many begins.
constexpr int odds = 45;

Image& ace_of_spades() { return frmcards.Image1(ace_of_spades_image); }

void show_frame() { ace_of_spades().set_picture(frmcards.Image1(animation(frame)).picture()); }

// In the top row, but not as the turned card of the tablet.
bool ace_lies_on_top_of_a_pile() {
    return shown_tablet_image() != ace_of_spades_image && ace_of_spades().visible() &&
           ace_of_spades().top() == static_cast<float>(top_row);
}

void step() {
    animation(frame) += 1;
    show_frame();
    if (animation(frame) != plain_ace_image) return;
    animation(frame) = no_frame;
    frmcards.Timer1.set_interval(idle_time);
}

void tick() {
    if (twinkle_is_under_way()) return step();
    const int drawn = static_cast<int>(random_generator().next() * odds);
    if (drawn == 1 && ace_lies_on_top_of_a_pile()) begin_twinkle();
}

}  // namespace

void attach_twinkle() { frmcards.Timer1.on_tick = tick; }

void begin_twinkle() {
    animation(frame) = first_twinkle_image;
    show_frame();
    frmcards.Timer1.set_interval(frame_time);
}

bool twinkle_is_under_way() { return animation(frame) != no_frame; }

void stop_twinkle() {
    if (!twinkle_is_under_way()) return;
    frmcards.Timer1.set_interval(idle_time);
    ace_of_spades().set_picture(frmcards.Image1(plain_ace_image).picture());
    reset_twinkle();
}

void reset_twinkle() { animation(frame) = no_frame; }

}  // namespace tarnwick

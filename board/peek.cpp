#include "board/peek.h"

#include "board/display.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Of `animation`: the mark and the image that shows its face, or none.
constexpr int peeked_image = 1;
constexpr int mark = 1000;
constexpr int no_image = 1;

// In milliseconds.
constexpr int peek_time = 1500;

Image& peeked() { return frmcards.Image1(animation(peeked_image) - mark); }

bool is_face_down_image(int index) { return index >= first_face_down_image && index < first_face_image; }

// First the back in use: should the stored one not be readable, no face must stay.
void cover(Image& image) {
    image.set_picture(back_in_use());
    const int stored = to_integer(read_setting(key_card_back, default_card_back));
    image.set_picture(frmcards.ImgCardBacks(stored).picture());
}

void restart_clock() {
    frmcards.Timer2.set_enabled(false);
    frmcards.Timer2.set_enabled(true);
}

}  // namespace

void attach_peek() { frmcards.Timer2.on_tick = end_peek; }

void peek_at(int index) {
    if (!is_face_down_image(index)) return;
    const bool another_shows = peek_is_under_way();
    if (another_shows) cover(peeked());
    const int c = (index - first_face_down_image) / 10;
    const int k = (index - first_face_down_image) % 10;
    frmcards.Image1(index).set_picture(frmcards.Image1(layout(c, k, column_picture_field)).picture());
    if (!another_shows) frmcards.Timer2.set_interval(peek_time);
    restart_clock();
    animation(peeked_image) = mark + index;
}

bool peek_is_under_way() { return animation(peeked_image) >= mark; }

bool is_peeked_at(int index) { return animation(peeked_image) == mark + index; }

void end_peek() {
    if (!frmcards.Timer2.enabled()) return;
    Image& image = peeked();
    // Ended before the stored card back is read: should that fail, it must not fail again with every tick.
    frmcards.Timer2.set_enabled(false);
    reset_peek();
    cover(image);
}

void reset_peek() { animation(peeked_image) = no_image; }

}  // namespace tarnwick

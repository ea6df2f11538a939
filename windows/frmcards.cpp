#include "windows/frmcards.h"

#include <string>

#include "windows/pictures.h"

namespace tarnwick {
namespace {

constexpr Color table_green = 32768;

}  // namespace

Frmcards frmcards;

Frmcards::Frmcards() : Form("frmcards") {
    for (int i = 0; i <= stock_outline; ++i) Shape1.add(i, *this);
    const auto add_image = [this](int index) { Image1.add(index, *this, index, image_events); };
    for (int i = stock_image; i <= empty_waste_image; ++i) add_image(i);
    for (int c = 0; c <= 9; ++c) add_image(first_column_zone + c);
    for (int c = 1; c <= 9; ++c) {
        for (int k = 0; k < c; ++k) add_image(face_down_image(c, k));
    }
    for (int i = first_face_image; i <= last_face_image; ++i) add_image(i);
    for (int i = first_twinkle_image; i <= plain_ace_image; ++i) add_image(i);
    for (int i = 0; i < back_count; ++i) ImgCardBacks.add(i, *this, i, no_events);

    set_menus({{"&File", {&mnuNew, &mnuRestart, &mnuScore, &mnuExit}},
               {"&Settings", {&mnuUndo, &mnuSetings}},
               {"&Help", {&mnuAbout}}});
}

void Frmcards::design() {
    set_caption("Tarnwick at " TARNWICK_ADDRESS);
    set_border(FormBorder::sizable);
    set_back_color(table_green);
    resize_client({9780 / twips_per_pixel, 10830 / twips_per_pixel});
    design_images();
    design_labels();
    design_timers();
    mnuUndo.set_visible(false);
}

void Frmcards::design_images() {
    Image1.for_each([](Image& image) {
        image.reset();
        image.move_twips(0, 0, 852, 1152);
        image.set_visible(image.index() < empty_waste_image ||
                          (image.index() >= first_column_zone && image.index() < first_face_down_image));
    });
    for (int frame = 0; frame < twinkle_frame_count; ++frame) {
        Image1(first_twinkle_image + frame).set_picture(twinkle_picture(frame));
    }
    Image1(plain_ace_image).set_picture(plain_ace_picture());
    Image1(plain_ace_image).set_stretch(true);
    ImgCardBacks.for_each([](Image& image) {
        image.reset();
        image.hide();
        image.set_picture(back_picture(image.index()));
    });
    Shape1.for_each([](Outline& outline) {
        outline.move_twips(0, 0, 852, 1152);
        outline.set_sign(Sign::none);
    });
    for (int p = 0; p < first_column_outline; ++p) Shape1(p).set_sign(Sign::ace);
    for (int c = first_column_outline; c < stock_outline; ++c) Shape1(c).set_sign(Sign::king);
}

void Frmcards::design_labels() {
    const auto design_label = [](Label& label, const std::string& caption, int left, int width) {
        label.set_caption(caption);
        label.move_twips(left, 0, width, 252);
        label.set_back_color(table_green);
    };
    design_label(lblScoreText, "Score:", 120, 492);
    design_label(LblScore, "0", 600, 372);
    design_label(LblScoreMax, "/" + std::to_string(most_points), 1080, 492);
    LblScore.set_alignment(Alignment::right);
}

void Frmcards::design_timers() {
    const auto design_timer = [](Timer& timer, int interval, bool enabled) {
        timer.set_interval(interval);
        timer.set_enabled(enabled);
    };
    design_timer(Timer1, 500, true);    // board/twinkle
    design_timer(Timer2, 1500, false);  // board/peek
    design_timer(Timer3, 30, false);    // board/slide
}

}  // namespace tarnwick

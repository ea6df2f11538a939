#include "board/scaling.h"

#include "board/display.h"
#include "settings/on_off_settings.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

constexpr int design_width = 800;

void set_stretching(bool stretch) {
    for (int i = first_face_image; i <= last_face_image; ++i) frmcards.Image1(i).set_stretch(stretch);
    for (int c = 0; c <= last_column; ++c) frmcards.Image1(first_column_zone + c).set_stretch(stretch);
    for (int c = 1; c <= last_column; ++c) {
        for (int k = 0; k < c; ++k) frmcards.Image1(face_down_image(c, k)).set_stretch(stretch);
    }
    for (int i = stock_image; i <= 4; ++i) frmcards.Image1(i).set_stretch(stretch);
}

}  // namespace

void stretch_cards() {
    const bool wanted = scaling_is_on();
    const bool scaled = frmcards.width() < design_width * twips_per_pixel || wanted;
    set_stretching(scaled);
    card_scale = scaled ? x_scale : 1.0F;
    place_stock();
    if (turned_slot() >= 0) {
        frmcards.Image1(tablet(turned_slot(), picture_field))
            .move(turned_card_left * x_scale, top_row, card_width * card_scale, card_height * card_scale);
    }
    for (int p = 0; p <= 3; ++p) redisplay_aces(p, ace_pile_mode(p));
    for (int c = 0; c <= last_column; ++c) redisplay_column(c);
}

void measure_window() {
    x_scale = static_cast<float>(frmcards.width()) / static_cast<float>(twips_per_pixel * design_width);
}

void place_stock() {
    const float left = 4 * x_scale;
    frmcards.Image1(stock_image).move(left, top_row, card_width * card_scale, card_height * card_scale);
    frmcards.Shape1(stock_outline).move(left, top_row, card_width * card_scale, card_height * card_scale);
}

void place_score_labels() {
    const float top = static_cast<float>(frmcards.height()) / twips_per_pixel - 70;
    for (Label* label : frmcards.score_labels()) label->set_top(top);
}

}  // namespace tarnwick

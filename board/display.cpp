#include "board/display.h"

#include <algorithm>
#include <string>

#include "board/turn_up.h"
#include "board/twinkle.h"
#include "state/routine.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

constexpr int column_left(int c) { return 79 * c + 4; }
constexpr int column_top_edge = 120;
constexpr int slot_offset = 20;

Picture stock_picture() { return turned_slot() == last_tablet_slot() ? Picture{} : back_in_use(); }

// Five cards or fewer that are all turned are turned for good.
void sign_stock(bool shown) {
    const bool turns_over =
        shown && turned_slot() == last_tablet_slot() && last_tablet_slot() >= cards_per_turn;
    frmcards.Shape1(stock_outline).set_sign(turns_over ? Sign::turn : Sign::none);
}

void place_column_card(Image& image, float left, float top, float width, float height) {
    image.move(left, top, width, height);
    image.show();
    image.bring_to_front();
}

void place_single_ace(const Integer& p) {
    // An ace of Spades that is alone again is shown by its own face, which can be dragged.
    if (aces(p, picture_field) == plain_ace_image) {
        aces(p, picture_field) = ace_of_spades_image;
        frmcards.Image1(plain_ace_image).hide();
        frmcards.Image1(ace_of_spades_image).pass(frmcards.Image1(plain_ace_image));
    }
    const int picture = aces(p, picture_field);
    frmcards.Image1(picture).hide();
    frmcards.Image1(first_ace_zone + p).hide();
    display_column(picture, top_row, whole(static_cast<float>(ace_pile_left(p)) * x_scale));
    if (picture == ace_of_spades_image) begin_twinkle();
}

void place_top_two(const Integer& p) {
    if (aces(p, beneath_picture_field) == ace_of_spades_image) {
        aces(p, beneath_picture_field) = plain_ace_image;
        frmcards.Image1(ace_of_spades_image).hide();
        frmcards.Image1(plain_ace_image).pass(frmcards.Image1(ace_of_spades_image));
    }
    // Only a pile of three has a third card; an older value there names a card that lies elsewhere now.
    if (aces(p, last_used_field) >= third_picture_field && aces(p, third_picture_field) != none) {
        frmcards.Image1(aces(p, third_picture_field)).hide();
    }
    const int picture = aces(p, picture_field);
    frmcards.Image1(picture).hide();
    display_column(
        aces(p, beneath_picture_field), top_row, whole(static_cast<float>(beneath_card_left(p)) * x_scale));
    display_column(picture, top_row, whole(static_cast<float>(ace_pile_left(p)) * x_scale));
    frmcards.Image1(picture).show();
}

}  // namespace

void display_column(const Integer& image, const Integer& top, const Integer& left) {
    reporting("display_column", [&] {
        Image& card = frmcards.Image1(image);
        card.move(static_cast<float>(left),
                  static_cast<float>(top),
                  card_width * card_scale,
                  card_height * card_scale);
        card.show();
        card.bring_to_front();
    });
}

void display_turned_card() {
    const int slot = turned_slot();
    shown_tablet_image() = slot == -1 ? empty_waste_image : int{tablet(slot, picture_field)};
    if (slot != -1) display_column(shown_tablet_image(), top_row, whole(turned_card_left * x_scale));
}

void show_stock() {
    Image& stock = frmcards.Image1(stock_image);
    stock.set_picture(stock_picture());
    stock.show();
    show_stock_depth();
    sign_stock(true);
}

void show_stock_depth() {
    const int face_down = last_tablet_slot() - turned_slot();
    frmcards.Image1(stock_image).set_depth(std::max(0, face_down - 1) / cards_per_turn);
}

void hide_stock() {
    frmcards.Image1(stock_image).hide();
    sign_stock(false);
}

void redisplay_column(const Integer& c) {
    reporting("redisplay_column", [&] {
        const int top_card = column_top(c);
        turn_up_top_card(c);
        const float left = static_cast<float>(whole(x_scale * static_cast<float>(column_left(c))));
        const float width = static_cast<float>(whole(card_width * card_scale));
        const float height = static_cast<float>(whole(card_height * card_scale));
        frmcards.Image1(first_column_zone + c)
            .move(static_cast<float>(79 * c) * x_scale, 115 * card_scale, 79 * card_scale, 470 * card_scale);
        frmcards.Shape1(first_column_outline + c).move(left, column_top_edge * card_scale, width, height);
        for (int s = 0; s <= top_card; ++s) {
            const float top = static_cast<float>(slot_offset * s + column_top_edge) * card_scale;
            Image& face = frmcards.Image1(layout(c, s, column_picture_field));
            if (layout(c, s, face_down_field) == 1) {
                place_column_card(frmcards.Image1(face_down_image(c, s)), left, top, width, height);
                face.hide();
            } else {
                place_column_card(face, left, top, width, height);
            }
        }
    });
}

void redisplay_aces(const Integer& p, const Integer& mode) {
    reporting("redisplay_aces", [&] {
        if (mode == single_card_mode) {
            place_single_ace(p);
        } else if (mode == stacked_mode) {
            place_top_two(p);
        }
        // Where cards keep their size in a wide window, the zone reaches to the end of the outline all the
        // same.
        const float zone_width = std::max(120 * card_scale, 25 * x_scale + card_width * card_scale);
        frmcards.Image1(first_ace_zone + p)
            .move(static_cast<float>(158 * p + 216) * x_scale, 5, zone_width, 106 * card_scale);
        frmcards.Shape1(p).move(static_cast<float>(ace_pile_left(p)) * x_scale,
                                top_row,
                                card_width * card_scale,
                                card_height * card_scale);
    });
}

int ace_pile_mode(int p) {
    if (ace_pile_is_empty(p)) return empty_pile_mode;
    return ace_pile_holds_one_card(p) ? single_card_mode : stacked_mode;
}

Image& top_image(int pile) {
    if (pile == tablet_pile) {
        return frmcards.Image1(turned_slot() == -1 ? stock_image : int{shown_tablet_image()});
    }
    if (pile >= first_ace_pile) {
        const int p = pile - first_ace_pile;
        return frmcards.Image1(ace_pile_is_empty(p) ? first_ace_zone + p : int{aces(p, picture_field)});
    }
    if (column_is_empty(pile)) return frmcards.Image1(first_column_zone + pile);
    return frmcards.Image1(layout(pile, column_top(pile), column_picture_field));
}

void hide_face(int picture) { frmcards.Image1(picture).hide(); }

void change_back(const Integer& n) {
    reporting("change_back", [&] {
        const Picture back = frmcards.ImgCardBacks(n).picture();
        card_back = n;
        frmcards.Image1(stock_image).set_picture(stock_picture());
        for (int c = 1; c <= 9; ++c) {
            for (int k = 0; k < c; ++k) frmcards.Image1(face_down_image(c, k)).set_picture(back);
        }
    });
}

Picture back_in_use() { return frmcards.ImgCardBacks(card_back).picture(); }

}  // namespace tarnwick

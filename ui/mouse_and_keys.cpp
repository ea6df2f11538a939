#include <exception>
#include <vector>

#include "board/display.h"
#include "board/peek.h"
#include "board/slide.h"
#include "game/drops.h"
#include "game/lifted_cards.h"
#include "game/tablet.h"
#include "platform/key_codes.h"
#include "settings/conversions.h"
#include "settings/on_off_settings.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void click(int index) {
    if (index == stock_image) next_tablet_card();
}

void key_down(int key_code) {
    if (key_code == space_key && !tablet_is_turned_for_good()) next_tablet_card();
}

// An empty pile is seen by its outline: its drop zone is larger.
const Widget* receiver(const Image& dragged, const Image& target, float x) {
    try {
        const int pile = receiver_of_drop(target, dragged, x);
        if (pile == none) return nullptr;
        if (pile <= last_column && column_is_empty(pile))
            return &frmcards.Shape1(first_column_outline + pile);
        const int p = pile - first_ace_pile;
        if (pile >= first_ace_pile && ace_pile_is_empty(p)) return &frmcards.Shape1(p);
        return &top_image(pile);
    } catch (const std::exception&) {
        // A game that has gone on after an error may be in no order. The move itself will tell.
        return nullptr;
    }
}

std::vector<Image*> taken(const Image& dragged, const Image& target, float x) {
    try {
        return moving_cards(dragged, target, x);
    } catch (const std::exception&) {
        return {};
    }
}

// A text that does not convert must not come in the way of a move; the moves themselves tell about it.
bool motion_is_wanted() {
    try {
        return animation_is_on();
    } catch (const ConversionError&) {
        return false;
    }
}

}  // namespace

void attach_mouse_and_keys() {
    frmcards.image_events.click = click;
    frmcards.image_events.double_click = peek_at;
    frmcards.image_events.drop = [](int index, Image& source, float x, float) {
        drop_on_image(index, source, x);
    };
    frmcards.on_key_down = key_down;
    frmcards.mouse().set_plain_offset(static_cast<float>(plain_click_offset * twips_per_pixel));
    frmcards.mouse().on_lift = lifted_cards;
    frmcards.mouse().on_hover = receiver;
    frmcards.mouse().on_take = taken;
    frmcards.mouse().on_put_back = motion_is_wanted;
    frmcards.on_motion = motion_is_wanted;
    frmcards.on_step = time_to_next_slide_step;
}

}  // namespace tarnwick

#include <string>

#include "board/display.h"
#include "board/scaling.h"
#include "board/table_colors.h"
#include "game/deal.h"
#include "game/end_game.h"
#include "platform/desktop.h"
#include "settings/on_off_settings.h"
#include "settings/repair.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// The window leaves this much of the screen free; where the screen is narrower than the smallest window, that
// is taken all the same.
constexpr int screen_margin = 10;
constexpr PixelSize smallest_window{800, 600};

void show_faces() {
    for (int picture = first_picture; picture <= last_picture; ++picture) {
        frmcards.Image1(picture).set_picture(
            face_picture(suit_of_picture(picture), rank_of_picture(picture)));
    }
}

void size_to_screen() {
    const PixelSize screen = desktop().screen_size();
    if (screen.width >= smallest_window.width) {
        frmcards.resize({screen.width - screen_margin, screen.height - screen_margin});
    } else {
        frmcards.resize(smallest_window);
    }
}

void load() {
    place_stock();
    change_back(stored_card_back(back_count));
    set_table_color(stored_back_color());
    set_text_color(stored_text_color());
    show_faces();
    size_to_screen();
    measure_window();
    card_scale = scaling_is_on() ? x_scale : 1.0F;
    place_score_labels();
    new_game();
}

void resize() {
    place_score_labels();
    if (frmcards.state() == WindowState::minimized) return;
    measure_window();
    stretch_cards();
}

void unload() {
    closing = flag_true;
    end_game();
}

}  // namespace

void attach_main_window() {
    frmcards.on_load = load;
    frmcards.on_resize = resize;
    frmcards.on_unload = unload;
}

}  // namespace tarnwick

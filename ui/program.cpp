#include "ui/program.h"

#include <array>

#include "board/peek.h"
#include "board/slide.h"
#include "board/twinkle.h"
#include "game/end_game.h"
#include "platform/desktop.h"
#include "settings/repair.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmBestScore.h"
#include "windows/frmCommon.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

std::array<Form*, 6> all_windows() {
    return {&frmcards, &frmyouwin, &frmBestScore, &frmFeatures, &frmError, &frmCommon};
}

Store* store_in_use = nullptr;

// Tries again to store what could not be stored at once, as long as there is anything: whatever dialog or
// message is open, for nobody can know how soon it is answered.
void try_again_in_background() {
    desktop().run_in_background([] {
        // Within an event: what the store has to say is shown when it has done its work.
        desktop().event([] { store_in_use->try_again(); });
        if (store_in_use && !store_in_use->waits()) desktop().run_in_background(nullptr);
    });
}

void attach_store(Store& store) {
    store_in_use = &store;
    store.on_waiting = try_again_in_background;
    if (store.waits()) try_again_in_background();
}

void detach_store() {
    if (!store_in_use) return;
    desktop().run_in_background(nullptr);
    store_in_use->on_waiting = nullptr;
    store_in_use->listen(nullptr);
    store_in_use = nullptr;
}

}  // namespace

void start_program(Store& store) {
    use_store(&store);
    forget_told_settings();
    attach_main_window();
    attach_mouse_and_keys();
    attach_board_names();
    attach_twinkle();
    attach_peek();
    attach_slide(finish_slide);
    attach_menus();
    attach_error_dialog();
    attach_win_dialog();
    attach_statistics_dialog();
    attach_settings_dialog();
    desktop().event([] {
        repair_settings(back_count);
        frmcards.show();
    });
    attach_store(store);
    store.listen([](const std::string& sentence) {
        desktop().after_event([sentence] { desktop().notify({"Tarnwick", sentence}); });
    });
}

void shut_down_program() {
    desktop().leave_unattended();
    // Each in an event of its own: a window that fails at its end keeps no other from its own.
    const auto unload = [](Form& form) { desktop().event([&form] { form.unload(); }); };
    desktop().event([&unload] {
        // The name typed so far is recorded before the main window ends the game: that is counted already.
        unload(frmyouwin);
        for (Form* form : all_windows()) unload(*form);
    });
}

void end_program() {
    // The next program is not to be told the answers.
    desktop().cancel_questions();
    for (Form* form : all_windows()) {
        form->on_unload = nullptr;
        form->unload();
    }
    detach_store();
    use_store(nullptr);
    // A program starts with its variables zero: the next one must not lay out the cards of this game at
    // first.
    layout = {};
    tablet = {};
    aces = {};
    phase = Phase::playing;
    x_scale = card_scale = 0;
}

}  // namespace tarnwick

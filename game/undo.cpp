#include "game/undo.h"

#include "board/display.h"
#include "board/timed_effects.h"
#include "game/end_game.h"
#include "game/undo_moves.h"
#include "game/undo_tablet.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void reverse_newest_record() {
    const int a = undo_list(0, 0);
    const int b = undo_list(0, 1);
    const bool to_ace_pile = b >= first_ace_pile;
    // A turned-up record goes with its move; alone, after a failure, there is nothing that it could take
    // back.
    if (a == turned_up_record) return;
    if (a == turn_record) {
        undo_next_tablet_card();
    } else if (a == tablet_pile) {
        to_ace_pile ? undo_from_tablet_to_ace() : undo_from_tablet_to_column();
    } else if (a >= first_ace_pile) {
        undo_from_ace_to_column();
    } else {
        to_ace_pile ? undo_from_column_to_ace() : undo_from_column_to_column();
    }
}

}  // namespace

void do_undo() {
    if (end_won_game()) return;
    if (frmcards.Timer3.enabled()) land_slide();
    reverse_newest_record();
    remove_undo_record(0);
    if (undo_count() < 1) frmcards.mnuUndo.set_visible(false);
}

}  // namespace tarnwick

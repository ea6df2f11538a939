#include "state/undo_list.h"

#include "state/routine.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void drop_oldest_record() {
    const bool turned_up = undo_list(most_undo_records - 1, 0) == turned_up_record;
    // Without its turned-up record the move could not be taken back whole.
    undo_count() = most_undo_records - (turned_up ? 2 : 1);
}

}  // namespace

void add_undo(const Integer& a, const Integer& b, const Integer& c) {
    reporting("add_undo", [&] {
        if (undo_count() < 0) undo_count() = 0;
        if (undo_count() == most_undo_records) drop_oldest_record();
        for (int i = undo_count(); i >= 0; --i) {
            for (int field = 0; field <= 2; ++field) undo_list(i + 1, field) = undo_list(i, field);
        }
        undo_list(0, 0) = a;
        undo_list(0, 1) = b;
        undo_list(0, 2) = c;
        undo_count() += 1;
        frmcards.mnuUndo.set_visible(true);
    });
}

void remove_undo_record(int index) {
    undo_count() -= 1;
    for (int i = index; i < undo_count(); ++i) {
        for (int field = 0; field <= 2; ++field) undo_list(i, field) = undo_list(i + 1, field);
    }
}

}  // namespace tarnwick

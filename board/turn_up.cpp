#include "board/turn_up.h"

#include "board/score.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {

void turn_up_top_card(int c) {
    const int top = column_top(c);
    if (top == -1 || layout(c, top, face_down_field) == 0) return;
    layout(c, top, face_down_field) = 0;
    frmcards.Image1(face_down_image(c, top)).hide();
    add_to_score(1);
    add_undo(turned_up_record, turned_up_record, turned_up_record);
}

}  // namespace tarnwick

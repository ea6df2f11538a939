#include "board/table_colors.h"

#include "windows/frmcards.h"

namespace tarnwick {

void set_table_color(Color color) {
    frmcards.set_back_color(color);
    for (Label* label : frmcards.score_labels()) label->set_back_color(color);
}

void set_text_color(Color color) {
    for (Label* label : frmcards.score_labels()) label->set_text_color(color);
    frmcards.Shape1.for_each([color](Outline& outline) { outline.set_border_color(color); });
}

}  // namespace tarnwick

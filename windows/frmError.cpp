#include "windows/frmError.h"

namespace tarnwick {

FrmError frmError;

FrmError::FrmError() : Form("frmError") { set_tab_order({&Command1, &Command2}); }

void FrmError::design() {
    set_caption("Error");
    set_border(FormBorder::tool_dialog);
    resize_client({3765 / twips_per_pixel, 1500 / twips_per_pixel});
    LblError.set_caption("");
    LblError.move_twips(120, 120, 3492, 612);
    Command1.set_caption("Resume Next");
    Command1.move_twips(120, 960, 1572, 372);
    Command2.set_caption("Close Game");
    Command2.move_twips(2040, 960, 1572, 372);
}

}  // namespace tarnwick

#include "windows/frmyouwin.h"

#include "windows/pictures.h"

namespace tarnwick {

Frmyouwin frmyouwin;

Frmyouwin::Frmyouwin() : Form("frmyouwin") {
    for (Widget* widget : widgets()) {
        if (widget != &Frame1) widget->put_into(Frame1);
    }
    Frame1.set_spoken_name("Congratulations");
    imgLogo.set_spoken_name("Logo of Tarnwick");
    txtYourName.label_with(Label1);
    set_tab_order({&txtYourName});
}

void Frmyouwin::design() {
    set_caption("");
    set_border(FormBorder::fixed_dialog);
    set_centered(true);
    resize_client({7320 / twips_per_pixel, 3435 / twips_per_pixel});
    Frame1.set_caption("");
    Frame1.move_twips(120, 60, 7080, 3192);

    imgLogo.reset();
    imgLogo.set_picture(logo_picture());
    imgLogo.set_stretch(true);
    imgLogo.move_twips(120, 480, 2292, 2388);

    const auto design_label = [](Label& label, const char* caption, const Font& font) {
        label.set_caption(caption);
        label.set_font(font);
        if (font.points > 0) label.set_alignment(Alignment::center);
    };
    design_label(lblComgrats, "Congratulations", {"Arial", 18, true});
    lblComgrats.move_twips(3360, 480, 2775, 435);
    design_label(lblYouWin, "You Won!", {"Arial", 32.25F, true});
    lblYouWin.move_twips(3252, 1080, 3000, 756);
    design_label(lblNewHighScore, "You have a new high score!", {"Arial", 18, true});
    lblNewHighScore.move_twips(3000, 960, 3372, 852);
    design_label(Label1, "Your Name", {});
    Label1.move_twips(2400, 2040, 852, 252);
    design_label(lblPlatform, "Tarnwick", {"Arial", 15.75F, true});
    lblPlatform.move_twips(3504, 2520, 2400, 360);

    txtYourName.set_text("");
    txtYourName.set_hint("Press Enter to record it");
    txtYourName.move_twips(3360, 2040, 2652, 288);
}

}  // namespace tarnwick

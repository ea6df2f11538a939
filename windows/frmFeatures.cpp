#include "windows/frmFeatures.h"

#include <string>

#include "windows/pictures.h"

namespace tarnwick {

FrmFeatures frmFeatures;

FrmFeatures::FrmFeatures() : Form("frmFeatures") {
    for (int i = 0; i < back_count; ++i) {
        ImgCardBacks.add(i, *this, i, back_events).put_into(Frame1);
        optCardBack.add(i, *this).put_into(Frame1);
        ImgCardBacks(i).set_spoken_name(std::string("Card back ") + back_name(i));
    }
    txtBackColor.label_with(lblBackColor);
    txtTextColor.label_with(lblTextColor);
    std::vector<Widget*> order{
        &txtBackColor, &txtTextColor, &chkAnamate, &chkScaleCards, &chkDisplayMes, &cmdOk, &cmdCancel};
    optCardBack.for_each([&order](OptionButton& option) { order.push_back(&option); });
    set_tab_order(order);
}

void FrmFeatures::design() {
    set_caption("Select Settings");
    set_border(FormBorder::fixed_dialog);
    Frame1.set_caption("Card Back");
    ImgCardBacks.for_each([](Image& image) { image.reset(); });
    for (int i = 0; i < back_count; ++i) {
        optCardBack(i).set_caption(back_name(i));
        optCardBack(i).set_on(false);
    }
    txtBackColor.set_text("");
    lblBackColor.set_caption("Background Color");
    txtTextColor.set_text("");
    lblTextColor.set_caption("Text Color");
    chkAnamate.set_caption("Animate cards");
    chkScaleCards.set_caption("Scale Cards To Fit Window");
    chkDisplayMes.set_caption("Display Messages");
    cmdOk.set_caption("OK");
    cmdOk.set_default(true);
    cmdCancel.set_caption("Cancel");
    cmdCancel.set_cancel(true);
}

}  // namespace tarnwick

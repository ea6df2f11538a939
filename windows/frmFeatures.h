#pragma once

#include "platform/controls.h"
#include "platform/family.h"
#include "platform/form.h"
#include "platform/image.h"

namespace tarnwick {

/// The settings dialog. Its controls get their places when it is loaded (ui/settings_dialog.cpp).
struct FrmFeatures : Form {
    FrmFeatures();

    ImageEvents back_events;

    Frame Frame1{*this};
    Family<Image> ImgCardBacks;
    Family<OptionButton> optCardBack;
    TextBox txtBackColor{*this};
    Label lblBackColor{*this};
    TextBox txtTextColor{*this};
    Label lblTextColor{*this};
    CheckBox chkAnamate{*this};
    CheckBox chkScaleCards{*this};
    CheckBox chkDisplayMes{*this};
    Button cmdOk{*this};
    Button cmdCancel{*this};

  protected:
    void design() override;
};

extern FrmFeatures frmFeatures;

}  // namespace tarnwick

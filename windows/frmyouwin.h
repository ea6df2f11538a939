#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/image.h"

namespace tarnwick {

/// The win dialog: congratulates the player and asks for the name of a new best score.
struct Frmyouwin : Form {
    Frmyouwin();

    ImageEvents no_events;

    Frame Frame1{*this};
    Image imgLogo{*this, 0, no_events};
    Label lblComgrats{*this};
    Label lblYouWin{*this};
    Label lblNewHighScore{*this};
    Label Label1{*this};  ///< "Your Name"
    TextBox txtYourName{*this};
    Label lblPlatform{*this};

  protected:
    void design() override;
};

extern Frmyouwin frmyouwin;

}  // namespace tarnwick

#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace tarnwick {

/// The error dialog: names the routine that failed, and offers to go on or to close the game.
struct FrmError : Form {
    FrmError();

    Label LblError{*this};
    Button Command1{*this};  ///< "Resume Next"
    Button Command2{*this};  ///< "Close Game"

  protected:
    void design() override;
};

extern FrmError frmError;

}  // namespace tarnwick

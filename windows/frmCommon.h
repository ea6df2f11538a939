#pragma once

#include "platform/common_dialog.h"
#include "platform/form.h"

namespace tarnwick {

/// A window that is never shown: it only carries the colour picker and the help viewer.
struct FrmCommon : Form {
    FrmCommon() : Form("frmCommon") {}

    CommonDialog CommonDialog1;

  protected:
    void design() override { CommonDialog1.reset(); }
};

inline FrmCommon frmCommon;

}  // namespace tarnwick

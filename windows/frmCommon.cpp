#include "windows/frmCommon.h"

namespace tarnwick {

FrmCommon frmCommon;

}  // namespace tarnwick

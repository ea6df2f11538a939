#include "state/routine.h"

#include <string>

#include "windows/frmError.h"

namespace tarnwick {

void report_error(const char* routine) {
    frmError.load();
    frmError.LblError.set_caption(std::string("Fatel Error in Subroutine ") + routine);
    frmError.show();
}

}  // namespace tarnwick

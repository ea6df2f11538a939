#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void resume_next() {
    frmError.unload();
    resume_after_error = flag_true;
}

void close_game() {
    frmcards.unload();
    frmError.unload();
}

}  // namespace

void attach_error_dialog() {
    frmError.Command1.on_click = resume_next;
    frmError.Command2.on_click = close_game;
}

}  // namespace tarnwick

#include "platform/common_dialog.h"

#include "platform/desktop.h"

namespace tarnwick {

void CommonDialog::show_help() {
    if (help_command_ != help_contents_command) throw CommonDialogError("unknown help command");
    if (!desktop().show_help(help_file_)) throw CommonDialogError("no help file " + help_file_);
}

void CommonDialog::show_color() {
    const std::optional<Color> picked = desktop().pick_color(title_);
    if (picked) {
        color_ = *picked;
    } else if (cancel_error_) {
        throw CommonDialogError("cancelled");
    }
}

}  // namespace tarnwick

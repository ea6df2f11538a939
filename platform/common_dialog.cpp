#include "platform/common_dialog.h"

#include <utility>

#include "platform/desktop.h"

namespace tarnwick {

void CommonDialog::show_help() {
    if (help_command_ != help_contents_command) throw CommonDialogError("unknown help command");
    if (!desktop().show_help(help_file_)) throw CommonDialogError("no help file " + help_file_);
}

void CommonDialog::show_color(std::function<void()> then) {
    desktop().pick_color(title_, [this, then = std::move(then)](std::optional<Color> picked) {
        cancelled_ = !picked;
        color_ = picked.value_or(color_);
        then();
    });
}

Color CommonDialog::color() const {
    if (cancelled_ && cancel_error_) throw CommonDialogError("cancelled");
    return color_;
}

}  // namespace tarnwick

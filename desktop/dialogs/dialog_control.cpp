#include "desktop/dialogs/dialog_control.h"

namespace tarnwick {
namespace {

std::unique_ptr<DialogControl> make_box_control(TextBox& box, QWidget* parent) {
    return box.is_swatch() ? make_swatch_control(box, parent) : make_text_box_control(box, parent);
}

}  // namespace

std::unique_ptr<DialogControl> make_control(Widget& widget, QWidget* parent) {
    switch (widget.kind()) {
        case WidgetKind::image:
            return make_image_control(static_cast<Image&>(widget), parent);
        case WidgetKind::outline:
            return make_outline_control(static_cast<Outline&>(widget), parent);
        case WidgetKind::label:
            return make_label_control(static_cast<Label&>(widget), parent);
        case WidgetKind::frame:
            return make_frame_control(parent);
        case WidgetKind::button:
            return make_button_control(static_cast<Button&>(widget), parent);
        case WidgetKind::check_box:
            return make_check_box_control(static_cast<CheckBox&>(widget), parent);
        case WidgetKind::option_button:
            return make_option_control(static_cast<OptionButton&>(widget), parent);
        case WidgetKind::text_box:
            return make_box_control(static_cast<TextBox&>(widget), parent);
    }
    return nullptr;
}

}  // namespace tarnwick

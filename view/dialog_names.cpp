#include "view/dialog_names.h"

#include "platform/controls.h"
#include "platform/form.h"

namespace tarnwick {

const std::string& written_text(const Widget& widget) {
    static const std::string nothing;
    switch (widget.kind()) {
        case WidgetKind::label:
            return static_cast<const Label&>(widget).caption();
        case WidgetKind::frame:
            return static_cast<const Frame&>(widget).caption();
        case WidgetKind::button:
            return static_cast<const Button&>(widget).caption();
        case WidgetKind::check_box:
            return static_cast<const CheckBox&>(widget).caption();
        case WidgetKind::option_button:
            return static_cast<const OptionButton&>(widget).caption();
        case WidgetKind::text_box:
            return static_cast<const TextBox&>(widget).text();
        case WidgetKind::image:
        case WidgetKind::outline:
            break;
    }
    return nothing;
}

const Label* naming_label(const Widget& widget) {
    return widget.kind() == WidgetKind::label ? nullptr : widget.label();
}

std::string spoken_name(const Widget& widget) {
    if (const Label* label = naming_label(widget)) return label->caption();
    if (!widget.spoken_name().empty()) return widget.spoken_name();
    // What stands in a box is its value.
    if (widget.kind() == WidgetKind::text_box) return {};
    const Label* title = widget.label();
    return title ? title->caption() + ' ' + written_text(widget) : written_text(widget);
}

std::string spoken_title(const Form& form) { return form.caption().empty() ? "Tarnwick" : form.caption(); }

}  // namespace tarnwick

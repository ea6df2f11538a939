#include "view/control_presses.h"

#include <utility>

#include "platform/desktop.h"
#include "platform/image.h"

namespace tarnwick {

bool takes_presses(Window& window) {
    return window.accepts_input() && !desktop().in_event() && !window.mouse().dragged();
}

bool is_pressable(const Widget& widget) {
    switch (widget.kind()) {
        case WidgetKind::button:
        case WidgetKind::check_box:
        case WidgetKind::option_button:
            return true;
        case WidgetKind::text_box:
            return static_cast<const TextBox&>(widget).is_swatch();
        case WidgetKind::image:
            return static_cast<const Image&>(widget).events().click != nullptr;
        case WidgetKind::outline:
        case WidgetKind::label:
        case WidgetKind::frame:
            break;
    }
    return false;
}

void press(Widget& widget) {
    if (!takes_presses(widget.form()) || !is_pressable(widget)) return;
    switch (widget.kind()) {
        case WidgetKind::button:
            return static_cast<Button&>(widget).click();
        case WidgetKind::check_box:
            return static_cast<CheckBox&>(widget).click();
        case WidgetKind::option_button:
            return static_cast<OptionButton&>(widget).click();
        case WidgetKind::text_box:
            return static_cast<TextBox&>(widget).click();
        default:
            return static_cast<Image&>(widget).click();
    }
}

bool press_by_typing(TextBox& swatch, const std::string& text) {
    constexpr unsigned char space = 0x20;
    constexpr unsigned char rubout = 0x7F;
    if (text.empty() || static_cast<unsigned char>(text[0]) <= space || text[0] == rubout) return false;
    swatch.type(text);
    return true;
}

void BackgroundPress::released(bool on_background) {
    if (std::exchange(pressed_, false) && on_background) form_.click_background();
}

}  // namespace tarnwick

#include "view/dialog_keys.h"

#include <algorithm>
#include <vector>

#include "platform/form.h"
#include "platform/key_codes.h"
#include "view/control_presses.h"

namespace tarnwick {
namespace {

// The button of a dialog that has a quality; null where none has it.
Button* button_that(const Form& form, bool (Button::*is_it)() const) {
    for (Widget* widget : form.widgets()) {
        if (widget->kind() != WidgetKind::button) continue;
        auto* button = static_cast<Button*>(widget);
        if ((button->*is_it)()) return button;
    }
    return nullptr;
}

bool is_option_beside(const Widget& widget, const OptionButton& option) {
    return widget.kind() == WidgetKind::option_button && widget.container() == option.container();
}

bool has_enter_for_itself(const Widget& widget) {
    return widget.kind() == WidgetKind::button ||
           (widget.kind() == WidgetKind::text_box && is_pressable(widget));
}

}  // namespace

KeyboardUse keyboard_use(const Widget& widget) {
    const std::vector<Widget*>& order = widget.form().tab_order();
    if (std::find(order.begin(), order.end(), &widget) == order.end()) return KeyboardUse::none;
    if (widget.kind() != WidgetKind::option_button) return KeyboardUse::by_tab;
    return static_cast<const OptionButton&>(widget).on() ? KeyboardUse::by_tab : KeyboardUse::by_click;
}

OptionButton& option_beside(const OptionButton& option, int step) {
    std::vector<OptionButton*> options;
    int self = 0;
    for (Widget* widget : option.form().widgets()) {
        if (!is_option_beside(*widget, option)) continue;
        if (widget == &option) self = static_cast<int>(options.size());
        options.push_back(static_cast<OptionButton*>(widget));
    }
    const int count = static_cast<int>(options.size());
    OptionButton* beside = options[static_cast<std::size_t>((self + step + count) % count)];
    return *beside;
}

bool takes_keyboard_from(const OptionButton& option, const Widget* focused) {
    return option.on() && focused && is_option_beside(*focused, option);
}

void press_escape(const Form& form) {
    if (Button* button = button_that(form, &Button::is_cancel)) press(*button);
}

void press_enter(const Form& form, Widget* focused) {
    Widget* pressed =
        focused && has_enter_for_itself(*focused) ? focused : button_that(form, &Button::is_default);
    if (pressed) press(*pressed);
}

bool is_held_enter(int key_code, bool again) { return again && key_code == enter_key; }

void type_into(Form& form, const std::string& text) {
    constexpr unsigned char space = 0x20;
    constexpr unsigned char rubout = 0x7F;
    const auto is_text_box = [](const Widget* widget) { return widget->kind() == WidgetKind::text_box; };
    const auto found = std::find_if(form.tab_order().begin(), form.tab_order().end(), is_text_box);
    if (!form.accepts_input() || found == form.tab_order().end() || text.empty()) return;
    auto& box = static_cast<TextBox&>(**found);
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < space || first == rubout || (first == space && box.text().empty())) return;
    box.type(box.text() + text);
    // As the player's typing it is not shown by itself.
    box.set_text(box.text());
}

}  // namespace tarnwick

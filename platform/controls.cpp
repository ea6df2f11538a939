#include "platform/controls.h"

#include "platform/desktop.h"

namespace tarnwick {
namespace {

// Raises a control's event, unless its window takes no input.
void raise(const Widget& widget, const std::function<void()>& handler) {
    if (widget.form().accepts_input() && handler) desktop().event(handler);
}

}  // namespace

void Outline::set_border_color(Color color) {
    if (color == border_color_) return;
    border_color_ = color;
    changed();
}

void Outline::set_sign(Sign sign) {
    if (sign == sign_) return;
    sign_ = sign;
    changed();
}

void Label::set_caption(const std::string& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    changed();
}

void Label::set_text_color(Color color) {
    has_colors_ = true;
    text_color_ = color;
    changed();
}

void Label::set_back_color(Color color) {
    has_colors_ = true;
    back_color_ = color;
    changed();
}

void Frame::set_caption(const std::string& caption) {
    caption_ = caption;
    changed();
}

void Button::set_caption(const std::string& caption) {
    caption_ = caption;
    changed();
}

void Button::click() { raise(*this, on_click); }

void CheckBox::set_caption(const std::string& caption) {
    caption_ = caption;
    changed();
}

void CheckBox::set_checked(bool checked) {
    checked_ = checked;
    changed();
}

void CheckBox::click() {
    if (form().accepts_input()) set_checked(!checked_);
}

void OptionButton::set_caption(const std::string& caption) {
    caption_ = caption;
    changed();
}

void OptionButton::set_on(bool on) {
    on_ = on;
    changed();
}

void OptionButton::click() { raise(*this, on_click); }

void TextBox::set_text(const std::string& text) {
    text_ = text;
    changed();
}

void TextBox::set_colors(Color back, Color text) {
    has_colors_ = true;
    back_color_ = back;
    text_color_ = text;
    changed();
}

void TextBox::type(const std::string& text) {
    if (!form().accepts_input() || text == text_) return;
    text_ = text;
    raise(*this, on_change);
}

void TextBox::click() { raise(*this, on_click); }

bool TextBox::key_down(int key_code) {
    if (!form().accepts_input() || !on_key_down) return false;
    bool dealt_with = false;
    desktop().event([&] { dealt_with = on_key_down(key_code); });
    return dealt_with;
}

}  // namespace tarnwick

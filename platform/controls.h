#pragma once

#include <functional>
#include <string>

#include "platform/graphics.h"
#include "platform/widget.h"

namespace tarnwick {

/// What an outline says in its middle: what may lie there, or that a press turns the cards over.
enum class Sign { none, ace, king, turn };

/// The outline of a rectangle, drawn under the images.
class Outline : public Widget {
  public:
    explicit Outline(Window& window) : Widget(window, WidgetKind::outline) {}

    Color border_color() const { return border_color_; }
    void set_border_color(Color color);
    Sign sign() const { return sign_; }
    void set_sign(Sign sign);

  private:
    Color border_color_ = black;
    Sign sign_ = Sign::none;
};

enum class Alignment { left, right, center };

/// How a label's text looks: the family (empty is the system's), a size in points (0 is the system's), bold
/// or not.
struct Font {
    std::string family;
    float points = 0;
    bool bold = false;
    bool operator==(const Font&) const = default;
};

/// A line or two of text. Without colours of its own it takes those of the desktop.
class Label : public Widget {
  public:
    explicit Label(Window& window) : Widget(window, WidgetKind::label) {}

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);

    Alignment alignment() const { return alignment_; }
    void set_alignment(Alignment alignment) { alignment_ = alignment; }
    const Font& font() const { return font_; }
    void set_font(const Font& font) { font_ = font; }

    bool has_colors() const { return has_colors_; }
    Color text_color() const { return text_color_; }
    void set_text_color(Color color);
    Color back_color() const { return back_color_; }
    void set_back_color(Color color);

  private:
    std::string caption_;
    Font font_;
    Alignment alignment_ = Alignment::left;
    Color text_color_ = black;
    Color back_color_ = black;
    bool has_colors_ = false;
};

/// A box with a caption around other widgets.
class Frame : public Widget {
  public:
    explicit Frame(Window& window) : Widget(window, WidgetKind::frame) {}

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);

  private:
    std::string caption_;
};

/// A push button. Enter chooses the default one, Escape the cancelling one.
class Button : public Widget {
  public:
    explicit Button(Window& window) : Widget(window, WidgetKind::button) {}

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);
    bool is_default() const { return is_default_; }
    void set_default(bool is_default) { is_default_ = is_default; }
    bool is_cancel() const { return is_cancel_; }
    void set_cancel(bool is_cancel) { is_cancel_ = is_cancel; }

    std::function<void()> on_click;
    /// What a desktop calls when the user pushes the button.
    void click();

  private:
    std::string caption_;
    bool is_default_ = false;
    bool is_cancel_ = false;
};

/// A box that is checked or not.
class CheckBox : public Widget {
  public:
    explicit CheckBox(Window& window) : Widget(window, WidgetKind::check_box) {}

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);
    bool checked() const { return checked_; }
    void set_checked(bool checked);
    /// What a desktop calls when the user checks or unchecks the box.
    void click();

  private:
    std::string caption_;
    bool checked_ = false;
};

/// One of several choices. Putting one on leaves the others as they are: that is up to whoever answers its
/// click.
class OptionButton : public Widget {
  public:
    explicit OptionButton(Window& window) : Widget(window, WidgetKind::option_button) {}

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);
    bool on() const { return on_; }
    void set_on(bool on);

    std::function<void()> on_click;
    /// What a desktop calls when the user chooses the option.
    void click();

  private:
    std::string caption_;
    bool on_ = false;
};

/// One line of text that the user can edit.
class TextBox : public Widget {
  public:
    explicit TextBox(Window& window) : Widget(window, WidgetKind::text_box) {}

    const std::string& text() const { return text_; }
    /// Sets the text as the program does: no on_change.
    void set_text(const std::string& text);

    /// What is to be done in the box, to be shown as long as it is empty.
    const std::string& hint() const { return hint_; }
    void set_hint(const std::string& hint) { hint_ = hint; }

    bool has_colors() const { return has_colors_; }
    Color back_color() const { return back_color_; }
    Color text_color() const { return text_color_; }
    /// Colours of the box; a box with both the same is a swatch: nothing can be read in it.
    void set_colors(Color back, Color text);
    bool is_swatch() const { return has_colors_ && back_color_ == text_color_; }

    std::function<void()> on_change;
    std::function<void()> on_click;
    /// A key went down in the box; true means that it is dealt with.
    std::function<bool(int key_code)> on_key_down;

    /// What a desktop calls when the user has edited the text (`text` is all of it), clicks, or presses a
    /// key.
    void type(const std::string& text);
    void click();
    bool key_down(int key_code);

  private:
    std::string text_;
    std::string hint_;
    Color back_color_ = black;
    Color text_color_ = black;
    bool has_colors_ = false;
};

}  // namespace tarnwick

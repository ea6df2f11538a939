#pragma once

#include <cstdint>
#include <string>

#include "platform/graphics.h"
#include "platform/window.h"

namespace tarnwick {

class Frame;
class Label;

enum class WidgetKind { image, outline, label, frame, button, check_box, option_button, text_box };

/// What every widget has: the window it belongs to, a place in it, and whether it is shown.
/// Widgets live as long as their window object; loading the window puts them back to how it is stored.
class Widget {
  public:
    virtual ~Widget() = default;
    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;

    WidgetKind kind() const { return kind_; }
    Window& form() const { return window_; }

    /// The frame that holds the widget (its place is then relative to it), or null.
    const Frame* container() const { return container_; }
    void put_into(const Frame& frame) { container_ = &frame; }

    /// The label beside the widget that says what it is for, or null.
    const Label* label() const { return label_; }
    void label_with(const Label& label) { label_ = &label; }

    /// A name, for players who cannot see the widget, where neither its own text nor a label tells it.
    const std::string& spoken_name() const { return spoken_name_; }
    void set_spoken_name(const std::string& name) { spoken_name_ = name; }

    const Rect& place() const { return place_; }
    float left() const { return place_.left; }
    float top() const { return place_.top; }
    float width() const { return place_.width; }
    float height() const { return place_.height; }

    /// Moves the widget; pixels. The two-argument form keeps its size.
    void move(float left, float top);
    void move(float left, float top, float width, float height);
    /// Places a widget of a dialog that is laid out in twips.
    void move_twips(int left, int top, int width, int height);
    void set_top(float top);

    bool visible() const { return visible_; }
    void show() { set_visible(true); }
    void hide() { set_visible(false); }
    void set_visible(bool visible);

    /// Puts the widget above all others of its window.
    void bring_to_front();
    /// Grows with every bring_to_front in the window: the higher of two widgets lies above.
    std::uint64_t stacking() const { return stacking_; }

  protected:
    Widget(Window& window, WidgetKind kind);

    /// Tells the view that the widget looks different now. `before` is the place it was seen at.
    void changed(const Rect& before);
    void changed() { changed(place_); }

  private:
    Window& window_;
    const Frame* container_ = nullptr;
    const Label* label_ = nullptr;
    std::string spoken_name_;
    Rect place_;
    std::uint64_t stacking_ = 0;
    WidgetKind kind_;
    bool visible_ = true;
};

}  // namespace tarnwick

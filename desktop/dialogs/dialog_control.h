#pragma once

#include <QWidget>
#include <memory>

#include "platform/controls.h"
#include "platform/image.h"
#include "view/dialog_texts.h"

namespace tarnwick {

/// How a control looks: its text and the font of that, in a layout enlarged by `scale`.
struct ControlLooks {
    const ShownText& text;
    const QFont& font;
    qreal scale;
};

/// The toolkit's widget for one widget of a dialog.
class DialogControl {
  public:
    explicit DialogControl(QWidget* native) : native_(native) {}
    virtual ~DialogControl() = default;
    DialogControl(const DialogControl&) = delete;
    DialogControl& operator=(const DialogControl&) = delete;

    QWidget* native() const { return native_; }
    /// Makes the native widget show what the dialog's widget says. Its place has been set before.
    virtual void sync(const ControlLooks& looks) = 0;

  private:
    QWidget* native_;  ///< owned by its parent
};

/// Makes the control for a widget. `parent` owns the native widget.
std::unique_ptr<DialogControl> make_control(Widget& widget, QWidget* parent);

// The makers for the kinds of widgets, used by make_control.
std::unique_ptr<DialogControl> make_label_control(const Label& label, QWidget* parent);
std::unique_ptr<DialogControl> make_text_box_control(TextBox& box, QWidget* parent);
std::unique_ptr<DialogControl> make_swatch_control(TextBox& box, QWidget* parent);
std::unique_ptr<DialogControl> make_button_control(Button& button, QWidget* parent);
std::unique_ptr<DialogControl> make_check_box_control(CheckBox& box, QWidget* parent);
std::unique_ptr<DialogControl> make_option_control(OptionButton& option, QWidget* parent);
std::unique_ptr<DialogControl> make_frame_control(QWidget* parent);
std::unique_ptr<DialogControl> make_image_control(Image& image, QWidget* parent);
std::unique_ptr<DialogControl> make_outline_control(const Outline& outline, QWidget* parent);

}  // namespace tarnwick

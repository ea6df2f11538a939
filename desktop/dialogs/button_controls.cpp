#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/dialogs/dialog_control.h"
#include "desktop/shared/qt_convert.h"
#include "view/control_presses.h"
#include "view/dialog_keys.h"

namespace tarnwick {
namespace {

class ButtonControl : public DialogControl {
  public:
    ButtonControl(Button& button, QPushButton* native)
        : DialogControl(native), button_(button), native_(*native) {
        QObject::connect(native, &QPushButton::clicked, native, [&button] { press(button); });
    }

    void sync(const ControlLooks& looks) override {
        native_.setText(to_qt(looks.text.text));
        native_.setDefault(button_.is_default());
        native_.setFont(looks.font);
    }

  private:
    const Button& button_;
    QPushButton& native_;
};

// Check boxes and option buttons: an indicator with a text beside it.
class MarkedControl : public DialogControl {
  public:
    explicit MarkedControl(QAbstractButton* native) : DialogControl(native), native_(*native) {
        lighten_dark_outline();
    }

  protected:
    void show(const ControlLooks& looks, bool on) {
        native_.setText(to_qt(looks.text.text));
        native_.setFont(looks.font);
        // The toolkit would not let the last option that is on be put off.
        const bool exclusive = native_.autoExclusive();
        native_.setAutoExclusive(false);
        native_.setChecked(on);
        native_.setAutoExclusive(exclusive);
    }

  private:
    // The toolkit's own style draws the indicator's outline in a darker shade of the window's colour, which
    // cannot be seen on a dark desktop.
    void lighten_dark_outline() {
        QPalette palette = native_.palette();
        const QColor text = palette.color(QPalette::WindowText);
        if (text.lightness() < palette.color(QPalette::Window).lightness()) return;
        palette.setColor(QPalette::Window, text.darker());
        native_.setPalette(palette);
    }

    QAbstractButton& native_;
};

class CheckBoxControl : public MarkedControl {
  public:
    CheckBoxControl(CheckBox& box, QCheckBox* native) : MarkedControl(native), box_(box) {
        QObject::connect(native, &QCheckBox::clicked, native, [&box, native] {
            press(box);
            native->setChecked(box.checked());
        });
    }

    void sync(const ControlLooks& looks) override { show(looks, box_.checked()); }

  private:
    const CheckBox& box_;
};

class OptionBox : public QRadioButton {
  public:
    OptionBox(OptionButton& option, QWidget* parent) : QRadioButton(parent), option_(option) {
        connect(this, &QRadioButton::clicked, this, [this] { press(option_); });
    }

    // Among options the chosen one keeps the keyboard.
    void hold_keyboard() {
        const auto* focused = dynamic_cast<OptionBox*>(window()->focusWidget());
        if (takes_keyboard_from(option_, focused ? &focused->option_ : nullptr)) {
            setFocus(Qt::OtherFocusReason);
        }
    }

  protected:
    // A press that is refused must not be seen either.
    void nextCheckState() override {}

    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Left:
            case Qt::Key_Up:
                return press(option_beside(option_, -1));
            case Qt::Key_Right:
            case Qt::Key_Down:
                return press(option_beside(option_, 1));
            default:
                return QRadioButton::keyPressEvent(event);
        }
    }

  private:
    OptionButton& option_;
};

class OptionControl : public MarkedControl {
  public:
    OptionControl(const OptionButton& option, OptionBox* native)
        : MarkedControl(native), option_(option), native_(*native) {}

    void sync(const ControlLooks& looks) override {
        show(looks, option_.on());
        native_.hold_keyboard();
    }

  private:
    const OptionButton& option_;
    OptionBox& native_;
};

}  // namespace

std::unique_ptr<DialogControl> make_button_control(Button& button, QWidget* parent) {
    return std::make_unique<ButtonControl>(button, new QPushButton(parent));
}

std::unique_ptr<DialogControl> make_check_box_control(CheckBox& box, QWidget* parent) {
    return std::make_unique<CheckBoxControl>(box, new QCheckBox(parent));
}

std::unique_ptr<DialogControl> make_option_control(OptionButton& option, QWidget* parent) {
    return std::make_unique<OptionControl>(option, new OptionBox(option, parent));
}

}  // namespace tarnwick

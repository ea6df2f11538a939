#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/dialog_control.h"
#include "desktop/qt_convert.h"
#include "platform/form.h"

namespace tarnwick {
namespace {

class ButtonControl : public DialogControl {
  public:
    ButtonControl(Button& button, QPushButton* native)
        : DialogControl(native), button_(button), native_(*native) {
        QObject::connect(native, &QPushButton::clicked, native, [&button] { button.click(); });
    }

    void sync(qreal) override {
        native_.setText(to_qt(button_.caption()));
        native_.setDefault(button_.is_default());
    }

    bool fits(const QSizeF& place) const override {
        constexpr int air = 6;
        const QFontMetricsF metrics(native_.font());
        return metrics.horizontalAdvance(to_qt(button_.caption())) + 2 * air <= place.width() &&
               metrics.height() + air <= place.height();
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

    bool fits(const QSizeF& place) const override {
        return native_.sizeHint().width() <= place.width() &&
               QFontMetricsF(native_.font()).height() <= place.height();
    }

  protected:
    void show(const std::string& caption, bool on) {
        native_.setText(to_qt(caption));
        if (native_.isChecked() == on) return;
        // The toolkit would not let the last option that is on be put off.
        native_.setAutoExclusive(false);
        native_.setChecked(on);
        native_.setAutoExclusive(exclusive());
    }
    virtual bool exclusive() const = 0;

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
        native->setText(to_qt(box.caption()));
        QObject::connect(native, &QCheckBox::clicked, native, [&box](bool checked) {
            if (box.form().accepts_input()) box.set_checked(checked);
        });
    }

    void sync(qreal) override { show(box_.caption(), box_.checked()); }

  protected:
    bool exclusive() const override { return false; }

  private:
    const CheckBox& box_;
};

class OptionControl : public MarkedControl {
  public:
    OptionControl(OptionButton& option, QRadioButton* native) : MarkedControl(native), option_(option) {
        native->setText(to_qt(option.caption()));
        QObject::connect(native, &QRadioButton::clicked, native, [&option] { option.click(); });
    }

    void sync(qreal) override { show(option_.caption(), option_.on()); }

  protected:
    bool exclusive() const override { return true; }

  private:
    const OptionButton& option_;
};

}  // namespace

std::unique_ptr<DialogControl> make_button_control(Button& button, QWidget* parent) {
    return std::make_unique<ButtonControl>(button, new QPushButton(parent));
}

std::unique_ptr<DialogControl> make_check_box_control(CheckBox& box, QWidget* parent) {
    return std::make_unique<CheckBoxControl>(box, new QCheckBox(parent));
}

std::unique_ptr<DialogControl> make_option_control(OptionButton& option, QWidget* parent) {
    return std::make_unique<OptionControl>(option, new QRadioButton(parent));
}

}  // namespace tarnwick

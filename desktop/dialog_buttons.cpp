#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/dialog_control.h"
#include "desktop/fitting_font.h"
#include "desktop/qt_convert.h"
#include "platform/form.h"

namespace tarnwick {
namespace {

// Makes the text smaller where the screen has no room for a dialog in which it fits.
template <class Fits>
void make_fit(QWidget& native, Fits fits) {
    const QFont font = native.parentWidget()->font();
    native.setFont(shrunk(font, least_readable(font), fits));
}

class ButtonControl : public DialogControl {
  public:
    ButtonControl(Button& button, QPushButton* native)
        : DialogControl(native), button_(button), native_(*native) {
        QObject::connect(native, &QPushButton::clicked, native, [&button] { button.click(); });
    }

    void sync(qreal) override {
        native_.setText(to_qt(button_.caption()));
        native_.setDefault(button_.is_default());
        make_fit(native_, [this](const QFont& font) { return fits_in(font, native_.size()); });
    }

    bool fits(const QSizeF& place) const override { return fits_in(native_.font(), place); }

  private:
    bool fits_in(const QFont& font, const QSizeF& place) const {
        constexpr int air = 9;
        constexpr int border = 6;
        const QFontMetricsF metrics(font);
        return metrics.horizontalAdvance(to_qt(button_.caption())) + 2 * air <= place.width() &&
               metrics.height() + border <= place.height();
    }

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
        make_fit(native_, [this](const QFont& font) {
            native_.setFont(font);
            return fits(native_.size());
        });
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

// All options of a frame are one stop of Tab, at the chosen one; arrow keys choose.
class OptionBox : public QRadioButton {
  public:
    using QRadioButton::QRadioButton;

    // The chosen option keeps the keyboard among them.
    void be_stop_of_tab(bool chosen) {
        setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
        if (chosen && dynamic_cast<OptionBox*>(window()->focusWidget())) setFocus(Qt::OtherFocusReason);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Left:
            case Qt::Key_Up:
                return neighbor(-1).click();
            case Qt::Key_Right:
            case Qt::Key_Down:
                return neighbor(1).click();
            default:
                return QRadioButton::keyPressEvent(event);
        }
    }

  private:
    // Counted around: the first follows the last.
    QRadioButton& neighbor(qsizetype step) const {
        const auto options = parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
        const qsizetype self = options.indexOf(this);
        return *options[(self + step + options.size()) % options.size()];
    }
};

class OptionControl : public MarkedControl {
  public:
    OptionControl(OptionButton& option, OptionBox* native)
        : MarkedControl(native), option_(option), native_(*native) {
        native->setText(to_qt(option.caption()));
        QObject::connect(native, &QRadioButton::clicked, native, [&option] { option.click(); });
    }

    void sync(qreal) override {
        show(option_.caption(), option_.on());
        native_.be_stop_of_tab(option_.on());
    }

  protected:
    bool exclusive() const override { return true; }

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
    return std::make_unique<OptionControl>(option, new OptionBox(parent));
}

}  // namespace tarnwick

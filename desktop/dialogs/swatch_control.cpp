#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

#include "desktop/dialogs/dialog_accessible.h"
#include "desktop/dialogs/dialog_control.h"
#include "desktop/shared/qt_convert.h"
#include "view/control_presses.h"

namespace tarnwick {
namespace {

// The name of a colour that has one, as "green", else its parts, as "#0a50ff".
QString name_of(const QColor& color) {
    for (const QString& name : QColor::colorNames()) {
        if (name != QLatin1String("transparent") && QColor(name) == color) return name;
    }
    return color.name();
}

// A text box in which nothing can be read is used as a button that shows a colour.
class SwatchButton : public QPushButton, public Pressable {
  public:
    SwatchButton(TextBox& box, QWidget* parent) : QPushButton(parent), box_(box) {
        connect(this, &QPushButton::clicked, this, [this] { press(box_); });
    }

    void show_color() {
        setAccessibleDescription(name_of(to_qt(box_.back_color())));
        update();
    }

    Widget& pressed() const override { return box_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
        const bool typed = !(event->modifiers() & commands);
        if (!typed || !press_by_typing(box_, event->text().toStdString())) QPushButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent*) override {
        constexpr qreal rim = 5;
        constexpr qreal focus_rim = 3;
        constexpr qreal faded = 0.4;
        QPainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
        if (!isEnabled()) painter.setOpacity(faded);
        const QRectF face(rect());
        painter.fillRect(face.adjusted(rim, rim, -rim, -rim), to_qt(box_.back_color()));
        const bool focused = hasFocus();
        const qreal at = focused ? focus_rim : rim - 0.5;
        painter.setPen(QPen(palette().color(focused ? QPalette::Highlight : QPalette::Mid), focused ? 2 : 1));
        painter.drawRect(face.adjusted(at, at, -at, -at));
    }

  private:
    TextBox& box_;
};

class SwatchControl : public DialogControl {
  public:
    explicit SwatchControl(SwatchButton* native) : DialogControl(native), native_(*native) {}
    void sync(const ControlLooks&) override { native_.show_color(); }

  private:
    SwatchButton& native_;
};

}  // namespace

std::unique_ptr<DialogControl> make_swatch_control(TextBox& box, QWidget* parent) {
    return std::make_unique<SwatchControl>(new SwatchButton(box, parent));
}

}  // namespace tarnwick

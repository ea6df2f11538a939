#include "desktop/dialog_accessible.h"

#include <QAccessibleWidget>
#include <QWidget>

#include "platform/desktop.h"

namespace tarnwick {
namespace {

class PressableAccessible : public QAccessibleWidget {
  public:
    explicit PressableAccessible(QWidget& widget) : QAccessibleWidget(&widget, QAccessible::Button) {}

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& action) override {
        if (action != pressAction()) return QAccessibleWidget::doAction(action);
        // Later: what is pressed may open a dialog, and whoever asks for it does not wait for its end.
        QMetaObject::invokeMethod(
            widget(),
            [pressed = widget()] {
                if (desktop().in_event()) return;
                dynamic_cast<Pressable&>(*pressed).press();
            },
            Qt::QueuedConnection);
    }
};

QAccessibleInterface* make_accessible(const QString&, QObject* object) {
    const auto* pressable = dynamic_cast<Pressable*>(object);
    if (!pressable || !pressable->takes_presses()) return nullptr;
    return new PressableAccessible(*static_cast<QWidget*>(object));
}

}  // namespace

void install_dialog_accessibility() { QAccessible::installFactory(make_accessible); }

}  // namespace tarnwick

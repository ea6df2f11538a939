#include "desktop/dialogs/dialog_accessible.h"

#include <QAccessibleWidget>
#include <QWidget>

#include "view/control_presses.h"

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
            [pressed = widget()] { press(dynamic_cast<Pressable&>(*pressed).pressed()); },
            Qt::QueuedConnection);
    }
};

QAccessibleInterface* make_accessible(const QString&, QObject* object) {
    const auto* pressable = dynamic_cast<Pressable*>(object);
    if (!pressable || !is_pressable(pressable->pressed())) return nullptr;
    return new PressableAccessible(*static_cast<QWidget*>(object));
}

}  // namespace

void install_dialog_accessibility() { QAccessible::installFactory(make_accessible); }

}  // namespace tarnwick

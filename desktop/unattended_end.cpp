#include "desktop/unattended_end.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include "desktop/qt_desktop.h"
#include "desktop/signals.h"
#include "ui/program.h"

namespace tarnwick {

UnattendedEnd::UnattendedEnd(QtDesktop& desktop) : desktop_(desktop) {
    qApp->installEventFilter(this);
    catch_end_signals(*this, [this] { begin(); });
}

void UnattendedEnd::begin() {
    desktop_.leave_unattended();
    if (desktop_.in_event()) {
        QTimer::singleShot(0, this, [this] { begin(); });
        return;
    }
    shut_down_program();
    QCoreApplication::exit();
}

bool UnattendedEnd::eventFilter(QObject* watched, QEvent* event) {
    // Left to itself, the toolkit would ask every window to close, and the first dialog would refuse.
    if (event->type() != QEvent::Quit || watched != qApp) return false;
    begin();
    return true;
}

}  // namespace tarnwick

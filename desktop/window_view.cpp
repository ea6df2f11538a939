#include "desktop/window_view.h"

#include "desktop/qt_convert.h"
#include "desktop/qt_desktop.h"

namespace tarnwick {

WindowView::WindowView(QtDesktop& desktop, Form& form) : desktop_(desktop), form_(form) {
    desktop_.add(*this);
}

WindowView::~WindowView() {
    desktop_.remove(*this);
    if (!window_) return;
    desktop_.detach_dialogs_of(*window_);
    window_->hide();
    window_->deleteLater();
}

void WindowView::form_changed() {
    if (!form_.visible()) return;
    if (window_) {
        sync_window();
        return;
    }
    window_ = make_window();
    sync_window();
    show_window();
    window_->activateWindow();
}

void WindowView::raise() {
    if (!window_) return;
    if (window_->isMinimized()) window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->raise();
    window_->activateWindow();
}

}  // namespace tarnwick

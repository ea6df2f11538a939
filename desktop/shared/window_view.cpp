#include "desktop/shared/window_view.h"

namespace tarnwick {

WindowView::WindowView(WindowList& windows, Form& form) : windows_(windows), here_{form} {
    windows_.add(here_);
}

WindowView::~WindowView() {
    windows_.remove(here_);
    if (!here_.native) return;
    windows_.detach_dialogs_of(*here_.native);
    here_.native->hide();
    here_.native->deleteLater();
}

void WindowView::form_changed() {
    if (!form().visible()) return;
    if (here_.native) {
        sync_window();
        return;
    }
    here_.native = make_window();
    sync_window();
    if (windows_.holds_back(form())) return;
    show_window();
    here_.native->activateWindow();
}

void WindowView::raise() {
    QWidget* window = here_.native;
    if (!window) return;
    if (window->isMinimized()) window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

}  // namespace tarnwick

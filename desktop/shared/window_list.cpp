#include "desktop/shared/window_list.h"

#include <QApplication>
#include <algorithm>
#include <utility>

namespace tarnwick {

void WindowList::remove(OpenWindow& window) {
    std::erase(windows_, &window);
    if (holds_back(window.form)) held_back_ = nullptr;
}

void WindowList::hold_back(const Form& form, std::function<void()> shown) {
    held_back_ = &form;
    shown_ = std::move(shown);
}

void WindowList::show_held_back() {
    const Form* form = std::exchange(held_back_, nullptr);
    if (!form) return;
    std::exchange(shown_, {})();
    // What the player writes in another program is not for a window of this one.
    const bool is_elsewhere = !QApplication::activeWindow();
    for (const OpenWindow* window : windows_) {
        if (&window->form != form || !window->native) continue;
        window->native->setAttribute(Qt::WA_ShowWithoutActivating, is_elsewhere);
        window->native->show();
    }
    QWidget* front = front_window();
    if (front && !is_elsewhere) front->activateWindow();
}

QWidget* WindowList::main_window() const {
    for (const OpenWindow* window : windows_) {
        if (window->native && window->form.is_board() && !window->form.unloading()) return window->native;
    }
    return nullptr;
}

QWidget* WindowList::front_window() const {
    const auto shown = [this](const OpenWindow* window) {
        return window->native && window->form.visible() && !holds_back(window->form);
    };
    const auto front = std::find_if(windows_.rbegin(), windows_.rend(), shown);
    return front == windows_.rend() ? nullptr : (*front)->native.data();
}

bool WindowList::is_disabled(const QWidget& native) const {
    return std::any_of(windows_.begin(), windows_.end(), [&native](const OpenWindow* window) {
        return window->native == &native && !window->form.enabled();
    });
}

void WindowList::detach_dialogs_of(const QWidget& window) const {
    for (const OpenWindow* other : windows_) {
        QWidget* dialog = other->native;
        if (!dialog || dialog->parentWidget() != &window) continue;
        const QPoint place = dialog->pos();
        dialog->setParent(nullptr, dialog->windowFlags());
        dialog->move(place);
        if (other->form.visible()) dialog->show();
    }
}

void WindowList::close() {
    while (!windows_.empty()) windows_.back()->form.take_view().reset();
}

void WindowList::abandon() {
    for (const OpenWindow* window : std::exchange(windows_, {})) {
        static_cast<void>(window->form.take_view().release());
    }
}

}  // namespace tarnwick

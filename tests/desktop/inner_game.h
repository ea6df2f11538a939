#pragma once

#include <QAccessible>
#include <QApplication>
#include <QWidget>
#include <QWindow>
#include <cstdint>
#include <string>

#include "desktop/app/qt_desktop.h"
#include "desktop/shared/qt_convert.h"
#include "platform/form.h"
#include "platform/random.h"
#include "settings/store.h"
#include "tools/driver/eventually.h"
#include "ui/program.h"

namespace tarnwick {

/// Lets the program of this process go on until the condition holds; false when it did not in time.
template <class Condition>
bool comes_true(Condition condition) {
    return eventually([&] {
        QApplication::processEvents();
        return condition();
    });
}

/// Lets everything happen that waits to.
inline void settle() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
}

/// The native widget with this name that is shown, or null.
inline QWidget* shown_widget(const std::string& name) {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == to_qt(name) && widget->isVisible()) return widget;
    }
    return nullptr;
}

/// Does what a screen reader does to a button.
inline void press(QAccessibleInterface& button) {
    button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

/// The program in its real window, but in this process, where the toolkit can be asked about it.
class InnerGame {
  public:
    explicit InnerGame(std::uint32_t deal) {
        random_generator().replay(deal);
        start_program(store_);
        comes_true([] { return shown_widget("board")->window()->windowHandle()->isExposed(); });
    }
    ~InnerGame() {
        end_program();
        random_generator().stop_replay();
        settle();
    }
    InnerGame(const InnerGame&) = delete;
    InnerGame& operator=(const InnerGame&) = delete;

    void save(const std::string& key, const std::string& text) {
        store_.save("Tarnwick", "setting", key, text);
    }

  private:
    QtDesktop desktop_;
    MemoryStore store_;
};

}  // namespace tarnwick

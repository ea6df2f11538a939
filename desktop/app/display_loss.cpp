#include "desktop/app/display_loss.h"

#include <QCoreApplication>
#include <QThread>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <utility>

#include "desktop/app/qt_desktop.h"
#include "desktop/app/signals.h"
#include "platform/headless.h"
#include "settings/store.h"
#include "ui/program.h"

namespace tarnwick {
namespace {

// What is to be ended; null while nothing is.
QtDesktop* lost_desktop = nullptr;
Store* open_store = nullptr;
QtMessageHandler usual_handler = nullptr;

class NoDisplay : public HeadlessDesktop {
  protected:
    void unheard(const Message& message) override { write_message(message); }
};

void end_without_display() {
    if (!lost_desktop) return;
    QtDesktop& lost = *std::exchange(lost_desktop, nullptr);
    lost.abandon_windows();
    NoDisplay none;
    none.set_date(lost.short_date());
    shut_down_program();
    open_store->close();
    end_by_caught_signal();
    // Nothing static is destroyed: the toolkit's part of it would meet the broken connection.
    std::_Exit(EXIT_FAILURE);
}

void look_for_loss(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    usual_handler(type, context, text);
    if (!text.startsWith("The Wayland connection ")) return;
    if (QThread::currentThread() == qApp->thread()) {
        end_without_display();
        return;
    }
    // One of the toolkit's own threads has noticed, and would end the process when it gets on: the game
    // belongs to the main thread, which has this long.
    constexpr std::chrono::seconds long_enough{10};
    QMetaObject::invokeMethod(qApp, end_without_display, Qt::QueuedConnection);
    std::this_thread::sleep_for(long_enough);
}

}  // namespace

DisplayLoss::DisplayLoss(QtDesktop& desktop, Store& store) {
    // What is first used after std::atexit is destroyed before the function runs that is registered here: of
    // the toolkit that function uses the date, which is therefore asked for now.
    desktop.short_date();
    lost_desktop = &desktop;
    open_store = &store;
    usual_handler = qInstallMessageHandler(look_for_loss);
    std::atexit(end_without_display);
}

DisplayLoss::~DisplayLoss() {
    lost_desktop = nullptr;
    qInstallMessageHandler(usual_handler);
}

}  // namespace tarnwick

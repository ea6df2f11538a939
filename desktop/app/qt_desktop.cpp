#include "desktop/app/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDate>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <utility>

#include "desktop/app/lean_style.h"
#include "desktop/board/board_accessible.h"
#include "desktop/board/board_window.h"
#include "desktop/dialogs/color_picker.h"
#include "desktop/dialogs/dialog_accessible.h"
#include "desktop/dialogs/dialog_window.h"
#include "desktop/dialogs/help_window.h"
#include "desktop/shared/qt_convert.h"
#include "notation/outside_text.h"
#include "platform/timer.h"

namespace tarnwick {

void write_message(const Message& message) { std::cerr << "tarnwick: " << printable(message.text) << '\n'; }

QtDesktop::QtDesktop() {
    use_desktop(this);
    QApplication::setQuitOnLastWindowClosed(false);
    // A menu bar elsewhere on the screen would change what a window's height means, and to look for one takes
    // as long as all else at the start.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication::setStyle(new LeanStyle);
    // The windows are laid out by hand for their English texts, whatever way the desktop's language runs.
    QApplication::setLayoutDirection(Qt::LeftToRight);
    install_board_accessibility();
    install_dialog_accessibility();
    QObject::connect(&background_, &QTimer::timeout, &background_, [this] {
        // A copy: it may end itself.
        const std::function<void()> action = background_action_;
        if (action) action();
    });
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
    // A window without any widget that takes the keyboard, as a disabled one is, tells of its focus only
    // here.
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &timer_, [this] { hand_on_keyboard(); });
}

QtDesktop::~QtDesktop() {
    // Forms may outlive the toolkit; their views and windows must not.
    windows_.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    use_desktop(nullptr);
}

PixelSize QtDesktop::screen_size() const {
    const QSize size = QGuiApplication::primaryScreen()->availableSize();
    return {size.width(), size.height()};
}

std::int64_t QtDesktop::now() const {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::string QtDesktop::short_date() const {
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::int64_t QtDesktop::double_click_time() const { return QApplication::doubleClickInterval(); }

std::unique_ptr<FormView> QtDesktop::make_view(Form& form) {
    if (form.is_board()) return std::make_unique<BoardView>(windows_, form);
    return std::make_unique<DialogView>(windows_, form);
}

void QtDesktop::timers_changed() {
    if (!in_event()) arm_timer();
}

void QtDesktop::event_ended() {
    arm_timer();
    // What a message has kept from being settled.
    if (!windows_.front_window()) windows_changed();
}

void QtDesktop::arm_timer() {
    const std::optional<std::int64_t> time = time_to_next_tick();
    if (time) {
        timer_.start(std::chrono::milliseconds(*time));
    } else {
        timer_.stop();
    }
}

void QtDesktop::tick() {
    // While a message waits for its answer, the timers wait too; the end of its event arms them again.
    if (in_event()) return;
    timer_queue().run_due();
    arm_timer();
}

void QtDesktop::run_in_background(std::function<void()> action) {
    background_action_ = std::move(action);
    if (background_action_) {
        background_.start(std::chrono::seconds(1));
    } else {
        background_.stop();
    }
}

void QtDesktop::windows_changed() {
    QMetaObject::invokeMethod(
        &timer_, [this] { settle_windows(); }, Qt::QueuedConnection);
}

void QtDesktop::settle_windows() {
    // A message that waits for its answer is the last window of the program, whatever happens to the others.
    if (in_event()) return;
    QWidget* front = windows_.front_window();
    if (!front) {
        // Where no event loop runs, the next one, a message's, would end at once. QApplication::quit() is for
        // those who want the program to end: it asks every window.
        if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit();
        return;
    }
    // A dialog that has gone leaves the keyboard to the window under it. A message keeps it from all of them.
    if (!QApplication::activeWindow() && !QApplication::activeModalWidget()) front->activateWindow();
}

void QtDesktop::hand_on_keyboard() {
    // A disabled window that the user clicks hands the keyboard on to the dialog that it waits for.
    QWidget* front = windows_.front_window();
    const QWidget* main = windows_.main_window();
    if (QApplication::activeModalWidget()) return;
    if (!front || !main || front == main || main->windowHandle() != QGuiApplication::focusWindow()) return;
    if (!windows_.is_disabled(*main)) return;
    front->activateWindow();
    // A window manager that is still busy with the click may give the keyboard back: looked at again.
    constexpr std::chrono::milliseconds a_moment{100};
    QTimer::singleShot(a_moment, &timer_, [this] { hand_on_keyboard(); });
}

void QtDesktop::show_message(const Message& message) {
    // Later it would come to lie over the message.
    windows_.show_held_back();
    const QPointer<QMessageBox> box = new QMessageBox(windows_.front_window());
    box->setWindowTitle(to_qt(message.title));
    box->setTextFormat(Qt::PlainText);
    box->setText(to_qt(message.text));
    const bool can_cancel = message.buttons == MessageButtons::ok_cancel;
    box->setStandardButtons(can_cancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    box->setDefaultButton(QMessageBox::Ok);
    const bool confirmed = run_question(*box) == QMessageBox::Ok;
    delete box;
    answered(confirmed ? MessageAnswer::ok : MessageAnswer::cancel);
}

void QtDesktop::unheard(const Message& message) { write_message(message); }

void QtDesktop::show_color_picker(const std::string& title) {
    const QPointer<QColorDialog> dialog = make_color_picker(Qt::white, to_qt(title), windows_.front_window());
    const bool picked = run_question(*dialog) == QDialog::Accepted && dialog;
    const Color color = picked ? from_qt(dialog->selectedColor()) : black;
    delete dialog;
    answered(picked ? MessageAnswer::ok : MessageAnswer::cancel, color);
}

// Runs a dialog in an event loop of its own. It may be gone afterwards, with the window that it belongs to.
int QtDesktop::run_question(QDialog& dialog) {
    question_ = &dialog;
    return dialog.exec();
}

void QtDesktop::take_back_question() {
    if (question_) question_->reject();
}

bool QtDesktop::show_help(const std::string& file_name) {
    const QString path = find_help(to_qt(file_name));
    if (path.isEmpty()) return false;
    if (!help_) help_ = std::make_unique<HelpWindow>();
    return help_->show_file(path);
}

void QtDesktop::copy_text(const std::string& text) { QGuiApplication::clipboard()->setText(to_qt(text)); }

}  // namespace tarnwick

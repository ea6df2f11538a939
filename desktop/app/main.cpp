#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>

#include "desktop/app/command_line.h"
#include "desktop/app/display_loss.h"
#include "desktop/app/qt_desktop.h"
#include "desktop/app/record_file.h"
#include "desktop/app/signals.h"
#include "desktop/app/unattended_end.h"
#include "desktop/shared/high_contrast.h"
#include "desktop/shared/picture_cache.h"
#include "notation/game_recorder.h"
#include "notation/outside_text.h"
#include "platform/random.h"
#include "settings/sqlite/sqlite_store.h"
#include "settings/sqlite/store_path.h"
#include "ui/program.h"

namespace {

using namespace tarnwick;

constexpr int bad_usage = 2;

bool is_set(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

// Where the toolkit finds no display it would end the program with a crash and a page of hints.
void report_missing_display(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::cerr << "tarnwick: the display cannot be opened\n";
    std::_Exit(EXIT_FAILURE);
}

// The icon is for the desktop around the window, which can wait until the board is painted.
void set_icon_later() {
    constexpr std::chrono::milliseconds a_moment{200};
    QTimer::singleShot(a_moment, qApp, [] {
        QIcon icon;
        for (const int size : {16, 24}) {
            icon.addPixmap(QPixmap::fromImage(render_drawing("icon-small", {size, size})));
        }
        for (const int size : {32, 48, 64, 128}) {
            icon.addPixmap(QPixmap::fromImage(render_drawing("icon", {size, size})));
        }
        QApplication::setWindowIcon(icon);
    });
}

// Every window goes before its desktop, whichever way the program is left.
class EndOfProgram {
  public:
    EndOfProgram() = default;
    ~EndOfProgram() { end_program(); }
    EndOfProgram(const EndOfProgram&) = delete;
    EndOfProgram& operator=(const EndOfProgram&) = delete;
};

int run(const CommandLine& command, int argc, char** argv) {
    if (!is_set("DISPLAY") && !is_set("WAYLAND_DISPLAY") && !is_set("QT_QPA_PLATFORM")) {
        std::cerr << "tarnwick: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set)\n";
        return EXIT_FAILURE;
    }
    const QtMessageHandler handler = qInstallMessageHandler(report_missing_display);
    QApplication application(argc, argv);
    qInstallMessageHandler(handler);
    QApplication::setApplicationName("tarnwick");
    QApplication::setApplicationVersion(TARNWICK_VERSION);
    QGuiApplication::setDesktopFileName("org.tarnwick.tarnwick");

    if (command.four_colors) use_four_colors();
    if (command.high_contrast) use_high_contrast();
    follow_desktop_contrast();

    const std::string store_path = command.store.empty() ? default_store_path() : command.store;
    const std::unique_ptr<RecordFile> record = record_beside_store(command.record, store_path);
    std::optional<GameRecorder> recorder;
    if (record) recorder.emplace(*record);
    // Outlives the windows, which may ask for settings until they are gone.
    SqliteStore store(store_path);
    QtDesktop desktop;
    const UnattendedEnd unattended_end(desktop);
    if (command.deal) random_generator().replay(*command.deal);
    const EndOfProgram end_of_program;
    start_program(store);
    const DisplayLoss display_loss(desktop, store);
    if (recorder) recorder->begin();
    set_icon_later();
    const int status = QApplication::exec();
    // While there is a desktop to tell the player on what could not be saved.
    store.close();
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    // A pipe that nobody reads any more, or a file that may not grow, is an error where it is written.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        const CommandLine command = parse_command_line({argv + 1, argv + argc});
        if (command.help) std::cout << command_line_help();
        if (command.version) std::cout << "tarnwick " TARNWICK_VERSION "\n";
        if (command.help || command.version) {
            flush_standard_output();
            return EXIT_SUCCESS;
        }
        const int status = run(command, argc, argv);
        end_by_caught_signal();
        return status;
    } catch (const CommandLineError& error) {
        std::cerr << "tarnwick: " << printable(error.what()) << '\n';
        return bad_usage;
    } catch (const std::exception& error) {
        std::cerr << "tarnwick: " << printable(error.what()) << '\n';
        return EXIT_FAILURE;
    }
}

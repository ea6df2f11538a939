#include "desktop/app/signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

namespace tarnwick {
namespace {

// What a signal handler may touch. The pipe stays open to the end: a signal can come as late as that.
volatile std::sig_atomic_t caught = 0;
std::array<int, 2> wake_up{-1, -1};

void note(int signal) {
    const int error = errno;
    if (caught == 0) caught = signal;
    // A pipe that is full has woken the program up already.
    [[maybe_unused]] const ssize_t written = write(wake_up[1], "", 1);
    errno = error;
}

void drain() {
    std::array<char, 16> bytes{};
    while (read(wake_up[0], bytes.data(), bytes.size()) > 0) {
    }
}

void set_action(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

bool is_ignored(int signal) {
    struct sigaction action {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

void catch_end_signals(QObject& context, std::function<void()> end) {
    if (pipe2(wake_up.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "no pipe for signals can be made");
    }
    auto* notifier = new QSocketNotifier(wake_up[0], QSocketNotifier::Read, &context);
    QObject::connect(notifier, &QSocketNotifier::activated, &context, [end = std::move(end)] {
        drain();
        end();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        if (!is_ignored(signal)) set_action(signal, note);
    }
}

void end_by_caught_signal() {
    if (caught == 0) return;
    set_action(caught, SIG_DFL);
    raise(caught);
}

}  // namespace tarnwick

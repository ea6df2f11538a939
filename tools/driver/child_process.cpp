#include "tools/driver/child_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <system_error>

#include "tools/driver/eventually.h"

namespace tarnwick {
namespace {

int checked(int result, const char* what) {
    if (result < 0) throw std::system_error(errno, std::generic_category(), what);
    return result;
}

[[noreturn]] void become(const std::string& program, const std::vector<std::string>& arguments,
                         const Environment& environment) {
    for (const auto& [name, value] : environment) {
        if (value.empty()) {
            unsetenv(name.c_str());
        } else {
            setenv(name.c_str(), value.c_str(), 1);
        }
    }
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    constexpr int not_found = 127;
    _exit(not_found);
}

}  // namespace

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments,
                           const Environment& environment)
    : output_(checked(memfd_create("output", MFD_CLOEXEC), "memfd_create")),
      errors_(checked(memfd_create("errors", MFD_CLOEXEC), "memfd_create")) {
    pid_ = checked(fork(), "fork");
    if (pid_ != 0) return;
    dup2(output_, STDOUT_FILENO);
    dup2(errors_, STDERR_FILENO);
    become(program, arguments, environment);
}

ChildProcess::~ChildProcess() {
    if (running()) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    close(output_);
    close(errors_);
}

void ChildProcess::look() {
    int status = 0;
    if (exit_code_ || waitpid(pid_, &status, WNOHANG) != pid_) return;
    constexpr int signalled = 128;
    exit_code_ = WIFEXITED(status) ? WEXITSTATUS(status) : signalled + WTERMSIG(status);
}

bool ChildProcess::running() {
    look();
    return !exit_code_;
}

std::optional<int> ChildProcess::exit_code(std::chrono::milliseconds limit) {
    eventually([this] { return !running(); }, limit);
    return exit_code_;
}

std::string ChildProcess::read(int file) {
    std::string text;
    std::array<char, 4096> part{};
    // At a position of its own: the child shares the file's.
    while (true) {
        const ssize_t size = pread(file, part.data(), part.size(), static_cast<off_t>(text.size()));
        if (size <= 0) return text;
        text.append(part.data(), static_cast<std::size_t>(size));
    }
}

}  // namespace tarnwick

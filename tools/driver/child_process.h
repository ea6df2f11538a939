#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// Variables set for a child process; an empty value removes the variable.
using Environment = std::vector<std::pair<std::string, std::string>>;

/// A program that runs beside this one. What it writes is kept; it does not outlive this object.
class ChildProcess {
  public:
    /// Starts the program. Throws std::system_error.
    ChildProcess(const std::string& program, const std::vector<std::string>& arguments,
                 const Environment& environment = {});
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return pid_; }
    bool running();
    /// The exit code once the program has ended, 128 and more for a signal; nothing when it still runs.
    std::optional<int> exit_code(std::chrono::milliseconds limit = std::chrono::seconds(10));

    /// What it has written so far, to its standard output and its standard error.
    std::string output() const { return read(output_); }
    std::string errors() const { return read(errors_); }

  private:
    static std::string read(int file);
    void look();

    pid_t pid_ = -1;
    int output_ = -1;
    int errors_ = -1;
    std::optional<int> exit_code_;
};

}  // namespace tarnwick

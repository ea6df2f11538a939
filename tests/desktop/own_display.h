#pragma once

#include <signal.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/driver/child_process.h"
#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"

namespace tarnwick {

/// A virtual display with a window manager, which can be killed. Programs are started on it while it lives.
class OwnDisplay {
  public:
    /// Throws std::runtime_error.
    OwnDisplay() {
        if (!eventually([this] { return server_.output().ends_with('\n'); })) {
            throw std::runtime_error("the display does not start");
        }
        const std::string number = server_.output();
        name_ = ':' + number.substr(0, number.size() - 1);
        const std::string mark = folder_.path() + "/up";
        manager_ = std::make_unique<ChildProcess>(
            "/usr/bin/openbox", std::vector<std::string>{"--sm-disable", "--startup", "touch " + mark},
            Environment{{"DISPLAY", name_}});
        if (!eventually([&mark] { return std::filesystem::exists(mark); }, std::chrono::seconds(60))) {
            throw std::runtime_error("the window manager does not start");
        }
        setenv("DISPLAY", name_.c_str(), 1);
    }
    ~OwnDisplay() { setenv("DISPLAY", before_.c_str(), 1); }
    OwnDisplay(const OwnDisplay&) = delete;
    OwnDisplay& operator=(const OwnDisplay&) = delete;

    void kill() { ::kill(server_.pid(), SIGKILL); }

  private:
    std::string before_ = std::getenv("DISPLAY");
    std::string name_;
    TemporaryFolder folder_;
    ChildProcess server_{"/usr/bin/Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24"}};
    std::unique_ptr<ChildProcess> manager_;
};

}  // namespace tarnwick

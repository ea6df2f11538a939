#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tarnwick {

/// A folder that is gone with its owner, in memory where the system has such a place: what is tested here is
/// what a program leaves behind, not how long a disk takes.
class ScratchFolder {
  public:
    explicit ScratchFolder(const std::string& name) {
        const std::filesystem::path memory = "/dev/shm";
        const bool usable = access(memory.c_str(), W_OK) == 0;
        path_ = (usable ? memory : std::filesystem::temp_directory_path()) /
                ("tarnwick-" + name + '-' + std::to_string(getpid()));
        empty();
    }
    ~ScratchFolder() { std::filesystem::remove_all(path_); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    void empty() const {
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    static std::string contents(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static void write(const std::filesystem::path& file, const std::string& contents) {
        std::ofstream(file, std::ios::binary) << contents;
    }

  private:
    std::filesystem::path path_;
};

/// The short number of repetitions, or with TARNWICK_LONG=1 in the environment the long one.
inline int short_or_long(int short_number, int long_number) {
    const char* wanted = std::getenv("TARNWICK_LONG");
    return wanted && std::string(wanted) == "1" ? long_number : short_number;
}

}  // namespace tarnwick

#include "desktop/app/record_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <utility>

#include "desktop/app/command_line.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::optional<struct stat> status_of(const std::string& name) {
    struct stat status {};
    if (stat(name.c_str(), &status) != 0) return std::nullopt;
    return status;
}

bool is_one_file(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

std::string why_not_opened(const std::string& name, int error) {
    std::string sentence = "the record of the game cannot be written to " + name;
    if (error == ELOOP) return sentence + ": the symbolic link leads round in a circle";
    const auto status = status_of(name);
    if (error == ENXIO && status && S_ISFIFO(status->st_mode)) {
        return sentence + ": nobody reads this pipe; start its reader before the game";
    }
    return sentence;
}

// Every terminal and every null device is shared with others as a matter of course.
bool is_used_by_another(int descriptor, const struct stat& status) {
    return !S_ISCHR(status.st_mode) && flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

// What an editor has left without the end of its last line must not run into the first line of the record.
bool ends_within_a_line(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    file.seekg(-1, std::ios::end);
    const int last = file.get();
    return file && last != '\n';
}

bool write_whole(int descriptor, const std::string& text) {
    ssize_t written = 0;
    do {
        written = write(descriptor, text.data(), text.size());
    } while (written < 0 && errno == EINTR);
    return written == static_cast<ssize_t>(text.size());
}

// Where a file is or would be made: links are followed, those too that lead to nothing yet.
fs::path place_of(fs::path path) {
    constexpr int most_links = 40;
    std::error_code failure;
    // What does not exist yet would stay as it is named.
    path = fs::absolute(path, failure);
    for (int links = 0; links < most_links && fs::is_symlink(fs::symlink_status(path, failure)); ++links) {
        path = path.parent_path() / fs::read_symlink(path, failure);
    }
    const fs::path place = fs::weakly_canonical(path, failure);
    return failure ? path.lexically_normal() : place;
}

}  // namespace

RecordFile::RecordFile(const std::string& name) : std::ostream(nullptr), buffer_(name) {
    rdbuf(&buffer_);
    exceptions(badbit);
}

RecordFile::Buffer::Buffer(const std::string& name) : name_(name) {
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    constexpr mode_t mode = 0666;
    descriptor_ = open(name.c_str(), flags, mode);
    struct stat status {};
    if (descriptor_ < 0 || fstat(descriptor_, &status) != 0) {
        throw std::runtime_error(why_not_opened(name, errno));
    }
    if (is_used_by_another(descriptor_, status)) {
        close();
        throw std::runtime_error("another game is recorded in " + name +
                                 ": end that one, or name another file with --record");
    }
    within_a_line_ = S_ISREG(status.st_mode) && ends_within_a_line(name);
}

void RecordFile::Buffer::close() {
    if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
}

int RecordFile::Buffer::sync() {
    struct stat before {};
    const auto named = status_of(name_);
    if (fstat(descriptor_, &before) != 0 || !named || !is_one_file(*named, before)) {
        close();
        throw std::runtime_error("The record of the game in " + name_ + " was deleted or replaced");
    }
    if (write_whole(descriptor_, (within_a_line_ ? "\n" : "") + str())) {
        within_a_line_ = false;
        str({});
        return 0;
    }
    const bool whole = !S_ISREG(before.st_mode) || ftruncate(descriptor_, before.st_size) == 0;
    close();
    throw std::runtime_error("The record of the game could not be written to " + name_ +
                             (whole ? "" : ", whose last line is broken off"));
}

bool names_one_file(const std::string& a, const std::string& b) {
    const auto first = status_of(a);
    const auto second = status_of(b);
    if (first && second) return is_one_file(*first, *second);
    return place_of(a) == place_of(b);
}

std::unique_ptr<RecordFile> record_beside_store(const std::string& name, const std::string& store_file) {
    if (name.empty()) return nullptr;
    // What stands in its journal SQLite plays into the store.
    if (names_one_file(name, store_file) || names_one_file(name, store_file + "-journal")) {
        throw CommandLineError("--record must not name the file of the settings, " + store_file);
    }
    return std::make_unique<RecordFile>(name);
}

}  // namespace tarnwick

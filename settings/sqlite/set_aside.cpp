#include "settings/sqlite/set_aside.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace tarnwick {
namespace fs = std::filesystem;
namespace {

// One program at a time replaces files in a folder. Where a folder cannot be locked, each does as it likes.
class FolderLock {
  public:
    FolderLock(const fs::path& folder, LockPatience& patience)
        : descriptor_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        while (flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            if (patience.wait()) continue;
            close(descriptor_);
            throw FileError("another program repairs it", FileFault::locked);
        }
    }
    ~FolderLock() {
        // What was renamed stays so after a power cut.
        fsync(descriptor_);
        close(descriptor_);
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

  private:
    int descriptor_;
};

bool is_whole(const std::string& path, LockPatience& patience) {
    // Opened as one that is yet to be filled, an emptied file would not be missed.
    std::error_code ignored;
    if (fs::file_size(path, ignored) == 0) return false;
    try {
        SqliteFile(path, patience).check();
        return true;
    } catch (const FileError& failure) {
        if (failure.fault() != FileFault::damaged) throw;
        return false;
    }
}

void write_new_file(const std::string& path, const SettingTexts& values, LockPatience& patience) {
    std::error_code ignored;
    fs::remove(path, ignored);
    fs::remove(path + "-journal", ignored);
    SqliteFile file(path, patience);
    file.begin();
    for (const auto& [address, text] : values) {
        if (text) file.write(address, *text);
    }
    file.commit();
}

// A second name for the file, one that is free.
fs::path link_aside(const fs::path& path) {
    for (int number = 1;; ++number) {
        fs::path aside = path;
        aside.replace_filename(path.stem().string() + ".damaged-" + std::to_string(number) +
                               path.extension().string());
        if (link(path.c_str(), aside.c_str()) == 0) return aside;
        if (errno == EEXIST) continue;
        // Not every disk knows second names.
        std::error_code failure;
        if (!fs::exists(fs::symlink_status(aside, failure))) fs::rename(path, aside, failure);
        if (failure) throw FileError(failure.message(), FileFault::out_of_reach);
        return aside;
    }
}

}  // namespace

std::string replace_damaged_file(const std::string& path, SettingTexts& values, LockPatience& patience) {
    const FolderLock lock(fs::path(path).parent_path(), patience);
    if (is_whole(path, patience)) return {};
    for (const auto& [address, text] : salvaged_values(path)) values[address] = text;
    const std::string fresh = path + ".new";
    write_new_file(fresh, values, patience);
    const fs::path aside = link_aside(path);
    // A journal left behind would be played into the new file.
    std::error_code ignored;
    fs::rename(path + "-journal", aside.string() + "-journal", ignored);
    std::error_code failure;
    fs::rename(fresh, path, failure);
    if (failure) throw FileError(failure.message(), FileFault::out_of_reach);
    return aside.string();
}

}  // namespace tarnwick

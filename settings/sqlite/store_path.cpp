#include "settings/sqlite/store_path.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "settings/sqlite/sqlite_file.h"

namespace tarnwick {
namespace fs = std::filesystem;
namespace {

// A relative folder in one of these would be another one for every place that the program is started in.
fs::path absolute_folder(const char* name) {
    return name && fs::path(name).is_absolute() ? fs::path(name) : fs::path();
}

fs::path home_folder() {
    fs::path home = absolute_folder(std::getenv("HOME"));
    if (!home.empty()) return home;
    const passwd* user = getpwuid(getuid());
    if (user) home = absolute_folder(user->pw_dir);
    if (home.empty()) {
        throw std::runtime_error(
            "there is no home folder to keep settings and scores in: name a file for them "
            "with --store");
    }
    return home;
}

}  // namespace

std::string default_store_path() {
    fs::path folder = absolute_folder(std::getenv("XDG_DATA_HOME"));
    if (folder.empty()) folder = home_folder() / ".local" / "share";
    return (folder / "tarnwick" / "settings.sqlite").string();
}

std::string resolved_store_path(const std::string& name) {
    if (name.empty()) throw FileError("the file has no name", FileFault::out_of_reach);
    std::error_code failure;
    fs::path path = fs::absolute(name, failure);
    if (failure) throw FileError(failure.message(), FileFault::out_of_reach);
    constexpr int most_links = 40;
    for (int links = 0; fs::is_symlink(path, failure); ++links) {
        if (links == most_links) {
            throw FileError("its links lead round in a circle", FileFault::out_of_reach);
        }
        const fs::path target = fs::read_symlink(path, failure);
        if (failure) throw FileError(failure.message(), FileFault::out_of_reach);
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    return path.string();
}

}  // namespace tarnwick

#include "settings/sqlite_store.h"

#include <cstdlib>
#include <filesystem>

namespace tarnwick {
namespace fs = std::filesystem;

SqliteStore::SqliteStore(const std::string& path) : path_(path) { open(); }

void SqliteStore::open() {
    file_.reset();
    std::error_code ignored;
    const fs::path folder = fs::path(path_).parent_path();
    if (!folder.empty()) fs::create_directories(folder, ignored);
    try {
        file_ = std::make_unique<SqliteFile>(path_);
    } catch (const FileError& failure) {
        if (!failure.damaged() || !set_aside()) {
            tell_unwritten(failure.what());
            return;
        }
        try {
            file_ = std::make_unique<SqliteFile>(path_);
            write_out();
        } catch (const FileError& second) {
            tell_unwritten(second.what());
        }
    }
}

void SqliteStore::reopen_if_moved() {
    if (file_ && !in_transaction_ && !file_->still_in_place()) open();
}

bool SqliteStore::set_aside() {
    const fs::path path(path_);
    fs::path aside;
    std::error_code failure;
    int number = 1;
    do {
        aside = path;
        aside.replace_filename(path.stem().string() + ".damaged-" + std::to_string(number++) +
                               path.extension().string());
    } while (fs::exists(fs::symlink_status(aside, failure)));
    fs::rename(path, aside, failure);
    if (failure) return false;
    // A journal left behind would be played into the new file.
    fs::rename(path_ + "-journal", aside.string() + "-journal", failure);
    for (const auto& [address, text] : salvaged_values(aside.string())) unwritten_.try_emplace(address, text);
    notice("The file with your settings and scores was damaged: it was set aside as \"" + aside.string() +
           "\", and a new one was begun with what could still be read.");
    return true;
}

bool SqliteStore::recovered_from(const FileError& failure) {
    begun_ = false;
    file_->roll_back();
    if (!failure.damaged()) return false;
    file_.reset();
    if (!set_aside()) return false;
    open();
    return file_ != nullptr;
}

void SqliteStore::tell_unwritten(const std::string& why) {
    if (told_unwritten_) return;
    told_unwritten_ = true;
    notice("Settings and scores cannot be saved in \"" + path_ + "\" (" + why +
           "): you can play on, but they will be lost when you close the game.");
}

std::optional<std::string> SqliteStore::read(const std::string& application, const std::string& section,
                                             const std::string& key) {
    const SettingAddress address{application, section, key};
    for (const auto* values : {&pending_, &unwritten_}) {
        if (const auto found = values->find(address); found != values->end()) return found->second;
    }
    reopen_if_moved();
    if (!file_) return std::nullopt;
    try {
        return file_->read(address);
    } catch (const FileError& failure) {
        if (recovered_from(failure)) return read(application, section, key);
        // Without its old values the file must not be written again: counts would start anew from nothing.
        tell_unwritten(failure.what());
        file_.reset();
        return std::nullopt;
    }
}

void SqliteStore::save(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& text) {
    const auto save_one = [&] { pending_[{application, section, key}] = text; };
    if (in_transaction_) {
        save_one();
    } else {
        transaction(save_one, {});
    }
}

void SqliteStore::carry_out(const std::function<void()>& action, const std::function<void()>& done) {
    reopen_if_moved();
    // Begun before the action reads anything: what it reads cannot change until it has written.
    begin();
    in_transaction_ = true;
    try {
        action();
    } catch (...) {
        in_transaction_ = false;
        pending_.clear();
        if (file_) file_->roll_back();
        throw;
    }
    in_transaction_ = false;
    for (const auto& [address, text] : pending_) unwritten_[address] = text;
    pending_.clear();
    write_out();
    if (done) done();
}

void SqliteStore::begin() {
    begun_ = false;
    if (!file_) return;
    try {
        file_->begin();
        begun_ = true;
    } catch (const FileError& failure) {
        // Tried again when there is something to write.
        recovered_from(failure);
    }
}

void SqliteStore::write_out() {
    for (int tries = 0; tries < 2 && file_; ++tries) {
        try {
            if (!begun_) file_->begin();
            begun_ = false;
            for (const auto& [address, text] : unwritten_) file_->write(address, text);
            file_->commit();
            unwritten_.clear();
            return;
        } catch (const FileError& failure) {
            if (recovered_from(failure)) continue;
            tell_unwritten(failure.what());
            return;
        }
    }
}

std::string default_store_path() {
    const char* data_home = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    fs::path folder;
    if (data_home && fs::path(data_home).is_absolute()) {
        folder = data_home;
    } else {
        folder = fs::path(home ? home : ".") / ".local" / "share";
    }
    return (folder / "tarnwick" / "settings.sqlite").string();
}

}  // namespace tarnwick

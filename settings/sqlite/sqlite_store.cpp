#include "settings/sqlite/sqlite_store.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "settings/sqlite/set_aside.h"
#include "settings/sqlite/store_path.h"

namespace tarnwick {
namespace fs = std::filesystem;
namespace {

constexpr std::chrono::seconds last_patience{2};
// A lock that is met so often by try_again() lasts.
constexpr int lasting = 5;

void keep(SettingTexts& texts, const SettingTexts& newer) {
    for (const auto& [address, text] : newer) texts[address] = text;
}

}  // namespace

SqliteStore::SqliteStore(const std::string& path) : path_(path) {
    open();
    do_what_waits();
}

SqliteStore::~SqliteStore() { SqliteStore::close(); }

void SqliteStore::close() {
    if (closed_) return;
    try_for_the_last_time();
    // Who has done nothing loses nothing: a check of the file may wait as well.
    if (!ahead_.empty() && !told_unwritten_) {
        notice("The file with your settings and scores, \"" + path_ +
               "\", is held by another program: what you did meanwhile is lost unless that lets go now.");
        try_for_the_last_time();
    }
    closed_ = true;
    file_.reset();
}

void SqliteStore::try_for_the_last_time() {
    if (waiting_.empty()) return;
    patience_.allow(last_patience);
    do_what_waits();
}

void SqliteStore::open() {
    file_.reset();
    for (int tries = 0; tries < 2 && !file_; ++tries) {
        try {
            path_ = resolved_store_path(path_);
            std::error_code ignored;
            fs::create_directories(fs::path(path_).parent_path(), ignored);
            auto file = std::make_unique<SqliteFile>(path_, patience_);
            seen_ = file->check();
            has_seen_all_ = true;
            file_ = std::move(file);
        } catch (const FileError& failure) {
            if (failure.fault() == FileFault::moved) continue;
            if (failure.fault() == FileFault::damaged && set_aside()) continue;
            meet(failure);
            return;
        }
    }
    try {
        if (file_ && waiting_.empty()) file_->try_writing();
    } catch (const FileError& failure) {
        meet(failure);
    }
}

void SqliteStore::reopen_if_moved() {
    if (!file_ || running_ != Running::nothing || file_->still_in_place()) return;
    reopen();
    do_what_waits();
}

void SqliteStore::reopen() {
    // Whoever took the file away, or put another one in its place, has wished for what is there now.
    has_seen_all_ = false;
    open();
}

bool SqliteStore::set_aside() {
    file_.reset();
    try {
        const std::string aside = replace_damaged_file(path_, seen_, patience_);
        if (aside.empty()) return true;
        notice("The file with your settings and scores was damaged: it was set aside as \"" + aside +
               "\", and a new one was begun with what could still be read.");
        return true;
    } catch (const FileError& failure) {
        meet(failure);
        return false;
    }
}

bool SqliteStore::recovered_from(const FileError& failure) {
    if (failure.fault() == FileFault::moved) {
        reopen();
    } else if (failure.fault() != FileFault::damaged || !set_aside()) {
        return false;
    } else {
        open();
    }
    return file_ != nullptr;
}

void SqliteStore::meet(const FileError& failure) {
    if (failure.fault() == FileFault::locked) {
        locked_ = true;
    } else if (!std::exchange(told_unwritten_, true)) {
        notice("Settings and scores cannot be saved in \"" + path_ + "\" (" + failure.what() +
               "): you can play on, but unless that changes they will be lost when you close the game.");
    }
    call_waiter();
}

std::optional<std::string> SqliteStore::read(const std::string& application, const std::string& section,
                                             const std::string& key) {
    const SettingAddress address{application, section, key};
    if (const auto found = pending_.find(address); found != pending_.end()) return found->second;
    if (running_ == Running::on_file) return file_->read(address);  // checked when the change began
    reopen_if_moved();
    if (const auto found = ahead_.find(address); found != ahead_.end()) return found->second;
    for (int tries = 0; tries < 2 && file_; ++tries) {
        try {
            std::optional<std::string> text = file_->read(address);
            // No program takes a value away: one that has gone tells of damage.
            if (!text && has_seen(address)) file_->check();
            seen_[address] = text;
            unknown_.erase(address);
            return text;
        } catch (const FileError& failure) {
            if (running_ == Running::nothing && recovered_from(failure)) continue;
            // Damage that is met while something waits is mended when that is done.
            if (failure.fault() != FileFault::damaged) meet(failure);
            break;
        }
    }
    if (const auto found = seen_.find(address); found != seen_.end()) return found->second;
    if (!has_seen_all_) unknown_.insert(address);
    return std::nullopt;
}

bool SqliteStore::has_seen(const SettingAddress& address) const {
    const auto found = seen_.find(address);
    return found != seen_.end() && found->second;
}

bool SqliteStore::knows(const std::string& application, const std::string& section,
                        const std::string& key) const {
    return !unknown_.contains({application, section, key});
}

void SqliteStore::save(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& text) {
    const SettingAddress address{application, section, key};
    const auto save_one = [this, address, text] { pending_[address] = text; };
    unknown_.erase(address);
    if (running_ != Running::nothing) {
        save_one();
    } else {
        transaction(save_one);
    }
}

void SqliteStore::carry_out(const std::function<void()>& action, const std::function<void()>& done) {
    if (running_ != Running::nothing) throw std::logic_error("a transaction within a transaction");
    reopen_if_moved();
    do_what_waits();
    Change change{action, done};
    if (waiting_.empty() && done_on_file(change)) return;
    run_ahead(change);
    waiting_.push_back(std::move(change));
    call_waiter();
}

bool SqliteStore::done_on_file(Change& change) {
    for (int tries = 0; tries < 2 && file_; ++tries) {
        try {
            run_on_file(change);
            if (change.done) change.done();
            return true;
        } catch (const FileError& failure) {
            if (recovered_from(failure)) continue;
            meet(failure);
            return false;
        }
    }
    return false;
}

void SqliteStore::run_on_file(Change& change) {
    file_->begin();
    running_ = Running::on_file;
    try {
        file_->check();
        if (!holds_already(change.doubtful)) change.action();
        for (const auto& [address, text] : pending_) file_->write(address, *text);
        commit(change);
        keep(seen_, pending_);
    } catch (...) {
        running_ = Running::nothing;
        pending_.clear();
        file_->roll_back();
        throw;
    }
    running_ = Running::nothing;
    pending_.clear();
}

void SqliteStore::commit(Change& change) {
    try {
        file_->commit();
    } catch (const FileError& failure) {
        if (failure.fault() != FileFault::locked) change.doubtful = pending_;
        throw;
    }
}

bool SqliteStore::holds_already(const SettingTexts& texts) {
    return !texts.empty() && std::all_of(texts.begin(), texts.end(), [this](const auto& entry) {
        return file_->read(entry.first) == entry.second;
    });
}

void SqliteStore::run_ahead(const Change& change) {
    running_ = Running::ahead;
    try {
        change.action();
    } catch (...) {
        running_ = Running::nothing;
        pending_.clear();
        throw;
    }
    running_ = Running::nothing;
    keep(ahead_, pending_);
    pending_.clear();
}

void SqliteStore::look_ahead() {
    ahead_.clear();
    for (const Change& change : waiting_) {
        try {
            run_ahead(change);
        } catch (const std::exception&) {
            // Told when it is done in earnest.
        }
    }
}

void SqliteStore::do_what_waits() {
    if (running_ != Running::nothing || closed_ || !waits()) return;
    if (!file_) {
        open();
    } else if (!file_->still_in_place()) {
        reopen();
    }
    while (file_ && !waiting_.empty()) {
        Change change = std::move(waiting_.front());
        waiting_.pop_front();
        try {
            if (done_on_file(change)) continue;
        } catch (const std::exception& failure) {
            notice(std::string("A result that had to wait could not be entered (") + failure.what() +
                   "): start the game anew to have the file with your settings and scores repaired.");
            continue;
        }
        waiting_.push_front(std::move(change));
        break;
    }
    look_ahead();
    if (waits()) return;
    locked_ = false;
    tries_under_lock_ = 0;
    told_lock_ = told_unwritten_ = false;
}

void SqliteStore::try_again() {
    patience_.suspend(true);
    do_what_waits();
    patience_.suspend(false);
    if (!waits() || !locked_ || ++tries_under_lock_ < lasting || std::exchange(told_lock_, true)) return;
    notice("Another program holds the file with your settings and scores, \"" + path_ +
           "\": you can play on, and what you do will be saved when it lets go.");
}

}  // namespace tarnwick

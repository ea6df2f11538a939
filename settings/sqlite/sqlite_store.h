#pragma once

#include <deque>
#include <memory>
#include <set>
#include <string>

#include "settings/sqlite/lock_patience.h"
#include "settings/sqlite/sqlite_file.h"
#include "settings/store.h"

namespace tarnwick {

/// The store in one SQLite file. Every read asks the file, and a save is on the disk when it returns.
///
/// Where the file is held by another program, or cannot be written, what was to be done waits, and is done
/// anew on what the file holds when it can be written again: with the next save, when try_again() is called,
/// and for the last time when the store is closed. Meanwhile reads tell what will come of it. A file that
/// turns out to be damaged is set aside beside a new one, and never overwritten; what could still be read of
/// it, or has been read or written by this object, goes into the new one. The listener is told of everything
/// that the player has to know.
class SqliteStore : public Store {
  public:
    /// Opens the file, creating it and its folder. Never throws.
    explicit SqliteStore(const std::string& path);
    ~SqliteStore() override;

    std::optional<std::string> read(const std::string& application, const std::string& section,
                                    const std::string& key) override;
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& text) override;
    bool knows(const std::string& application, const std::string& section,
               const std::string& key) const override;
    bool waits() const override { return !waiting_.empty() || !file_; }
    void try_again() override;
    void close() override;

  protected:
    void carry_out(const std::function<void()>& action, const std::function<void()>& done) override;

  private:
    struct Change {
        std::function<void()> action;
        std::function<void()> done = {};
        /// What was to be written by a commit that has failed: whether it has cannot always be told then.
        SettingTexts doubtful = {};
    };
    /// What the action that runs now reads from, and what becomes of what it saves.
    enum class Running { nothing, on_file, ahead };

    void open();
    void reopen_if_moved();
    void reopen();
    void try_for_the_last_time();
    bool set_aside();
    /// True when the damaged file has been replaced by a new one, so that the call is worth another try.
    bool recovered_from(const FileError& failure);
    bool done_on_file(Change& change);
    void run_on_file(Change& change);
    void commit(Change& change);
    bool has_seen(const SettingAddress& address) const;
    bool holds_already(const SettingTexts& texts);
    void run_ahead(const Change& change);
    void look_ahead();
    void do_what_waits();
    void meet(const FileError& failure);

    std::string path_;
    LockPatience patience_;
    std::unique_ptr<SqliteFile> file_;
    std::deque<Change> waiting_;
    /// What the file held when it was read or written last, what the waiting changes will make of it, and
    /// what the running action has saved so far.
    SettingTexts seen_;
    SettingTexts ahead_;
    SettingTexts pending_;
    /// Values that could not be read when they were asked for.
    std::set<SettingAddress> unknown_;
    Running running_ = Running::nothing;
    bool has_seen_all_ = false;  ///< what seen_ does not hold has not been there
    bool locked_ = false;
    int tries_under_lock_ = 0;
    bool told_lock_ = false;
    bool told_unwritten_ = false;
    bool closed_ = false;
};

}  // namespace tarnwick

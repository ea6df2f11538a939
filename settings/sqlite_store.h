#pragma once

#include <map>
#include <memory>
#include <string>

#include "settings/sqlite_file.h"
#include "settings/store.h"

namespace tarnwick {

/// The store in one SQLite file. Every read asks the file and every save is on the disk when it returns.
///
/// Values that cannot be written are kept in memory, and written with the next save that succeeds. A file
/// that turns out to be damaged is set aside beside the new one, and never overwritten. The listener is told.
class SqliteStore : public Store {
  public:
    /// Opens the file, creating it and its folder. Never throws: a store without a file works in memory.
    explicit SqliteStore(const std::string& path);

    std::optional<std::string> read(const std::string& application, const std::string& section,
                                    const std::string& key) override;
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& text) override;

  protected:
    void carry_out(const std::function<void()>& action, const std::function<void()>& done) override;

  private:
    void open();
    void reopen_if_moved();
    bool set_aside();
    /// True when the damaged file has been replaced by a new one, so that the call is worth another try.
    bool recovered_from(const FileError& failure);
    void begin();
    void write_out();
    void tell_unwritten(const std::string& why);

    std::string path_;
    std::unique_ptr<SqliteFile> file_;
    std::map<SettingAddress, std::string> unwritten_;
    /// What the running transaction has saved, and whether there is one.
    std::map<SettingAddress, std::string> pending_;
    bool in_transaction_ = false;
    /// Whether the file itself is inside a transaction.
    bool begun_ = false;
    bool told_unwritten_ = false;
};

/// Where the settings are kept unless --store names a file: under the user's XDG data folder.
std::string default_store_path();

}  // namespace tarnwick

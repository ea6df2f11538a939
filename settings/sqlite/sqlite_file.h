#pragma once

#include <sys/stat.h>

#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include "settings/sqlite/lock_patience.h"
#include "settings/sqlite/value_checksum.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tarnwick {

/// What is wrong with the settings file: its contents are broken, another program holds it just now, another
/// file (or none) has taken its place, or it is out of reach for another reason.
enum class FileFault { damaged, locked, moved, out_of_reach };

/// A failure of the settings file; what() says in a few words what is wrong.
class FileError : public std::runtime_error {
  public:
    FileError(const std::string& what, FileFault fault) : std::runtime_error(what), fault_(fault) {}
    FileFault fault() const { return fault_; }

  private:
    FileFault fault_;
};

/// Texts by their names; those that are known not to exist are nothing.
using SettingTexts = std::map<SettingAddress, std::optional<std::string>>;

/// One open SQLite file with the table of settings. Every function throws FileError.
class SqliteFile {
  public:
    /// Opens or creates the file. `patience` is for other programs that hold it, and must live as long as
    /// this object.
    SqliteFile(const std::string& path, LockPatience& patience);
    ~SqliteFile();
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    /// Outside a transaction nothing is taken from memory: the file itself is asked.
    std::optional<std::string> read(const SettingAddress& address);
    /// Within a transaction.
    void write(const SettingAddress& address, const std::string& text);
    /// Also fails where the path does not name this file any more.
    void begin();
    /// The values are on the disk on return.
    void commit();
    /// Drops what was written since begin(); never fails.
    void roll_back() noexcept;

    /// Whether all is whole: the structure, and the checksum of every value. Returns the values.
    SettingTexts check();
    /// Fails where nothing can be written.
    void try_writing();
    /// Whether the path still names the file that was opened (it may have been deleted or set aside since).
    bool still_in_place() const;

  private:
    void execute(const char* sql);
    void prepare();
    std::string answer_to(const char* question);
    void check_structure();
    SettingTexts checked_values();
    [[noreturn]] void fail() const;
    void close() noexcept;

    std::string path_;
    struct stat opened_ {};
    sqlite3* database_ = nullptr;
    sqlite3_stmt* select_ = nullptr;
    sqlite3_stmt* upsert_ = nullptr;
};

/// The values of a damaged file that can still be read and whose checksum is right. Never throws, and leaves
/// the file as it is.
SettingTexts salvaged_values(const std::string& path);

}  // namespace tarnwick

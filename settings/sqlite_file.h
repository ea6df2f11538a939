#pragma once

#include <sys/stat.h>

#include <map>
#include <optional>
#include <stdexcept>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace tarnwick {

/// A failure of the settings file; what() says in a few words what is wrong.
class FileError : public std::runtime_error {
  public:
    FileError(const std::string& what, bool damaged) : std::runtime_error(what), damaged_(damaged) {}
    /// Whether the file's contents are broken, rather than out of reach.
    bool damaged() const { return damaged_; }

  private:
    bool damaged_;
};

/// The name of one stored value.
struct SettingAddress {
    std::string application;
    std::string section;
    std::string key;
    // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler makes of it
    auto operator<=>(const SettingAddress&) const = default;
};

/// One open SQLite file with the table of settings. Every function throws FileError.
class SqliteFile {
  public:
    /// Opens or creates the file and checks that it is whole: its structure, and the checksum of every value.
    explicit SqliteFile(const std::string& path);
    ~SqliteFile();
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    std::optional<std::string> read(const SettingAddress& address);
    /// Outside a transaction the value is on the disk on return.
    void write(const SettingAddress& address, const std::string& text);
    void begin();
    void commit();
    /// Drops what was written since begin(); never fails.
    void roll_back() noexcept;

    /// Whether the path still names the file that was opened (it may have been deleted or set aside since).
    bool still_in_place() const;

  private:
    void execute(const char* sql);
    void prepare();
    std::string answer_to(const char* question);
    void check_structure();
    void check_values();
    void step(sqlite3_stmt* statement, const SettingAddress& address, const std::string* text,
              std::optional<std::string>* result);
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
std::map<SettingAddress, std::string> salvaged_values(const std::string& path);

}  // namespace tarnwick

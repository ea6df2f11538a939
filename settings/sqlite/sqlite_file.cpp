#include "settings/sqlite/sqlite_file.h"

#include <sqlite3.h>

#include <cerrno>
#include <cstdint>

#include "settings/sqlite/value_checksum.h"

namespace tarnwick {
namespace {

FileFault fault_of(int code) {
    switch (code & 0xFF) {
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
        case SQLITE_FORMAT:
            return FileFault::damaged;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return FileFault::locked;
        default:
            return FileFault::out_of_reach;
    }
}

int wait_for_lock(void* patience, int) { return static_cast<LockPatience*>(patience)->wait() ? 1 : 0; }

std::string column_text(sqlite3_stmt* statement, int column = 0) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    const int length = sqlite3_column_bytes(statement, column);
    return std::string(bytes ? bytes : "", static_cast<std::size_t>(length));
}

// A file of a few bytes would be taken for a new one; all that is whole begins with a header. What is no file
// at all must be neither written nor set aside.
void check_kind(const std::string& path) {
    constexpr off_t header = 100;
    struct stat file {};
    if (stat(path.c_str(), &file) != 0) return;
    if (!S_ISREG(file.st_mode)) throw FileError("it is no plain file", FileFault::out_of_reach);
    if (file.st_size > 0 && file.st_size < header) {
        throw FileError("the file is cut off", FileFault::damaged);
    }
}

constexpr const char* changed_by_itself = "a value has changed by itself";
constexpr const char* select_all = "SELECT application, section, key, text, checksum FROM setting";

// Reads the current row of select_all; false when its checksum is wrong, or when a part of it is of a kind
// under which nobody would find it.
bool read_row(sqlite3_stmt* statement, SettingAddress& address, std::string& text) {
    for (int column = 0; column <= 3; ++column) {
        if (sqlite3_column_type(statement, column) != SQLITE_TEXT) return false;
    }
    address = {column_text(statement, 0), column_text(statement, 1), column_text(statement, 2)};
    text = column_text(statement, 3);
    return sqlite3_column_int64(statement, 4) == checksum_of(address, text);
}

// A table that is missing, or of another shape, under this name is damage too: no version of the program has
// written it.
[[noreturn]] void fail_in_table(int code) {
    const bool not_ours = (code & 0xFF) == SQLITE_ERROR;
    throw FileError(sqlite3_errstr(code), not_ours ? FileFault::damaged : fault_of(code));
}

void bind_text(sqlite3_stmt* statement, int place, const std::string& text) {
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

void bind_address(sqlite3_stmt* statement, const SettingAddress& address) {
    bind_text(statement, 1, address.application);
    bind_text(statement, 2, address.section);
    bind_text(statement, 3, address.key);
}

// Ends a statement; its failure is told here once more.
void reset(sqlite3_stmt* statement) {
    const int ended = sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (ended != SQLITE_OK) fail_in_table(ended);
}

}  // namespace

SqliteFile::SqliteFile(const std::string& path, LockPatience& patience) : path_(path) {
    check_kind(path);
    struct stat before {};
    const bool existed = stat(path.c_str(), &before) == 0;
    const int opened =
        sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    try {
        if (opened != SQLITE_OK) fail();
        sqlite3_busy_handler(database_, wait_for_lock, &patience);
        // EXTRA also syncs the folder after a commit: a result that was acknowledged survives a power cut.
        execute("PRAGMA synchronous = EXTRA");
        check_structure();
        prepare();
    } catch (...) {
        close();
        throw;
    }
    stat(path.c_str(), &opened_);
    if (existed && (before.st_ino != opened_.st_ino || before.st_dev != opened_.st_dev)) {
        close();
        throw FileError("another file has taken its place", FileFault::moved);
    }
}

SqliteFile::~SqliteFile() { close(); }

void SqliteFile::close() noexcept {
    sqlite3_finalize(select_);
    sqlite3_finalize(upsert_);
    sqlite3_close(database_);
}

std::string SqliteFile::answer_to(const char* question) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, question, -1, &statement, nullptr) != SQLITE_OK) fail();
    const int stepped = sqlite3_step(statement);
    std::string answer = stepped == SQLITE_ROW ? column_text(statement) : "";
    sqlite3_finalize(statement);
    if (stepped != SQLITE_ROW) fail();
    return answer;
}

void SqliteFile::check_structure() {
    const std::string verdict = answer_to("PRAGMA quick_check(1)");
    if (verdict != "ok") throw FileError(verdict, FileFault::damaged);
    // In another encoding the values would all be there, but under names that nobody asks for.
    if (answer_to("PRAGMA encoding") != "UTF-8") throw FileError("another encoding", FileFault::damaged);
}

SettingTexts SqliteFile::check() {
    check_structure();
    return checked_values();
}

SettingTexts SqliteFile::checked_values() {
    SettingTexts values;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, select_all, -1, &statement, nullptr) != SQLITE_OK) {
        fail_in_table(sqlite3_errcode(database_));
    }
    bool sound = true;
    int stepped = SQLITE_ROW;
    while (sound && (stepped = sqlite3_step(statement)) == SQLITE_ROW) {
        SettingAddress address;
        std::string text;
        sound = read_row(statement, address, text);
        values[address] = text;
    }
    sqlite3_finalize(statement);
    if (!sound) throw FileError(changed_by_itself, FileFault::damaged);
    if (stepped != SQLITE_DONE) fail();
    return values;
}

void SqliteFile::prepare() {
    execute(
        "CREATE TABLE IF NOT EXISTS setting (application TEXT NOT NULL, section TEXT NOT NULL,"
        " key TEXT NOT NULL, text TEXT NOT NULL, checksum INTEGER NOT NULL,"
        " PRIMARY KEY (application, section, key)) WITHOUT ROWID");
    const char* select =
        "SELECT text, checksum FROM setting WHERE application = ?1 AND section = ?2 AND key = ?3";
    const char* upsert =
        "INSERT INTO setting VALUES (?1, ?2, ?3, ?4, ?5)"
        " ON CONFLICT DO UPDATE SET text = excluded.text, checksum = excluded.checksum";
    if (sqlite3_prepare_v3(database_, select, -1, SQLITE_PREPARE_PERSISTENT, &select_, nullptr) !=
            SQLITE_OK ||
        sqlite3_prepare_v3(database_, upsert, -1, SQLITE_PREPARE_PERSISTENT, &upsert_, nullptr) !=
            SQLITE_OK) {
        fail_in_table(sqlite3_errcode(database_));
    }
}

void SqliteFile::execute(const char* sql) {
    if (sqlite3_exec(database_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail();
}

void SqliteFile::fail() const {
    if (!database_) throw FileError("out of memory", FileFault::out_of_reach);
    throw FileError(sqlite3_errmsg(database_), fault_of(sqlite3_errcode(database_)));
}

std::optional<std::string> SqliteFile::read(const SettingAddress& address) {
    // Between transactions another program, or a fault of the disk, may have changed what lies in memory.
    if (sqlite3_get_autocommit(database_)) sqlite3_db_release_memory(database_);
    bind_address(select_, address);
    std::optional<std::string> text;
    bool sound = true;
    if (sqlite3_step(select_) == SQLITE_ROW) {
        text = column_text(select_);
        sound = sqlite3_column_int64(select_, 1) == checksum_of(address, *text);
    }
    reset(select_);
    if (!sound) throw FileError(changed_by_itself, FileFault::damaged);
    return text;
}

void SqliteFile::write(const SettingAddress& address, const std::string& text) {
    bind_address(upsert_, address);
    bind_text(upsert_, 4, text);
    sqlite3_bind_int64(upsert_, 5, checksum_of(address, text));
    sqlite3_step(upsert_);
    reset(upsert_);
}

void SqliteFile::try_writing() {
    begin();
    try {
        write({"Tarnwick", "trial", ""}, "");
    } catch (...) {
        roll_back();
        throw;
    }
    roll_back();
}

void SqliteFile::begin() {
    sqlite3_db_release_memory(database_);
    execute("BEGIN IMMEDIATE");
    if (still_in_place()) return;
    roll_back();
    throw FileError("another file has taken its place", FileFault::moved);
}
void SqliteFile::commit() { execute("COMMIT"); }

void SqliteFile::roll_back() noexcept {
    if (!sqlite3_get_autocommit(database_)) sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
}

SettingTexts salvaged_values(const std::string& path) {
    SettingTexts values;
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(database, select_all, -1, &statement, nullptr) == SQLITE_OK) {
        while (sqlite3_step(statement) == SQLITE_ROW) {
            SettingAddress address;
            std::string text;
            if (read_row(statement, address, text)) values[address] = text;
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return values;
}

bool SqliteFile::still_in_place() const {
    struct stat now {};
    // A path that cannot be followed just now does not tell that the file has gone.
    if (stat(path_.c_str(), &now) != 0) return errno != ENOENT;
    return now.st_ino == opened_.st_ino && now.st_dev == opened_.st_dev;
}

}  // namespace tarnwick

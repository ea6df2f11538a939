#include "settings/sqlite_file.h"

#include <sqlite3.h>

namespace tarnwick {
namespace {

// How long a save waits for another running program to finish its own, in milliseconds.
constexpr int patience = 5000;

bool means_damage(int code) {
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB || primary == SQLITE_FORMAT;
}

std::optional<std::string> column_text(sqlite3_stmt* statement) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, 0));
    const int length = sqlite3_column_bytes(statement, 0);
    return std::string(bytes ? bytes : "", static_cast<std::size_t>(length));
}

}  // namespace

SqliteFile::SqliteFile(const std::string& path) : path_(path) {
    const int opened = sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                                       nullptr);
    try {
        if (opened != SQLITE_OK) fail();
        sqlite3_busy_timeout(database_, patience);
        // EXTRA also syncs the folder after a commit: a result that was acknowledged survives a power cut.
        execute("PRAGMA synchronous = EXTRA");
        check();
        prepare();
    } catch (...) {
        close();
        throw;
    }
    stat(path.c_str(), &opened_);
}

SqliteFile::~SqliteFile() { close(); }

void SqliteFile::close() noexcept {
    sqlite3_finalize(select_);
    sqlite3_finalize(upsert_);
    sqlite3_close(database_);
}

void SqliteFile::check() {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, "PRAGMA quick_check(1)", -1, &statement, nullptr) != SQLITE_OK) fail();
    const int stepped = sqlite3_step(statement);
    const std::string verdict = stepped == SQLITE_ROW ? column_text(statement).value_or("") : "";
    sqlite3_finalize(statement);
    if (stepped != SQLITE_ROW) fail();
    if (verdict != "ok") throw FileError(verdict, true);
}

void SqliteFile::prepare() {
    execute("CREATE TABLE IF NOT EXISTS setting (application TEXT NOT NULL, section TEXT NOT NULL,"
            " key TEXT NOT NULL, text TEXT NOT NULL, PRIMARY KEY (application, section, key)) WITHOUT ROWID");
    const char* select = "SELECT text FROM setting WHERE application = ?1 AND section = ?2 AND key = ?3";
    const char* upsert = "INSERT INTO setting VALUES (?1, ?2, ?3, ?4)"
                         " ON CONFLICT DO UPDATE SET text = excluded.text";
    // A table of another shape under this name is damage too: no version of the program has written it.
    if (sqlite3_prepare_v3(database_, select, -1, SQLITE_PREPARE_PERSISTENT, &select_, nullptr) != SQLITE_OK ||
        sqlite3_prepare_v3(database_, upsert, -1, SQLITE_PREPARE_PERSISTENT, &upsert_, nullptr) != SQLITE_OK) {
        const bool damaged = (sqlite3_errcode(database_) & 0xFF) == SQLITE_ERROR;
        throw FileError(sqlite3_errmsg(database_), damaged || means_damage(sqlite3_errcode(database_)));
    }
}

void SqliteFile::execute(const char* sql) {
    if (sqlite3_exec(database_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail();
}

void SqliteFile::fail() const {
    if (!database_) throw FileError("out of memory", false);
    throw FileError(sqlite3_errmsg(database_), means_damage(sqlite3_errcode(database_)));
}

void SqliteFile::step(sqlite3_stmt* statement, const SettingAddress& address, const std::string* text,
                      std::optional<std::string>* result) {
    const auto bind = [statement](int place, const std::string& value) {
        sqlite3_bind_text(statement, place, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    };
    bind(1, address.application);
    bind(2, address.section);
    bind(3, address.key);
    if (text) bind(4, *text);
    const int stepped = sqlite3_step(statement);
    if (stepped == SQLITE_ROW && result) *result = column_text(statement);
    const int ended = sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (ended != SQLITE_OK) throw FileError(sqlite3_errstr(ended), means_damage(ended));
}

std::optional<std::string> SqliteFile::read(const SettingAddress& address) {
    std::optional<std::string> text;
    step(select_, address, nullptr, &text);
    return text;
}

void SqliteFile::write(const SettingAddress& address, const std::string& text) {
    step(upsert_, address, &text, nullptr);
}

void SqliteFile::begin() { execute("BEGIN IMMEDIATE"); }
void SqliteFile::commit() { execute("COMMIT"); }

void SqliteFile::roll_back() noexcept {
    if (!sqlite3_get_autocommit(database_)) sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool SqliteFile::still_in_place() const {
    struct stat now {};
    return stat(path_.c_str(), &now) == 0 && now.st_ino == opened_.st_ino && now.st_dev == opened_.st_dev;
}

}  // namespace tarnwick

#include "settings/sqlite_file.h"

#include <sqlite3.h>

#include <cstdint>

namespace tarnwick {
namespace {

// How long a save waits for another running program to finish its own, in milliseconds.
constexpr int patience = 5000;

bool means_damage(int code) {
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB || primary == SQLITE_FORMAT;
}

std::string column_text(sqlite3_stmt* statement, int column = 0) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    const int length = sqlite3_column_bytes(statement, column);
    return std::string(bytes ? bytes : "", static_cast<std::size_t>(length));
}

// FNV-1a over all parts of a value: the structure of a file survives many a flipped bit in its texts.
std::int64_t checksum_of(const SettingAddress& address, const std::string& text) {
    std::uint32_t hash = 0x811c9dc5U;
    for (const std::string* part : {&address.application, &address.section, &address.key, &text}) {
        for (const char letter : *part + '\n') {
            hash ^= static_cast<unsigned char>(letter);
            hash *= 0x01000193U;
        }
    }
    return hash;
}

// A file of a few bytes would be taken for a new one; all that is whole begins with a header.
void refuse_stump(const std::string& path) {
    constexpr off_t header = 100;
    struct stat file {};
    if (stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) && file.st_size > 0 &&
        file.st_size < header) {
        throw FileError("the file is cut off", true);
    }
}

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

// The values that a database gives before it fails.
std::map<SettingAddress, std::string> readable_values(sqlite3* database) {
    std::map<SettingAddress, std::string> values;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, select_all, -1, &statement, nullptr) != SQLITE_OK) return values;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        SettingAddress address;
        std::string text;
        if (read_row(statement, address, text)) values[address] = text;
    }
    sqlite3_finalize(statement);
    return values;
}

}  // namespace

SqliteFile::SqliteFile(const std::string& path) : path_(path) {
    refuse_stump(path);
    const int opened =
        sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    try {
        if (opened != SQLITE_OK) fail();
        sqlite3_busy_timeout(database_, patience);
        // EXTRA also syncs the folder after a commit: a result that was acknowledged survives a power cut.
        execute("PRAGMA synchronous = EXTRA");
        check_structure();
        prepare();
        check_values();
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
    if (verdict != "ok") throw FileError(verdict, true);
    // In another encoding the values would all be there, but under names that nobody asks for.
    if (answer_to("PRAGMA encoding") != "UTF-8") throw FileError("another encoding", true);
}

void SqliteFile::check_values() {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, select_all, -1, &statement, nullptr) != SQLITE_OK) fail();
    bool sound = true;
    int stepped = SQLITE_ROW;
    while (sound && (stepped = sqlite3_step(statement)) == SQLITE_ROW) {
        SettingAddress address;
        std::string text;
        sound = read_row(statement, address, text);
    }
    sqlite3_finalize(statement);
    if (!sound) throw FileError("a value has changed by itself", true);
    if (stepped != SQLITE_DONE) fail();
}

void SqliteFile::prepare() {
    execute(
        "CREATE TABLE IF NOT EXISTS setting (application TEXT NOT NULL, section TEXT NOT NULL,"
        " key TEXT NOT NULL, text TEXT NOT NULL, checksum INTEGER NOT NULL,"
        " PRIMARY KEY (application, section, key)) WITHOUT ROWID");
    const char* select = "SELECT text FROM setting WHERE application = ?1 AND section = ?2 AND key = ?3";
    const char* upsert =
        "INSERT INTO setting VALUES (?1, ?2, ?3, ?4, ?5)"
        " ON CONFLICT DO UPDATE SET text = excluded.text, checksum = excluded.checksum";
    // A table of another shape under this name is damage too: no version of the program has written it.
    if (sqlite3_prepare_v3(database_, select, -1, SQLITE_PREPARE_PERSISTENT, &select_, nullptr) !=
            SQLITE_OK ||
        sqlite3_prepare_v3(database_, upsert, -1, SQLITE_PREPARE_PERSISTENT, &upsert_, nullptr) !=
            SQLITE_OK) {
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
    if (text) {
        bind(4, *text);
        sqlite3_bind_int64(statement, 5, checksum_of(address, *text));
    }
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

std::map<SettingAddress, std::string> salvaged_values(const std::string& path) {
    std::map<SettingAddress, std::string> values;
    sqlite3* database = nullptr;
    if (sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        values = readable_values(database);
    }
    sqlite3_close(database);
    return values;
}

bool SqliteFile::still_in_place() const {
    struct stat now {};
    return stat(path_.c_str(), &now) == 0 && now.st_ino == opened_.st_ino && now.st_dev == opened_.st_dev;
}

}  // namespace tarnwick

#pragma once

#include <sqlite3.h>

#include <map>

namespace tarnwick {

/// While it lives, SQLite works on a disk whose writing calls (write, truncate, sync, delete, and the opening
/// of a file that may be written) begin to fail at a given one. One at a time.
class FaultyDisk {
  public:
    FaultyDisk() {
        disk = *real_disk;
        disk.zName = "faulty";
        disk.xOpen = open;
        disk.xDelete = [](sqlite3_vfs*, const char* name, int sync_folder) {
            return call_fails() ? SQLITE_IOERR_DELETE : real_disk->xDelete(real_disk, name, sync_folder);
        };
        sqlite3_vfs_register(&disk, 1);
    }
    ~FaultyDisk() {
        repair();
        sqlite3_vfs_unregister(&disk);
        sqlite3_vfs_register(real_disk, 1);
    }
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// The n-th call from now on fails, counted from 1; with `for_ever` all after it as well.
    static void fail_at(int n, bool for_ever) {
        calls = 0;
        first_failure = n;
        fails_for_ever = for_ever;
        failed = false;
    }
    /// No call fails any more.
    static void repair() { fail_at(0, false); }
    /// Whether a call has failed since fail_at().
    static bool has_failed() { return failed; }

  private:
    // Counts one writing call; true when it has to fail.
    static bool call_fails() {
        ++calls;
        const bool fails =
            first_failure > 0 && (fails_for_ever ? calls >= first_failure : calls == first_failure);
        failed = failed || fails;
        return fails;
    }

    // SQLite's own methods of an open file, but for those that may fail.
    struct Methods {
        sqlite3_io_methods base;
        const sqlite3_io_methods* real;
    };
    static const sqlite3_io_methods& real(sqlite3_file* file) {
        return *reinterpret_cast<const Methods*>(file->pMethods)->real;
    }
    static int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* out_flags) {
        file->pMethods = nullptr;
        if ((flags & SQLITE_OPEN_READWRITE) != 0 && call_fails()) return SQLITE_CANTOPEN;
        const int result = real_disk->xOpen(real_disk, name, file, flags, out_flags);
        if (!file->pMethods) return result;
        Methods& faulty = methods[file->pMethods];
        faulty = {*file->pMethods, file->pMethods};
        // The first version knows no other ways to write.
        faulty.base.iVersion = 1;
        faulty.base.xWrite = [](sqlite3_file* f, const void* data, int amount, sqlite3_int64 offset) {
            return call_fails() ? SQLITE_FULL : real(f).xWrite(f, data, amount, offset);
        };
        faulty.base.xTruncate = [](sqlite3_file* f, sqlite3_int64 size) {
            return call_fails() ? SQLITE_IOERR_TRUNCATE : real(f).xTruncate(f, size);
        };
        faulty.base.xSync = [](sqlite3_file* f, int how) {
            return call_fails() ? SQLITE_IOERR_FSYNC : real(f).xSync(f, how);
        };
        file->pMethods = &faulty.base;
        return result;
    }

    inline static int calls = 0;
    inline static int first_failure = 0;
    inline static bool fails_for_ever = false;
    inline static bool failed = false;
    // By what they take the place of: files of different kinds have different ones.
    inline static std::map<const sqlite3_io_methods*, Methods> methods;
    inline static sqlite3_vfs* const real_disk = sqlite3_vfs_find(nullptr);
    inline static sqlite3_vfs disk{};
};

}  // namespace tarnwick

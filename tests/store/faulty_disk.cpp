#include "tests/store/faulty_disk.h"

#include <sqlite3.h>

#include <map>

namespace tarnwick {
namespace {

int calls_to_failure = 0;
bool fails_for_ever = false;
bool failed = false;

// Counts one writing call; true when it has to fail.
bool call_fails() {
    if (calls_to_failure == 0) return false;
    if (calls_to_failure > 1) {
        --calls_to_failure;
        return false;
    }
    failed = true;
    if (!fails_for_ever) calls_to_failure = 0;
    return true;
}

// SQLite's own methods of an open file, but for those that may fail.
struct FaultyMethods {
    sqlite3_io_methods base;
    const sqlite3_io_methods* real;
};
// By what they take the place of: files of different kinds have different ones.
std::map<const sqlite3_io_methods*, FaultyMethods> faulty_methods;

const sqlite3_io_methods& real(sqlite3_file* file) {
    return *reinterpret_cast<const FaultyMethods*>(file->pMethods)->real;
}

int write(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    if (call_fails()) return SQLITE_FULL;
    return real(file).xWrite(file, data, amount, offset);
}
int truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (call_fails()) return SQLITE_IOERR_TRUNCATE;
    return real(file).xTruncate(file, size);
}
int sync(sqlite3_file* file, int flags) {
    if (call_fails()) return SQLITE_IOERR_FSYNC;
    return real(file).xSync(file, flags);
}

sqlite3_vfs* real_disk = nullptr;
sqlite3_vfs faulty_disk{};

int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* out_flags) {
    file->pMethods = nullptr;
    if ((flags & SQLITE_OPEN_READWRITE) != 0 && call_fails()) return SQLITE_CANTOPEN;
    const int result = real_disk->xOpen(real_disk, name, file, flags, out_flags);
    if (!file->pMethods) return result;
    FaultyMethods& methods = faulty_methods[file->pMethods];
    methods = {*file->pMethods, file->pMethods};
    // The first version knows no other ways to write.
    methods.base.iVersion = 1;
    methods.base.xWrite = write;
    methods.base.xTruncate = truncate;
    methods.base.xSync = sync;
    file->pMethods = &methods.base;
    return result;
}

int remove(sqlite3_vfs*, const char* name, int sync_folder) {
    if (call_fails()) return SQLITE_IOERR_DELETE;
    return real_disk->xDelete(real_disk, name, sync_folder);
}

}  // namespace

FaultyDisk::FaultyDisk() {
    real_disk = sqlite3_vfs_find(nullptr);
    faulty_disk = *real_disk;
    faulty_disk.zName = "faulty";
    faulty_disk.xOpen = open;
    faulty_disk.xDelete = remove;
    sqlite3_vfs_register(&faulty_disk, 1);
}

FaultyDisk::~FaultyDisk() {
    repair();
    sqlite3_vfs_unregister(&faulty_disk);
    sqlite3_vfs_register(real_disk, 1);
}

void FaultyDisk::fail_at(int n, bool for_ever) {
    calls_to_failure = n;
    fails_for_ever = for_ever;
    failed = false;
}

bool FaultyDisk::has_failed() const { return failed; }

}  // namespace tarnwick

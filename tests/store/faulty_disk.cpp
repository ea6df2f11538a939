#include "tests/store/faulty_disk.h"

#include <sqlite3.h>

#include <memory>
#include <vector>

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

// An open file: SQLite's own, behind methods that may fail. The real one lies right behind this one.
struct FaultyFile {
    sqlite3_file base;
    sqlite3_file* real;
};

sqlite3_file* real_of(sqlite3_file* file) { return reinterpret_cast<FaultyFile*>(file)->real; }

int write(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    if (call_fails()) return SQLITE_FULL;
    return real_of(file)->pMethods->xWrite(real_of(file), data, amount, offset);
}
int truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (call_fails()) return SQLITE_IOERR_TRUNCATE;
    return real_of(file)->pMethods->xTruncate(real_of(file), size);
}
int sync(sqlite3_file* file, int flags) {
    if (call_fails()) return SQLITE_IOERR_FSYNC;
    return real_of(file)->pMethods->xSync(real_of(file), flags);
}
int close(sqlite3_file* file) { return real_of(file)->pMethods->xClose(real_of(file)); }
int read(sqlite3_file* file, void* data, int amount, sqlite3_int64 offset) {
    return real_of(file)->pMethods->xRead(real_of(file), data, amount, offset);
}
int file_size(sqlite3_file* file, sqlite3_int64* size) {
    return real_of(file)->pMethods->xFileSize(real_of(file), size);
}
int lock(sqlite3_file* file, int kind) { return real_of(file)->pMethods->xLock(real_of(file), kind); }
int unlock(sqlite3_file* file, int kind) { return real_of(file)->pMethods->xUnlock(real_of(file), kind); }
int check_lock(sqlite3_file* file, int* result) {
    return real_of(file)->pMethods->xCheckReservedLock(real_of(file), result);
}
int control(sqlite3_file* file, int operation, void* argument) {
    return real_of(file)->pMethods->xFileControl(real_of(file), operation, argument);
}
int sector_size(sqlite3_file* file) { return real_of(file)->pMethods->xSectorSize(real_of(file)); }
int characteristics(sqlite3_file* file) {
    return real_of(file)->pMethods->xDeviceCharacteristics(real_of(file));
}

const sqlite3_io_methods methods{
    1,       close,      read,    write,       truncate,        sync,    file_size, lock,
    unlock,  check_lock, control, sector_size, characteristics, nullptr, nullptr,   nullptr,
    nullptr, nullptr,    nullptr};

sqlite3_vfs* real_disk = nullptr;
sqlite3_vfs faulty_disk{};

int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* out_flags) {
    file->pMethods = nullptr;
    if ((flags & SQLITE_OPEN_READWRITE) != 0 && call_fails()) return SQLITE_CANTOPEN;
    auto* own = reinterpret_cast<FaultyFile*>(file);
    own->real = reinterpret_cast<sqlite3_file*>(own + 1);
    const int result = real_disk->xOpen(real_disk, name, own->real, flags, out_flags);
    if (own->real->pMethods) own->base.pMethods = &methods;
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
    faulty_disk.szOsFile = static_cast<int>(sizeof(FaultyFile)) + real_disk->szOsFile;
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

#include "storage/failing_disk.h"

#include <sqlite3.h>

#include <map>

namespace starfolds {
namespace {

/// SQLite calls plain functions, so this must be reachable without an object.
struct Disk {
  sqlite3_vfs* Real = nullptr;
  sqlite3_vfs Failing{};
  const sqlite3_io_methods* RealMethods = nullptr;
  /// Files with locks and files without have methods of their own, which read and write alike.
  std::map<const sqlite3_io_methods*, sqlite3_io_methods> Methods;
  int AccessesLeft = -1;  // negative: it does not fail
  bool Once = false;
  bool Failed = false;

  bool FailsNow() {
    if (AccessesLeft < 0 || (Failed && Once)) return false;
    if (AccessesLeft > 0) return --AccessesLeft, false;
    Failed = true;
    return true;
  }
};

Disk disk;

int Read(sqlite3_file* file, void* to, int size, sqlite3_int64 at) {
  return disk.FailsNow() ? SQLITE_IOERR_READ : disk.RealMethods->xRead(file, to, size, at);
}

int Write(sqlite3_file* file, const void* from, int size, sqlite3_int64 at) {
  if (!disk.FailsNow()) return disk.RealMethods->xWrite(file, from, size, at);
  disk.RealMethods->xWrite(file, from, size / 2, at);
  return SQLITE_FULL;
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  return disk.FailsNow() ? SQLITE_IOERR_TRUNCATE : disk.RealMethods->xTruncate(file, size);
}

int Sync(sqlite3_file* file, int flags) {
  return disk.FailsNow() ? SQLITE_IOERR_FSYNC : disk.RealMethods->xSync(file, flags);
}

int Delete(sqlite3_vfs*, const char* name, int sync) {
  return disk.FailsNow() ? SQLITE_IOERR_DELETE : disk.Real->xDelete(disk.Real, name, sync);
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* got) {
  const int code = disk.Real->xOpen(disk.Real, name, file, flags, got);
  if (code != SQLITE_OK || !file->pMethods) return code;
  disk.RealMethods = file->pMethods;
  sqlite3_io_methods& methods = disk.Methods[file->pMethods];
  methods = *file->pMethods;
  methods.xRead = Read;
  methods.xWrite = Write;
  methods.xTruncate = Truncate;
  methods.xSync = Sync;
  file->pMethods = &methods;
  return code;
}

}  // namespace

FailingDisk::FailingDisk() {
  disk = {};
  disk.Real = sqlite3_vfs_find(nullptr);
  disk.Failing = *disk.Real;
  disk.Failing.zName = "failing";
  disk.Failing.xOpen = Open;
  disk.Failing.xDelete = Delete;
  sqlite3_vfs_register(&disk.Failing, 1);
}

FailingDisk::~FailingDisk() {
  sqlite3_vfs_unregister(&disk.Failing);
  sqlite3_vfs_register(disk.Real, 1);
}

void FailingDisk::FailAfter(int accesses, Fault fault) {
  disk.AccessesLeft = accesses;
  disk.Once = fault == Fault::Once;
  disk.Failed = false;
}

bool FailingDisk::Heal() {
  disk.AccessesLeft = -1;
  return disk.Failed;
}

}  // namespace starfolds

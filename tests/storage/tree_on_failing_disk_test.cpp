// The stored tree on a disk that fails at a chosen moment, under SQLite.
#include <sqlite3.h>

#include <map>

#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

constexpr int kValues = 400;  // some 10 pages of the file

/// A text that fills more pages than "old" does.
const std::string kNew(100, 'n');

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
  bool DeletionsMayBeLost = false;  // with the power

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
  if (sync == 0) disk.DeletionsMayBeLost = true;
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

enum class Fault { Once, FromThenOn };

class TreeOnFailingDisk : public TreeTest, public testing::WithParamInterface<Fault> {
 protected:
  TreeOnFailingDisk() {
    disk = {};
    disk.Real = sqlite3_vfs_find(nullptr);
    disk.Failing = *disk.Real;
    disk.Failing.zName = "failing";
    disk.Failing.xOpen = Open;
    disk.Failing.xDelete = Delete;
    sqlite3_vfs_register(&disk.Failing, 1);
  }
  ~TreeOnFailingDisk() override {
    sqlite3_vfs_unregister(&disk.Failing);
    sqlite3_vfs_register(disk.Real, 1);
  }

  /// That many more accesses (reading, writing, writing out, shortening, deleting) will succeed.
  static void FailAfter(int accesses) {
    disk.AccessesLeft = accesses;
    disk.Once = GetParam() == Fault::Once;
    disk.Failed = false;
    disk.DeletionsMayBeLost = false;
  }

  /// Succeeds again. Whether there was a fault since `FailAfter`.
  static bool Heal() {
    disk.AccessesLeft = -1;
    return disk.Failed;
  }
};

TEST_P(TreeOnFailingDisk, ASaveIsStoredAsAWholeOrNotAtAll) {
  for (const std::string before : {"", "old"}) {
    int accesses = 0;
    for (bool failed = true; failed; ++accesses) {
      fs::remove(File);
      StoredTree stored(File);
      if (!before.empty()) {
        ASSERT_TRUE(stored.Save(before, kValues));
      }
      FailAfter(accesses);
      const bool saved = stored.Save(kNew, kValues);
      failed = Heal();
      ASSERT_FALSE(!failed && disk.DeletionsMayBeLost);
      ASSERT_EQ(stored.Saved(kValues), saved ? kNew : before) << accesses;
      ASSERT_TRUE(stored.Complaints.empty()) << accesses;
    }
    EXPECT_GT(accesses, 15);
  }
}

TEST_P(TreeOnFailingDisk, AFaultIsNotTakenForMissingValues) {
  StoredTree stored(File);
  ASSERT_TRUE(stored.Save("old", kValues));
  int accesses = 0;
  for (bool failed = true; failed; ++accesses) {
    FailAfter(accesses);
    const std::string saved = stored.Saved(kValues);
    failed = Heal();
    ASSERT_TRUE(saved == "old" || (failed && saved == "unread")) << accesses << saved;
  }
  EXPECT_GT(accesses, 5);
}

INSTANTIATE_TEST_SUITE_P(Faults, TreeOnFailingDisk,
                         testing::Values(Fault::Once, Fault::FromThenOn));

}  // namespace
}  // namespace starfolds

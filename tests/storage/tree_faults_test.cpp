// The stored tree on a machine where things go wrong.
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <thread>

#include "storage/child.h"
#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

class TreeFaults : public TreeTest {};

/// Locks as a reader of SQLite does, until the process ends.
void LockForReading(const std::string& file) {
  struct flock lock {};
  lock.l_type = F_RDLCK;
  lock.l_start = 0x40000002;
  lock.l_len = 510;
  EXPECT_EQ(fcntl(open(file.c_str(), O_RDONLY), F_SETLK, &lock), 0);
}

TEST_F(TreeFaults, ManyProcessesSaveAtOnceAndNobodyFails) {
  const auto save = [&](char tag) {
    return [this, tag] {
      StoredTree own(File);
      for (int i = 0; i < 30; ++i) {
        EXPECT_TRUE(own.Save(std::string(40, tag), 60));
        const std::string saved = own.Saved(60);
        EXPECT_EQ(saved, std::string(40, saved[0]));
      }
    };
  };
  Child a(save('a'));
  Child b(save('b'));
  EXPECT_TRUE(a.Succeeded());
  EXPECT_TRUE(b.Succeeded());
}

/// One process waits for the damaged file while another one sets it aside and begins a new one.
TEST_F(TreeFaults, AFreshFileIsNotSetAside) {
  Put("config/settings.db", "damaged");
  const FileIdentity damaged = LookAtFile(File).Identity;
  const Child quicker([&] {
    LockForReading(File);
    std::ofstream(Folder.Path("locked"));
    std::this_thread::sleep_for(milliseconds(100));
    fs::rename(File, File + ".damaged-1");
    std::ofstream(File) << "fresh";
  });
  ASSERT_TRUE(WaitForFile(Folder.Path("locked")));
  EXPECT_EQ(SetAside(File, damaged, milliseconds(5000)), std::nullopt);
  EXPECT_EQ(FileText(File), "fresh");
}

TEST_F(TreeFaults, ADamagedFileInUseIsLeft) {
  Put("config/settings.db", std::string(1000, '?'));
  Child holder([&] {
    LockForReading(File);
    std::ofstream(Folder.Path("locked"));
    pause();
  });
  ASSERT_TRUE(WaitForFile(Folder.Path("locked")));
  StoredTree stored(File, {}, kImpatient);
  EXPECT_FALSE(stored.Write("x", "1"));
  EXPECT_EQ(FileText(File), std::string(1000, '?'));
  holder.Kill();
  EXPECT_FALSE(holder.Succeeded());
  EXPECT_TRUE(stored.Write("x", "1"));
}

/// A start looks several times. The first look may wait; the others only try once for the lock.
TEST_F(TreeFaults, ALockedFileIsWaitedForOnce) {
  constexpr milliseconds look(100), never(600'000);
  ASSERT_TRUE(StoredTree(File).Save("old", 2));
  int tries = 0;
  int complaints = 0;
  bool mustEnd = false;
  SqliteTree tree(
      {File, File}, [&](const std::string&) { ++complaints; }, {look, never, never, never},
      [&] {
        ++tries;
        return mustEnd;
      });
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(File.c_str(), &db), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_EQ(tree.Read(kUser, "P", "0"), std::nullopt);
  EXPECT_GT(tries, 1);
  tries = 0;
  for (int i = 0; i < 10; ++i) EXPECT_EQ(tree.Read(kUser, "P", "0"), std::nullopt);
  EXPECT_FALSE(tree.Write(kUser, "P", "0", "new")) << "a change would have waited for ten minutes";
  EXPECT_EQ(tree.Read(Hive::LocalMachine, "P", "0"), std::nullopt);
  EXPECT_EQ(tries, 12);
  EXPECT_EQ(complaints, 1);
  mustEnd = true;
  SqliteTree patient({File, {}}, {}, {never, never, never, never}, [&] { return mustEnd; });
  EXPECT_EQ(patient.Read(kUser, "P", "0"), std::nullopt) << "the process is asked to end";
  EXPECT_FALSE(patient.Write(kUser, "P", "0", "new"));
  mustEnd = false;
  sqlite3_close(db);
  EXPECT_EQ(tree.Read(kUser, "P", "0"), "old");
}

/// For those who may look but not touch, and for those who may do neither.
TEST_F(TreeFaults, MissingPermissions) {
  using fs::perms;
  const perms look = perms::owner_read | perms::group_read | perms::others_read;
  const perms enter = perms::owner_exec | perms::group_exec | perms::others_exec;
  ASSERT_TRUE(StoredTree(File).Save("old", 2));
  fs::permissions(Folder.Path(""), perms::all);
  for (const auto& [path, rights] :
       {std::pair("config", look | enter), std::pair("config", perms::none),
        std::pair("config/settings.db", look), std::pair("config/settings.db", perms::none)}) {
    fs::permissions(Folder.Path("config"), perms::all);
    fs::permissions(File, perms::all);
    fs::permissions(Folder.Path(path), rights);
    const std::string seen = rights == perms::none ? "unread" : "old";
    EXPECT_TRUE(SucceedsAsOrdinaryUser([&] {
      StoredTree stored(File, {}, kImpatient);
      EXPECT_EQ(stored.Saved(2), seen);
      EXPECT_FALSE(stored.Write("0", "old")) << "not even what is there already";
      EXPECT_FALSE(stored.Save("new", 2));
      EXPECT_TRUE(stored.Complaints.empty());
    })) << path;
  }
  fs::permissions(Folder.Path("config"), perms::all);
  fs::permissions(File, perms::all);
  EXPECT_EQ(StoredTree(File).Saved(2), "old");
}

}  // namespace
}  // namespace starfolds

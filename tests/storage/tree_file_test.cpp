// When the tree's files are made, kept and left alone.
#include <sqlite3.h>

#include "storage/processor_time.h"
#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

/// Runs SQL as a stranger who has nothing to do with the tree.
void RunSql(const std::string& file, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
  char* message = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &message), SQLITE_OK)
      << (message ? message : "");
  sqlite3_free(message);
  sqlite3_close(db);
}

class TreeFile : public TreeTest {
 protected:
  StoredTree Stored{File, Folder.Path("machine.db")};
};

TEST_F(TreeFile, TheFirstWriteMakesTheFolderAndALookNothing) {
  EXPECT_EQ(Stored.Saved(3), "");
  EXPECT_FALSE(Stored.Tree.DeleteKey(kUser, "P"));
  EXPECT_TRUE(Folder.Names().empty());
  ASSERT_TRUE(Stored.Write("x", "1"));
  EXPECT_TRUE(fs::exists(File));
}

/// The file may stay open between looks. What comes in between is seen all the same.
TEST_F(TreeFile, IsLookedAtAnewEachTime) {
  ASSERT_TRUE(Stored.Save("v", 2));
  EXPECT_EQ(Stored.Saved(2), "v");
  EXPECT_EQ(Stored.Read("0"), "v");
  RunSql(File, "PRAGMA locking_mode = EXCLUSIVE; UPDATE tree SET text = 'w'");
  EXPECT_EQ(Stored.Saved(2), "w");
  fs::rename(File, File + "-away");
  EXPECT_EQ(Stored.Saved(2), "");
  ASSERT_TRUE(StoredTree(File).Save("fresh", 2));
  EXPECT_EQ(Stored.Saved(2), "fresh");
}

/// A start looks several times. The first look may wait; the others only try once for the lock.
TEST_F(TreeFile, ALockedFileIsWaitedForOnce) {
  constexpr std::chrono::milliseconds look(100), never(600'000);
  ASSERT_TRUE(StoredTree(File).Save("old", 2));
  int tries = 0;
  int complaints = 0;
  bool mustEnd = false;
  SqliteTree tree(
      {File, File}, [&](const UserText&) { ++complaints; }, {look, never, never, never},
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

TEST_F(TreeFile, WaitingForALockIsNotWork) {
  constexpr std::chrono::milliseconds work(300), never(600'000);
  ASSERT_TRUE(Stored.Save("old", 2));
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(File.c_str(), &db), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  int tries = 0;  // with pauses of up to 10 ms
  SqliteTree tree({File, {}}, {}, {never, never, work, never}, [&] {
    if (++tries == 60) sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
    return false;
  });
  EXPECT_TRUE(tree.Write(kUser, "P", "0", "new"));
  EXPECT_GE(tries, 60);
  sqlite3_close(db);
}

TEST_F(TreeFile, WithoutAPlaceNothingIsStored) {
  for (const char* file : {"", ":memory:", "relative.db"}) {
    StoredTree nowhere(file);
    EXPECT_FALSE(nowhere.Write("x", "1")) << file;
    EXPECT_FALSE(nowhere.Save("v", 2));
    EXPECT_EQ(nowhere.Read("x"), std::nullopt);
    EXPECT_EQ(nowhere.Saved(2), "");
  }
  EXPECT_FALSE(fs::exists("relative.db"));
}

TEST_F(TreeFile, WhatCannotBeStoredSpoilsItsBulk) {
  ASSERT_TRUE(Stored.Save("old", 2));
  const std::string tooLong(2'000'000, 'x');
  const auto spoil = [&](auto write) {
    TreeBulk bulk = TreeBulk::Change(Stored.Tree);
    EXPECT_TRUE(Stored.Write("0", "new"));
    EXPECT_FALSE(write());
    Stored.Write("0", "newer");
    EXPECT_FALSE(bulk.Commit());
    EXPECT_EQ(Stored.Saved(2), "old");
  };
  spoil([&] { return Stored.Write("1", tooLong); });
  spoil([&] { return Stored.Write(std::string("a\0b", 3), "1"); });
  spoil([&] { return Stored.Tree.Write(Hive::Users, "P", "1", "1"); });
  EXPECT_EQ(Stored.Read(std::string("0\0b", 3)), std::nullopt);
  TreeBulk look = TreeBulk::Look(Stored.Tree);
  EXPECT_FALSE(Stored.Write("0", "new"));
  EXPECT_FALSE(look.Commit());
  EXPECT_EQ(Stored.Saved(2), "old");
}

/// What an enemy, or another program, may have put in the place of the values.
TEST_F(TreeFile, OddValuesAreTextOrMissing) {
  ASSERT_TRUE(Stored.Save("old", 1));
  RunSql(File,
         "INSERT INTO tree VALUES ('P', 'int', 42), ('P', 'blob', x'00ff'), "
         "('P', 'huge', zeroblob(2000000))");
  EXPECT_EQ(Stored.Read("int"), "42");
  EXPECT_EQ(Stored.Read("blob"), std::string("\0\xFF", 2));
  {
    TreeBulk look = TreeBulk::Look(Stored.Tree);
    EXPECT_EQ(Stored.Read("huge"), std::nullopt);
    EXPECT_TRUE(look.Commit());
  }
  EXPECT_TRUE(Stored.Write("huge", "small again"));
  EXPECT_EQ(Stored.Read("huge"), "small again");
  EXPECT_TRUE(Stored.Complaints.empty());
}

TEST_F(TreeFile, TriggersOfOthersDoNotRun) {
  ASSERT_TRUE(Stored.Save("old", 2));
  RunSql(File,
         "CREATE TRIGGER t AFTER UPDATE ON tree BEGIN DELETE FROM tree; END;"
         "CREATE TRIGGER u BEFORE INSERT ON tree BEGIN SELECT RAISE(ABORT, 'no'); END");
  EXPECT_TRUE(Stored.Save("new", 2));
  EXPECT_EQ(Stored.Saved(2), "new");
}

/// Each of these is a database, but no tree of ours.
TEST_F(TreeFile, WhatOnlyLooksLikeATreeIsSetAside) {
  const std::string forms[] = {
      "CREATE VIEW tree(path, name, text) AS WITH RECURSIVE r(i) AS (SELECT 1 UNION ALL SELECT i+1 "
      "FROM r) SELECT 'P', i, 'x' FROM r",
      "CREATE TABLE Tree(path, name, text)",
      // as SQLite with this module would make it
      "PRAGMA writable_schema = ON; INSERT INTO sqlite_schema VALUES ('table', 'tree', 'tree', 0, "
      "'CREATE VIRTUAL TABLE tree USING fts4(path, name, text)')",
  };
  fs::create_directory(Folder.Path("config"));
  int count = 0;
  for (const std::string& form : forms) {
    fs::remove(File);
    RunSql(File, form);
    const std::string bytes = FileText(File);
    EXPECT_EQ(Stored.Saved(2), "unread") << form;
    EXPECT_TRUE(Stored.Save("v", 2)) << form;
    EXPECT_EQ(Stored.Saved(2), "v");
    EXPECT_EQ(FileText(File + ".damaged-" + std::to_string(++count)), bytes);
  }
  EXPECT_EQ(Stored.Complaints.size(), std::size(forms));
}

/// To compare keys, SQLite would read it whole, again and again.
TEST_F(TreeFile, ARowThatFillsTheMemoryIsGivenUp) {
  ASSERT_TRUE(Stored.Save("old", 2));
  sqlite3_hard_heap_limit64(0);  // for the stranger
  RunSql(File, "PRAGMA synchronous=OFF; INSERT INTO tree VALUES ('P', '00', zeroblob(70000000))");
  EXPECT_EQ(Stored.Saved(2), "unread");
  EXPECT_EQ(Stored.Complaints.size(), 1U);
}

TEST_F(TreeFile, AnEndlessSchemaIsGivenUp) {
  fs::create_directory(Folder.Path("config"));
  RunSql(File,
         "PRAGMA synchronous=OFF; CREATE TABLE t(a); PRAGMA writable_schema=ON;"
         "WITH RECURSIVE r(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM r LIMIT 100000) "
         "INSERT INTO sqlite_schema SELECT 'table', 't'||i, 't'||i, 2, 'CREATE TABLE t'||i||'(a)' "
         "FROM r");
  const std::chrono::nanoseconds begin = ProcessorTime();  // however busy the machine is
  EXPECT_FALSE(Stored.Save("v", 2));
  EXPECT_LT(ProcessorTime() - begin, std::chrono::seconds(4));
  EXPECT_EQ(Stored.Complaints.size(), 1U);
}

}  // namespace
}  // namespace starfolds

// When the tree's files are made, kept and left alone.
#include <sqlite3.h>

#include <ctime>

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

TEST_F(TreeFile, TheFirstWriteMakesAPrivateFolderAndALookNothing) {
  EXPECT_EQ(Stored.Saved(3), "");
  EXPECT_FALSE(Stored.Tree.DeleteKey(kUser, "P"));
  EXPECT_TRUE(Folder.Names().empty());
  ASSERT_TRUE(Stored.Write("x", "1"));
  EXPECT_EQ(fs::status(Folder.Path("config")).permissions(), fs::perms::owner_all);
}

/// A start looks several times. What comes in between is seen all the same.
TEST_F(TreeFile, StaysOpenBetweenLooksWithoutALock) {
  const auto openings = [&] {
    std::error_code gone;
    std::ptrdiff_t count = 0;
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
      count += fs::read_symlink(entry.path(), gone) == File ? 1 : 0;
    }
    return count;
  };
  ASSERT_TRUE(Stored.Save("v", 2));
  EXPECT_EQ(Stored.Saved(2), "v");
  EXPECT_EQ(Stored.Read("0"), "v");
  EXPECT_EQ(openings(), 1);
  RunSql(File, "PRAGMA locking_mode = EXCLUSIVE; UPDATE tree SET text = 'w'");
  EXPECT_EQ(Stored.Saved(2), "w");
  fs::rename(File, File + "-away");
  EXPECT_EQ(Stored.Saved(2), "");
  ASSERT_TRUE(StoredTree(File).Save("fresh", 2));
  EXPECT_EQ(Stored.Saved(2), "fresh");
  EXPECT_EQ(openings(), 1);
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

TEST_F(TreeFile, ALinkToTheFileStays) {
  fs::create_directory(Folder.Path("config"));
  fs::create_symlink(Folder.Path("elsewhere.db"), File);
  ASSERT_TRUE(Stored.Write("x", "1"));
  std::ofstream(Folder.Path("elsewhere.db")) << std::string(2000, '?');
  ASSERT_TRUE(Stored.Write("x", "2"));
  EXPECT_EQ(Stored.Complaints.size(), 1U);
  EXPECT_TRUE(fs::is_symlink(File));
  EXPECT_EQ(FileText(Folder.Path("elsewhere.db.damaged-1")), std::string(2000, '?'));
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
      "CREATE VIRTUAL TABLE tree USING fts4(path, name, text)",
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
  const std::clock_t begin = std::clock();  // of the processor, however busy the machine is
  EXPECT_FALSE(Stored.Save("v", 2));
  EXPECT_LT(std::clock() - begin, 4 * CLOCKS_PER_SEC);
  EXPECT_EQ(Stored.Complaints.size(), 1U);
}

}  // namespace
}  // namespace starfolds

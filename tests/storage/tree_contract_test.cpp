// What every stored tree does, in memory and on the disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "storage/sqlite_tree.h"
#include "test_folder.h"

namespace starfolds {
namespace {

struct InMemory {
  MemoryTree Tree;
};

struct OnDisk {
  TestFolder Folder{QuickFolder()};
  SqliteTree Tree{{Folder.Path("user/a.db"), Folder.Path("machine/a.db")},
                  [](const std::string& line) { ADD_FAILURE() << line; }};
};

constexpr Hive kUser = Hive::CurrentUser;

template <class Place>
class TreeContract : public testing::Test {
 protected:
  std::optional<std::string> Read(std::string_view path, std::string_view name) {
    return Tree.Read(kUser, path, name);
  }
  bool Write(std::string_view path, std::string_view name, std::string_view text) {
    return Tree.Write(kUser, path, name, text);
  }

  Place place_;
  KeyValueTree& Tree = place_.Tree;
};

using Places = testing::Types<InMemory, OnDisk>;
TYPED_TEST_SUITE(TreeContract, Places);

TYPED_TEST(TreeContract, GivesBackTheBytesThatWereStored) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  const std::string texts[] = {"",
                               "x",
                               " 12 ",
                               "0012",
                               "1e5",
                               all,
                               "\x80",
                               std::string(3, '\0'),
                               "it's",
                               std::string(127, 'z'),
                               "%s",
                               "\xEF\xBB\xBF",
                               std::string(100'000, 'q')};
  for (const std::string& text : texts) {
    ASSERT_TRUE(this->Write("A\\B", "name", text));
    EXPECT_EQ(this->Read("A\\B", "name"), text) << text.size();
  }
}

TYPED_TEST(TreeContract, MissingIsNothingAndEmptyIsSomething) {
  EXPECT_EQ(this->Read("A", "x"), std::nullopt);
  ASSERT_TRUE(this->Write("A", "x", ""));
  ASSERT_TRUE(this->Write("", "", "root"));
  EXPECT_EQ(this->Read("A", "x"), "");
  EXPECT_EQ(this->Read("", ""), "root");
  EXPECT_EQ(this->Read("A", "y"), std::nullopt);
  EXPECT_EQ(this->Read("A", ""), std::nullopt);
  EXPECT_EQ(this->Read("A\\x", "x"), std::nullopt);
}

TYPED_TEST(TreeContract, OnlyTheLettersOfAsciiFold) {
  ASSERT_TRUE(this->Write("Root\\Universe", "GSteps", "1"));
  EXPECT_EQ(this->Read("ROOT\\universe", "gsteps"), "1");
  ASSERT_TRUE(this->Write("root\\UNIVERSE", "GSTEPS", "2"));
  EXPECT_EQ(this->Read("Root\\Universe", "GSteps"), "2");
  ASSERT_TRUE(this->Write("Root", "\xC3\xA4[", "small"));  // a with dots; "[" + 32 is "{"
  EXPECT_EQ(this->Read("Root", "\xC3\x84["), std::nullopt);
  EXPECT_EQ(this->Read("Root", "\xC3\xA4{"), std::nullopt);
}

TYPED_TEST(TreeContract, HivesAreApart) {
  ASSERT_TRUE(this->Write("A", "x", "user"));
  EXPECT_EQ(this->Tree.Read(Hive::LocalMachine, "A", "x"), std::nullopt);
  ASSERT_TRUE(this->Tree.Write(Hive::LocalMachine, "A", "x", "machine"));
  EXPECT_EQ(this->Read("A", "x"), "user");
  EXPECT_TRUE(this->Tree.DeleteKey(Hive::LocalMachine, "A"));
  EXPECT_EQ(this->Read("A", "x"), "user");
  EXPECT_EQ(this->Tree.Read(Hive::ClassesRoot, "A", "x"), std::nullopt);
}

TYPED_TEST(TreeContract, AKeyGoesWithAllBelowItAndNothingElse) {
  for (const char* path : {"A", "A\\B", "a\\b\\C", "AB", "A]", "A[", "A ", "B\\A", ""}) {
    ASSERT_TRUE(this->Write(path, "x", path));
  }
  EXPECT_FALSE(this->Tree.DeleteKey(kUser, "A\\B\\C\\D"));
  EXPECT_TRUE(this->Tree.DeleteKey(kUser, "a"));
  EXPECT_FALSE(this->Tree.DeleteKey(kUser, "A"));
  for (const char* gone : {"A", "A\\B", "A\\B\\C"}) EXPECT_EQ(this->Read(gone, "x"), std::nullopt);
  for (const char* kept : {"AB", "A]", "A[", "A ", "B\\A", ""}) {
    EXPECT_EQ(this->Read(kept, "x"), kept);
  }
}

TYPED_TEST(TreeContract, ABulkIsStoredAsAWholeOrNotAtAll) {
  ASSERT_TRUE(this->Write("A", "x", "old"));
  ASSERT_TRUE(this->Write("B", "x", "old"));
  {
    TreeBulk abandoned = TreeBulk::Change(this->Tree);
    EXPECT_TRUE(abandoned.Begun());
    EXPECT_TRUE(this->Write("A", "x", "new"));
    EXPECT_TRUE(this->Write("C", "x", "new"));
    EXPECT_TRUE(this->Tree.DeleteKey(kUser, "B"));
    EXPECT_EQ(this->Read("A", "x"), "new");
    EXPECT_EQ(this->Read("B", "x"), std::nullopt);
  }
  EXPECT_EQ(this->Read("A", "x"), "old");
  EXPECT_EQ(this->Read("B", "x"), "old");
  EXPECT_EQ(this->Read("C", "x"), std::nullopt);

  TreeBulk kept = TreeBulk::Change(this->Tree);
  EXPECT_TRUE(this->Write("A", "x", "new"));
  EXPECT_TRUE(this->Tree.DeleteKey(kUser, "B"));
  EXPECT_TRUE(kept.Commit());
  EXPECT_FALSE(kept.Commit());
  EXPECT_EQ(this->Read("A", "x"), "new");
  EXPECT_EQ(this->Read("B", "x"), std::nullopt);
}

TYPED_TEST(TreeContract, BulksNestAndTheOutermostCounts) {
  {
    TreeBulk outer = TreeBulk::Change(this->Tree);
    {
      TreeBulk inner = TreeBulk::Change(this->Tree);
      EXPECT_TRUE(this->Write("A", "x", "1"));
      EXPECT_TRUE(inner.Commit());
    }
    TreeBulk look = TreeBulk::Look(this->Tree);
    EXPECT_EQ(this->Read("A", "x"), "1");
    EXPECT_TRUE(look.Commit());
    EXPECT_TRUE(outer.Commit());
  }
  EXPECT_EQ(this->Read("A", "x"), "1");
  TreeBulk outer = TreeBulk::Change(this->Tree);
  EXPECT_TRUE(this->Write("A", "x", "2"));
  { const TreeBulk abandoned = TreeBulk::Change(this->Tree); }
  EXPECT_FALSE(outer.Commit());
  EXPECT_EQ(this->Read("A", "x"), "1");
}

TYPED_TEST(TreeContract, ALookAtAnEmptyTreeSucceedsAndFindsNothing) {
  TreeBulk look = TreeBulk::Look(this->Tree);
  EXPECT_TRUE(look.Begun());
  EXPECT_EQ(this->Read("A", "x"), std::nullopt);
  EXPECT_EQ(this->Tree.Read(Hive::LocalMachine, "A", "x"), std::nullopt);
  EXPECT_TRUE(look.Commit());
}

/// Two trees that are told the same.
class Twins {
 public:
  explicit Twins(unsigned seed) : random_(seed) {}

  void DoSomething(KeyValueTree& a, KeyValueTree& b) {
    const std::string path = Pick({"P", "p\\Q", "P\\q\\R", "PQ", "S"});
    const std::string name = Pick({"x", "X", "y", ""});
    const std::string text = Pick({"1", "", "two", "3 3"});
    switch (random_() % 4) {
      case 0: EXPECT_EQ(a.DeleteKey(kUser, path), b.DeleteKey(kUser, path)) << path; break;
      case 1: EXPECT_EQ(a.Write(kUser, path, name, text), b.Write(kUser, path, name, text)); break;
      default:
        EXPECT_EQ(a.Read(kUser, path, name), b.Read(kUser, path, name)) << path << ' ' << name;
    }
  }

  void DoMuchAtOnce(KeyValueTree& a, KeyValueTree& b) {
    TreeBulk bulkA = TreeBulk::Change(a);
    TreeBulk bulkB = TreeBulk::Change(b);
    for (int i = 0; i < 25; ++i) DoSomething(a, b);
    if (random_() % 2 == 0) return;
    EXPECT_TRUE(bulkA.Commit());
    EXPECT_TRUE(bulkB.Commit());
  }

 private:
  std::string Pick(std::initializer_list<const char*> choices) {
    return *(choices.begin() + random_() % choices.size());
  }

  std::mt19937 random_;
};

TEST(SqliteTree, DoesAllThatTheTreeInMemoryDoes) {
  OnDisk disk;
  MemoryTree memory;
  Twins twins(4);
  for (int i = 0; i < 60; ++i) {
    twins.DoMuchAtOnce(disk.Tree, memory);
    twins.DoSomething(disk.Tree, memory);
  }
}

}  // namespace
}  // namespace starfolds

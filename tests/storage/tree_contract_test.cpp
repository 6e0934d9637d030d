// What every stored tree does, in memory and on the disk.
#include <gtest/gtest.h>

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
                  [](const UserText& line) { ADD_FAILURE() << InOneLine(line); }};
};

template <class Place>
class TreeContract : public testing::Test {
 protected:
  std::optional<std::string> Read(std::string_view path, std::string_view name = "x") {
    return Tree.Read(Hive::CurrentUser, path, name);
  }
  bool Write(std::string_view path, std::string_view name, std::string_view text) {
    return Tree.Write(Hive::CurrentUser, path, name, text);
  }
  bool DeleteKey(std::string_view path) { return Tree.DeleteKey(Hive::CurrentUser, path); }

  Place place_;
  KeyValueTree& Tree = place_.Tree;
};

using Places = testing::Types<InMemory, OnDisk>;
TYPED_TEST_SUITE(TreeContract, Places);

TYPED_TEST(TreeContract, GivesBackTheBytesThatWereStored) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  for (const std::string& text :
       {std::string(), std::string("0012"), all, std::string("it's \x80"), all + all}) {
    ASSERT_TRUE(this->Write("A\\B", "x", text));
    EXPECT_EQ(this->Read("A\\B"), text) << text.size();
  }
}

TYPED_TEST(TreeContract, MissingIsNothingAndOnlyTheLettersOfAsciiFold) {
  EXPECT_EQ(this->Read("A"), std::nullopt);
  ASSERT_TRUE(this->Write("", "", "root"));
  EXPECT_EQ(this->Read("", ""), "root");
  ASSERT_TRUE(this->Write("Root\\Universe", "GSteps", "1"));
  ASSERT_TRUE(this->Write("root\\UNIVERSE", "GSTEPS", "2"));
  EXPECT_EQ(this->Read("Root\\Universe", "GSteps"), "2");
  EXPECT_EQ(this->Read("Root\\Universe", "GStep"), std::nullopt);
  ASSERT_TRUE(this->Write("Root", "\xC3\xA4[", "small"));  // a with dots; "[" + 32 is "{"
  EXPECT_EQ(this->Read("Root", "\xC3\x84["), std::nullopt);
  EXPECT_EQ(this->Read("Root", "\xC3\xA4{"), std::nullopt);
}

TYPED_TEST(TreeContract, AKeyGoesWithAllBelowItAndNothingElse) {
  for (const char* path : {"A", "A\\B", "a\\b\\C", "AB", "A]", "A[", "A ", "B\\A", ""}) {
    ASSERT_TRUE(this->Write(path, "x", path));
  }
  EXPECT_FALSE(this->DeleteKey("A\\B\\C\\D"));
  EXPECT_TRUE(this->DeleteKey("a"));
  EXPECT_FALSE(this->DeleteKey("A"));
  for (const char* gone : {"A", "A\\B", "A\\B\\C"}) EXPECT_EQ(this->Read(gone), std::nullopt);
  for (const char* kept : {"AB", "A]", "A[", "A ", "B\\A", ""}) EXPECT_EQ(this->Read(kept), kept);
}

TYPED_TEST(TreeContract, BulksAreStoredAsAWholeOrNotAtAllAndTheOutermostCounts) {
  ASSERT_TRUE(this->Write("A", "x", "old"));
  ASSERT_TRUE(this->Write("B", "x", "old"));
  for (const bool keep : {false, true}) {
    {
      TreeBulk outer = TreeBulk::Change(this->Tree);
      EXPECT_TRUE(this->DeleteKey("B"));
      {
        TreeBulk inner = TreeBulk::Change(this->Tree);
        EXPECT_TRUE(this->Write("A", "x", "new"));
        EXPECT_TRUE(!keep || inner.Commit());
      }
      EXPECT_EQ(this->Read("A"), "new");
      EXPECT_EQ(this->Read("B"), std::nullopt);
      EXPECT_EQ(outer.Commit(), keep) << "an abandoned one within it spoils the outermost";
      EXPECT_FALSE(outer.Commit());
    }
    EXPECT_EQ(this->Read("A"), keep ? "new" : "old");
    EXPECT_EQ(this->Read("B").has_value(), !keep);
  }
}

}  // namespace
}  // namespace starfolds

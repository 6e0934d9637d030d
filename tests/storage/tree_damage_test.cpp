// Files of all kinds of rubbish in the place of the tree.
#include <random>

#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

constexpr int kValues = 120;

class TreeDamage : public TreeTest {
 protected:
  std::mt19937 Random{7};

  std::string GoodFile() {
    StoredTree stored(File);
    EXPECT_TRUE(stored.Save(std::string(60, 'v'), kValues));
    return FileText(File);
  }

  /// Every second time with the right beginning.
  std::string RandomBytes(std::size_t most, const std::string& beginning) {
    std::string bytes(1 + Random() % most, '\0');
    for (char& byte : bytes) byte = static_cast<char>(Random());
    if (Random() % 2 == 0) bytes.replace(0, beginning.size(), beginning);
    return bytes;
  }

  void Empty() { fs::remove_all(Folder.Path("config")); }

  /// Does all that can be done with a tree. What was in the file is afterwards still in it, changed
  /// by way of the tree, or lies beside it as it was. Whether something could be stored at last.
  bool UseAndKeep(const std::string& bytes) {
    StoredTree stored(File, {}, kImpatient);
    stored.Read("5");
    stored.Saved(kValues);
    EXPECT_EQ(FileText(File), bytes) << "looking changed it";
    bool stores = false;
    for (int i = 0; i < 2 && !stores; ++i) {  // the first one may be what finds the damage
      stores = stored.Save("new", kValues) && stored.Write("x", "1");
    }
    if (stores) {
      EXPECT_EQ(stored.Saved(kValues), "new");
      EXPECT_EQ(stored.Read("x"), "1");
      stored.Tree.DeleteKey(kUser, "P");
    }
    const bool aside = fs::exists(File + ".damaged-1");
    EXPECT_EQ(stored.Complaints.size(), aside ? 1U : 0U);
    if (aside) {
      EXPECT_EQ(FileText(File + ".damaged-1").size(), bytes.size());
    } else if (!stores) {
      EXPECT_EQ(FileText(File), bytes);
    }
    return stores;
  }
};

TEST_F(TreeDamage, FilesOfRubbishAreSetAsideAndWhatCanBeReadIsKept) {
  const std::string good = GoodFile();
  int stored = 0;
  constexpr int kVariants = 400;
  for (int i = 0; i < kVariants; ++i) {
    std::string bytes = good;
    if (i % 4 == 0) bytes.resize(1 + Random() % (good.size() - 1));
    if (i % 4 == 1) bytes = RandomBytes(20'000, std::string("SQLite format 3", 16));
    if (i % 4 >= 2) {
      const std::size_t among = i % 4 == 2 ? bytes.size() : 200;  // the header tells most
      for (unsigned flips = 1 + Random() % 8; flips > 0; --flips) {
        bytes[Random() % among] = static_cast<char>(Random());
      }
    }
    Empty();
    Put("config/settings.db", bytes);
    const bool stores = UseAndKeep(bytes);
    EXPECT_TRUE(stores || i % 4 >= 2) << i;
    stored += stores ? 1 : 0;
  }
  EXPECT_GT(stored, kVariants * 9 / 10) << "it comes to itself again";
}

TEST_F(TreeDamage, TheJournalGoesWithItsFile) {
  Put("config/settings.db", std::string(3000, '?'));
  Put("config/settings.db-journal", std::string("\0jjj", 4));
  Put("config/settings.db.damaged-1", "an earlier one");
  StoredTree stored(File);
  EXPECT_TRUE(stored.Write("x", "1"));
  EXPECT_EQ(FileText(File + ".damaged-1"), "an earlier one");
  EXPECT_EQ(FileText(File + ".damaged-2"), std::string(3000, '?'));
  EXPECT_EQ(FileText(File + ".damaged-2-journal"), std::string("\0jjj", 4));
  EXPECT_FALSE(fs::exists(File + "-journal"));
}

}  // namespace
}  // namespace starfolds

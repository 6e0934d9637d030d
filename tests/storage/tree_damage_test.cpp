// Files of all kinds of rubbish in the place of the tree.
#include <sys/stat.h>

#include <random>

#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

constexpr int kValues = 120;

class TreeDamage : public testing::Test {
 protected:
  TestFolder Folder{QuickFolder()};
  const std::string File = Folder.Path("settings.db");
  std::mt19937 Random{7};

  std::string GoodFile() {
    StoredTree stored(File);
    EXPECT_TRUE(stored.Save(std::string(60, 'v'), kValues));
    return FileText(File);
  }

  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(Folder.Path(name), std::ios::binary) << bytes;
  }

  void Empty() {
    for (const std::string& name : Folder.Names()) fs::remove(Folder.Path(name));
  }

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

TEST_F(TreeDamage, NoDatabaseIsSetAside) {
  const std::string good = GoodFile();
  const std::string files[] = {"xy",
                               "[General]\nGSteps=5\n",
                               std::string(4096, '\0'),
                               std::string(100'000, '\xFF'),
                               good.substr(1),
                               good.substr(0, 50),
                               "SQLite format 3" + std::string(5000, '\0'),
                               "\n" + good};
  for (const std::string& bytes : files) {
    Empty();
    Put("settings.db", bytes);
    EXPECT_TRUE(UseAndKeep(bytes)) << bytes.size();
    EXPECT_EQ(FileText(File + ".damaged-1"), bytes) << bytes.size();
  }
}

TEST_F(TreeDamage, RandomBytes) {
  for (int i = 0; i < 60; ++i) {
    Empty();
    std::string bytes(1 + Random() % 20'000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(Random());
    if (i % 2 == 0) bytes.replace(0, 16, "SQLite format 3", 16);
    Put("settings.db", bytes);
    EXPECT_TRUE(UseAndKeep(bytes)) << i;
  }
}

TEST_F(TreeDamage, ATruncatedFile) {
  const std::string good = GoodFile();
  for (std::size_t length = 1; length < good.size(); length += 1 + Random() % 500) {
    Empty();
    Put("settings.db", good.substr(0, length));
    EXPECT_TRUE(UseAndKeep(good.substr(0, length))) << length;
  }
}

TEST_F(TreeDamage, FlippedBytes) {
  const std::string good = GoodFile();
  int stored = 0;
  constexpr int kVariants = 300;
  for (int i = 0; i < kVariants; ++i) {
    Empty();
    std::string bytes = good;
    const std::size_t among = i % 2 == 0 ? bytes.size() : 200;  // the header tells most
    for (unsigned flips = 1 + Random() % 8; flips > 0; --flips) {
      bytes[Random() % among] = static_cast<char>(Random());
    }
    Put("settings.db", bytes);
    stored += UseAndKeep(bytes) ? 1 : 0;
  }
  EXPECT_GT(stored, kVariants * 9 / 10) << "it comes to itself again";
}

TEST_F(TreeDamage, JournalsOfRubbish) {
  const std::string good = GoodFile();
  const std::string magic = "\xD9\xD5\x05\xF9\x20\xA1\x63\xD7";
  for (int i = 0; i < 40; ++i) {
    Empty();
    std::string journal(1 + Random() % 9000, '\0');
    for (char& byte : journal) byte = static_cast<char>(Random());
    if (i % 2 == 0) journal.replace(0, magic.size(), magic);
    Put("settings.db", good);
    Put("settings.db-journal", journal);
    StoredTree stored(File, {}, kImpatient);
    EXPECT_EQ(stored.Saved(kValues), std::string(60, 'v')) << i;
    EXPECT_TRUE(stored.Save("new", kValues)) << i;
    EXPECT_EQ(stored.Saved(kValues), "new") << i;
  }
}

TEST_F(TreeDamage, TheJournalGoesWithItsFile) {
  Put("settings.db", std::string(3000, '?'));
  Put("settings.db-journal", std::string("\0jjj", 4));
  Put("settings.db.damaged-1", "an earlier one");
  StoredTree stored(File);
  EXPECT_TRUE(stored.Write("x", "1"));
  EXPECT_EQ(FileText(File + ".damaged-1"), "an earlier one");
  EXPECT_EQ(FileText(File + ".damaged-2"), std::string(3000, '?'));
  EXPECT_EQ(FileText(File + ".damaged-2-journal"), std::string("\0jjj", 4));
  EXPECT_FALSE(fs::exists(File + "-journal"));
}

TEST_F(TreeDamage, WhatIsNoFileIsLeft) {
  for (const char* kind : {"folder", "pipe", "device"}) {
    Empty();
    if (*kind == 'f') fs::create_directory(File);
    if (*kind == 'p') mkfifo(File.c_str(), 0666);
    if (*kind == 'd') fs::create_symlink("/dev/zero", File);
    StoredTree stored(File, {}, kImpatient);
    EXPECT_EQ(stored.Saved(2), "unread") << kind;
    EXPECT_EQ(stored.Read("x"), std::nullopt) << kind;
    EXPECT_FALSE(stored.Write("x", "1")) << kind;
    EXPECT_FALSE(stored.Save("new", 2)) << kind;
    EXPECT_EQ(Folder.Names().size(), 1U) << kind;
  }
}

}  // namespace
}  // namespace starfolds

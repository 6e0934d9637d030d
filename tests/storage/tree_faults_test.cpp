// The stored tree on a machine where things go wrong.
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <unistd.h>

#include <random>
#include <thread>

#include "storage/child.h"
#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr int kValues = 400;  // some 10 pages of the file

/// A text that fills more pages than "old" does.
const std::string kNew(100, 'n');

class TreeFaults : public testing::Test {
 protected:
  TestFolder Folder;
  const std::string File = Folder.Path("config/settings.db");
};

TEST_F(TreeFaults, AKilledSaveLeavesTheOldTreeOrTheNewOne) {
  std::mt19937 random(1);
  StoredTree stored(File);
  ASSERT_TRUE(stored.Save("0", kValues));
  std::string before = "0";
  int torn = 0;
  int kept = 0;
  for (int round = 0; round < 60; ++round) {
    {
      Child saver([&] {
        StoredTree own(File);
        for (int i = 0;; ++i) own.Save(std::to_string(round) + "-" + std::to_string(i), kValues);
      });
      std::this_thread::sleep_for(microseconds(random() % 20000));
    }
    torn += fs::exists(File + "-journal") ? 1 : 0;
    const std::string saved = stored.Saved(kValues);
    ASSERT_TRUE(saved == before || saved.starts_with(std::to_string(round) + "-")) << saved;
    kept += saved == before ? 1 : 0;
    before = saved;
  }
  EXPECT_GT(torn, 0) << "no save was hit in its middle";
  EXPECT_LT(kept, 60) << "no save came to its end";
  EXPECT_TRUE(stored.Complaints.empty());
}

/// Saves where there is less and less room, and again where there is enough. `shrink` leaves so
/// many bytes of room, `restore` takes that back.
void SaveIntoLessAndLess(const std::string& file, std::size_t most, std::size_t step,
                         const std::function<void(std::size_t)>& shrink,
                         const std::function<void()>& restore) {
  int refused = 0;
  int stored = 0;
  for (std::size_t room = 0; room <= most; room += step) {
    fs::remove(file);
    StoredTree tree(file);
    ASSERT_TRUE(tree.Save("old", kValues));
    shrink(room);
    const bool saved = tree.Save(kNew, kValues);
    EXPECT_EQ(tree.Saved(kValues), saved ? kNew : "old") << room;
    (saved ? stored : refused) += 1;
    restore();
    EXPECT_EQ(tree.Saved(kValues), saved ? kNew : "old") << room;
    EXPECT_TRUE(tree.Save("again", kValues)) << room;
    EXPECT_EQ(tree.Saved(kValues), "again");
    EXPECT_TRUE(tree.Complaints.empty());
  }
  EXPECT_GT(refused, 3);
  EXPECT_GT(stored, 3);
}

TEST_F(TreeFaults, AFullDiskRefusesAndKeepsTheOldTree) {
  const std::string disk = Folder.Path("disk");
  fs::create_directory(disk);
  if (!Child([&] { ASSERT_TRUE(MountSmallDisk(disk.c_str(), 4096)); }).Succeeded()) {
    GTEST_SKIP() << "this machine lets nobody mount a disk";
  }
  EXPECT_TRUE(Child([&] {
                ASSERT_TRUE(MountSmallDisk(disk.c_str(), 512 * 1024));
                const std::string filler = disk + "/filler";
                const auto leave = [&](std::size_t room) {
                  std::ofstream(filler) << std::string(fs::space(disk).available - room, 'f');
                };
                SaveIntoLessAndLess(disk + "/settings.db", 200 * 1024, 4096, leave,
                                    [&] { fs::remove(filler); });
              }).Succeeded());
}

TEST_F(TreeFaults, AWriteThatFailsHalfWayKeepsTheOldTree) {
  EXPECT_TRUE(Child([&] {
                const TestFolder quick(QuickFolder());
                SaveIntoLessAndLess(quick.Path("settings.db"), 100'000, 1500, LimitFileSize,
                                    [] { LimitFileSize(RLIM_INFINITY); });
              }).Succeeded());
}

TEST_F(TreeFaults, ManyProcessesSaveAtOnceAndNobodyFails) {
  const auto save = [&](char tag) {
    return [this, tag] {
      StoredTree own(File);
      for (int i = 0; i < 30; ++i) EXPECT_TRUE(own.Save(std::string(40, tag), 60));
      EXPECT_TRUE(own.Complaints.empty());
    };
  };
  StoredTree stored(File);
  Child a(save('a'));
  Child b(save('b'));
  Child looker([&] {
    StoredTree own(File);
    for (int i = 0; i < 60; ++i) {
      const std::string saved = own.Saved(60);
      EXPECT_TRUE(saved.empty() || saved == std::string(40, saved[0])) << saved;
      std::this_thread::sleep_for(milliseconds(1));
    }
  });
  EXPECT_TRUE(a.Succeeded());
  EXPECT_TRUE(b.Succeeded());
  EXPECT_TRUE(looker.Succeeded());
  EXPECT_EQ(stored.Saved(60).size(), 40U);
}

/// The file is set aside by one of them, and nobody's fresh file is.
TEST_F(TreeFaults, ManyProcessesFindTheFileDamagedAtOnce) {
  fs::create_directories(Folder.Path("config"));
  for (int round = 0; round < 15; ++round) {
    const std::string rubbish(1000, static_cast<char>('A' + round));
    std::ofstream(File) << rubbish;
    std::vector<std::unique_ptr<Child>> savers;
    for (int i = 0; i < 6; ++i) {
      savers.push_back(std::make_unique<Child>(
          [this, i] { EXPECT_TRUE(StoredTree(File).Write(std::to_string(i), "mine")); }));
    }
    for (const auto& saver : savers) EXPECT_TRUE(saver->Succeeded());
    StoredTree stored(File);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(stored.Read(std::to_string(i)), "mine") << i;
    EXPECT_EQ(FileText(File + ".damaged-" + std::to_string(round + 1)), rubbish);
    EXPECT_EQ(Folder.Names().size(), static_cast<std::size_t>(round) + 3)
        << "folder, file, damaged";
  }
}

TEST_F(TreeFaults, ADamagedFileInUseIsLeft) {
  fs::create_directories(Folder.Path("config"));
  std::ofstream(File) << std::string(1000, '?');
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  Child holder([&] {
    const int file = open(File.c_str(), O_RDONLY);
    struct flock lock {};
    lock.l_type = F_RDLCK;
    lock.l_start = 0x40000002;  // where SQLite's readers lock
    lock.l_len = 510;
    EXPECT_EQ(fcntl(file, F_SETLK, &lock), 0);
    EXPECT_EQ(write(ready[1], "", 1), 1);
    pause();
  });
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  StoredTree stored(File, {}, kImpatient);
  EXPECT_FALSE(stored.Write("x", "1"));
  EXPECT_EQ(FileText(File), std::string(1000, '?'));
  holder.Kill();
  EXPECT_FALSE(holder.Succeeded());
  EXPECT_TRUE(stored.Write("x", "1"));
  close(ready[0]);
  close(ready[1]);
}

TEST_F(TreeFaults, ALockedFileIsGivenUpAfterAWhile) {
  StoredTree stored(File, {}, kImpatient);
  ASSERT_TRUE(stored.Save("old", 2));
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(File.c_str(), &db), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(stored.Read("0"), std::nullopt);
  EXPECT_EQ(stored.Saved(2), "unread");
  EXPECT_FALSE(stored.Write("0", "new"));
  EXPECT_FALSE(stored.Save("new", 2));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, milliseconds(180)) << "it did not wait";
  EXPECT_LT(std::chrono::steady_clock::now() - begin, milliseconds(3000));
  sqlite3_close(db);
  EXPECT_EQ(stored.Saved(2), "old");
  EXPECT_TRUE(stored.Save("new", 2));
}

/// For those who may look but not touch, and for those who may do neither.
TEST_F(TreeFaults, RightsThatAreMissing) {
  struct Case {
    const char* Path;
    fs::perms Rights;
    bool Readable;
  };
  using fs::perms;
  const perms look = perms::owner_read | perms::group_read | perms::others_read;
  const perms enter = perms::owner_exec | perms::group_exec | perms::others_exec;
  ASSERT_TRUE(StoredTree(File).Save("old", 2));
  fs::permissions(Folder.Path(""), perms::all);
  for (const Case& c :
       {Case{"config", look | enter, true}, Case{"config", perms::none, false},
        Case{"config/settings.db", look, true}, Case{"config/settings.db", perms::none, false}}) {
    fs::permissions(Folder.Path("config"), perms::all);
    fs::permissions(File, perms::all);
    fs::permissions(Folder.Path(c.Path), c.Rights);
    EXPECT_TRUE(SucceedsAsOrdinaryUser([&] {
      StoredTree stored(File, {}, kImpatient);
      EXPECT_EQ(stored.Read("0"), c.Readable ? std::optional<std::string>("old") : std::nullopt);
      EXPECT_EQ(stored.Saved(2), c.Readable ? "old" : "unread");
      EXPECT_FALSE(stored.Write("0", "old")) << "not even what is there already";
      EXPECT_FALSE(stored.Save("new", 2));
      EXPECT_FALSE(stored.Tree.DeleteKey(kUser, "P"));
      EXPECT_TRUE(stored.Complaints.empty());
    })) << c.Path
        << ' ' << c.Readable;
  }
  fs::permissions(Folder.Path("config"), perms::all);
  fs::permissions(File, perms::all);
  EXPECT_EQ(StoredTree(File).Saved(2), "old");
}

TEST_F(TreeFaults, AFolderThatMayNotBeMade) {
  fs::permissions(Folder.Path(""), fs::perms::all & ~fs::perms::others_write);
  EXPECT_TRUE(SucceedsAsOrdinaryUser([&] {
    if (access(Folder.Path("").c_str(), W_OK) == 0) return;  // it is the user's own
    EXPECT_FALSE(StoredTree(File).Save("new", 2));
    EXPECT_EQ(StoredTree(File).Saved(2), "");
  }));
  EXPECT_FALSE(fs::exists(Folder.Path("config")));
}

TEST_F(TreeFaults, AFolderThatVanishes) {
  StoredTree stored(File);
  ASSERT_TRUE(stored.Save("old", kValues));
  {
    TreeBulk bulk = TreeBulk::Change(stored.Tree);
    EXPECT_TRUE(bulk.Begun());
    fs::remove_all(Folder.Path("config"));
    for (int i = 0; i < kValues; ++i) stored.Write(std::to_string(i), kNew);
    EXPECT_FALSE(bulk.Commit());
  }
  EXPECT_EQ(stored.Saved(kValues), "");
  EXPECT_TRUE(stored.Save("new", kValues));
  fs::remove_all(Folder.Path("config"));
  EXPECT_EQ(stored.Read("0"), std::nullopt);
  EXPECT_TRUE(stored.Write("0", "again"));
  EXPECT_EQ(stored.Read("0"), "again");
}

/// The bulk meets a page of rubbish long after it has begun. That is no missing value.
TEST_F(TreeFaults, ADamagedPageIsNotTakenForMissingValues) {
  StoredTree stored(File);
  ASSERT_TRUE(stored.Save(kNew, kValues));
  std::string bytes = FileText(File);
  ASSERT_GT(bytes.size(), 40'000U);
  std::fill(bytes.begin() + 3 * 4096, bytes.begin() + 4 * 4096, '\xEE');
  std::ofstream(File) << bytes;
  {
    TreeBulk look = TreeBulk::Look(stored.Tree);
    EXPECT_TRUE(look.Begun());
    int missing = 0;
    for (int i = 0; i < kValues; ++i) missing += stored.Read(std::to_string(i)) ? 0 : 1;
    EXPECT_GT(missing, 0);
    EXPECT_LT(missing, kValues);
    EXPECT_FALSE(look.Commit());
  }
  EXPECT_EQ(FileText(File), bytes) << "a look changes nothing";
  EXPECT_TRUE(stored.Save("new", kValues));
  EXPECT_EQ(stored.Saved(kValues), "new");
  EXPECT_EQ(FileText(File + ".damaged-1"), bytes);
  EXPECT_EQ(stored.Complaints.size(), 1U);
}

}  // namespace
}  // namespace starfolds

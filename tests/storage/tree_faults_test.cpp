// The stored tree with the means of POSIX: processes, permissions, links.
#include <fcntl.h>
#include <sys/stat.h>
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

/// A start looks several times.
TEST_F(TreeFaults, APrivateFileStaysOpenBetweenLooks) {
  const auto openings = [&] {
    std::error_code gone;
    std::ptrdiff_t count = 0;
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
      count += fs::read_symlink(entry.path(), gone) == File ? 1 : 0;
    }
    return count;
  };
  StoredTree stored(File);
  ASSERT_TRUE(stored.Save("v", 2));
  EXPECT_EQ(fs::status(Folder.Path("config")).permissions(), fs::perms::owner_all);
  EXPECT_EQ(stored.Saved(2), "v");
  EXPECT_EQ(stored.Read("0"), "v");
  EXPECT_EQ(openings(), 1);
  fs::rename(File, File + "-away");
  ASSERT_TRUE(StoredTree(File).Save("fresh", 2));
  EXPECT_EQ(stored.Saved(2), "fresh");
  EXPECT_EQ(openings(), 1);
}

TEST_F(TreeFaults, ALinkToTheFileStays) {
  StoredTree stored(File);
  fs::create_directory(Folder.Path("config"));
  fs::create_symlink(Folder.Path("elsewhere.db"), File);
  ASSERT_TRUE(stored.Write("x", "1"));
  std::ofstream(Folder.Path("elsewhere.db")) << std::string(2000, '?');
  ASSERT_TRUE(stored.Write("x", "2"));
  EXPECT_EQ(stored.Complaints.size(), 1U);
  EXPECT_TRUE(fs::is_symlink(File));
  EXPECT_EQ(FileText(Folder.Path("elsewhere.db.damaged-1")), std::string(2000, '?'));
}

TEST_F(TreeFaults, WhatIsNoFileIsLeft) {
  for (const char* kind : {"folder", "pipe", "device"}) {
    fs::remove_all(Folder.Path("config"));
    fs::create_directory(Folder.Path("config"));
    if (*kind == 'f') fs::create_directory(File);
    if (*kind == 'p') mkfifo(File.c_str(), 0666);
    if (*kind == 'd') fs::create_symlink("/dev/zero", File);
    StoredTree stored(File, {}, kImpatient);
    EXPECT_EQ(stored.Saved(2), "unread") << kind;
    EXPECT_FALSE(stored.Save("new", 2)) << kind;
    EXPECT_EQ(Folder.Names().size(), 2U) << kind;
  }
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

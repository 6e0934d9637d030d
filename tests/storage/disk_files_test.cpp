#include "storage/disk_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>
#include <thread>

#include "storage/child.h"
#include "test_folder.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class DiskFilesTest : public testing::Test {
 protected:
  TestFolder Folder{QuickFolder()};
  const std::string File = Folder.Path("u.sfd");
  DiskFiles Disk;

  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(Folder.Path(name), std::ios::binary) << bytes;
  }
};

TEST_F(DiskFilesTest, ReadsUpToTheLimit) {
  const std::string bytes = std::string("a\r\n\0\xFF", 5) + std::string(200'000, 'x');
  Put("u.sfd", bytes);
  EXPECT_EQ(Disk.Read(File, bytes.size()).Bytes, bytes);
  EXPECT_EQ(Disk.Read(File, static_cast<std::size_t>(-1)).Bytes, bytes);
  const FileContents refused = Disk.Read(File, bytes.size() - 1);
  EXPECT_EQ(refused.Bytes, std::nullopt);
  EXPECT_EQ(refused.Fault, "File too large");
  Put("empty", "");
  EXPECT_EQ(Disk.Read(Folder.Path("empty"), 0).Bytes, "");
  // The system calls this one empty, and yet it never ends: as a file that grows.
  EXPECT_EQ(Disk.Read("/proc/self/maps", 10).Bytes, std::nullopt);
}

TEST_F(DiskFilesTest, OnlyPlainFilesAreReadAndReplaced) {
  ASSERT_EQ(mkfifo(Folder.Path("pipe").c_str(), 0666), 0);
  fs::create_symlink("/dev/zero", Folder.Path("zero"));
  fs::create_symlink("loop", Folder.Path("loop"));
  const std::pair<const char*, const char*> faults[] = {
      {"pipe", "Not a plain file"},
      {"zero", "Not a plain file"},
      {"", "Is a directory"},
      {"no/u.sfd", "No such file or directory"},
      {"loop", "Too many levels of symbolic links"}};
  for (const auto& [name, fault] : faults) {
    const FileContents read = Disk.Read(Folder.Path(name), 1000);
    EXPECT_EQ(read.Bytes, std::nullopt) << name;
    EXPECT_EQ(read.Fault, fault) << name;
    EXPECT_EQ(Disk.Replace(Folder.Path(name), "x"), fault) << name;
  }
  EXPECT_THAT(Folder.Names(), UnorderedElementsAre("pipe", "zero", "loop"));
}

TEST_F(DiskFilesTest, ReplacesAndKeepsTheRights) {
  const mode_t mask = umask(022);
  EXPECT_EQ(Disk.Replace(File, "one"), std::nullopt);
  umask(mask);
  EXPECT_EQ(fs::status(File).permissions(), fs::perms(0644));
  fs::permissions(File, fs::perms(0600));
  EXPECT_EQ(Disk.Replace(File, "two"), std::nullopt);
  EXPECT_EQ(fs::status(File).permissions(), fs::perms(0600));
  EXPECT_EQ(FileText(File), "two");
  EXPECT_THAT(Folder.Names(), ElementsAre("u.sfd"));
}

TEST_F(DiskFilesTest, ReplacesWhatALinkLeadsTo) {
  fs::create_directory(Folder.Path("sub"));
  fs::create_symlink("../u.sfd", Folder.Path("sub/near"));
  fs::create_symlink(Folder.Path("sub/near"), Folder.Path("far"));
  for (const char* text : {"made", "replaced"}) {
    EXPECT_EQ(Disk.Replace(Folder.Path("far"), text), std::nullopt);
    EXPECT_EQ(Disk.Read(Folder.Path("far"), 1000).Bytes, text);
    EXPECT_FALSE(fs::is_symlink(File));
    EXPECT_TRUE(fs::is_symlink(Folder.Path("far")));
    EXPECT_TRUE(fs::is_symlink(Folder.Path("sub/near")));
  }
}

TEST_F(DiskFilesTest, RightsCount) {
  fs::create_directory(Folder.Path("shut"));
  Put("shut/u.sfd", "old");
  Put("locked.sfd", "old");
  fs::permissions(Folder.Path("shut/u.sfd"), fs::perms(0666));
  fs::permissions(Folder.Path("locked.sfd"), fs::perms(0444));
  fs::permissions(Folder.Path("shut"), fs::perms(0555));
  fs::permissions(Folder.Path(""), fs::perms(0777));
  EXPECT_TRUE(SucceedsAsOrdinaryUser([&] {
    EXPECT_EQ(Disk.Replace(Folder.Path("shut/u.sfd"), "new"), "Permission denied");
    EXPECT_EQ(Disk.Replace(Folder.Path("locked.sfd"), "new"), "Permission denied");
    EXPECT_FALSE(Disk.CanWriteFolder(Folder.Path("shut")));
    EXPECT_TRUE(Disk.CanWriteFolder(Folder.Path("")));
  }));
  fs::permissions(Folder.Path("shut"), fs::perms(0755));
  EXPECT_FALSE(Disk.CanWriteFolder(Folder.Path("missing")));
  EXPECT_FALSE(Disk.CanWriteFolder(Folder.Path("locked.sfd")));
}

TEST_F(DiskFilesTest, ADiskThatIsFullKeepsTheOldFile) {
  Put("u.sfd", "old");
  EXPECT_TRUE(Child([&] {
                signal(SIGXFSZ, SIG_IGN);
                for (rlim_t room = 0; room < 30'000; room += 1000) {
                  const rlimit limit{room, RLIM_INFINITY};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  EXPECT_EQ(Disk.Replace(File, std::string(30'000, 'n')), "File too large");
                }
              }).Succeeded());
  EXPECT_EQ(FileText(File), "old");
  EXPECT_THAT(Folder.Names(), ElementsAre("u.sfd"));
}

TEST_F(DiskFilesTest, AKilledReplacementLeavesTheOldFileOrTheNewOne) {
  std::mt19937 random(3);
  Put("u.sfd", std::string(50'000, 'a'));
  std::size_t most = 0;
  for (int round = 0; round < 30; ++round) {
    {
      const Child process([&] {
        for (char c = 'a';; c = c == 'z' ? 'a' : static_cast<char>(c + 1)) {
          Disk.Replace(File, std::string(50'000, c));
        }
      });
      ASSERT_TRUE(WaitForFile(File + ".part-1"));
      std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
    }
    const std::string text = FileText(File);
    ASSERT_EQ(text, std::string(50'000, text[0]));
    most = std::max(most, Folder.Names().size());
  }
  EXPECT_EQ(most, 2U) << "one temporary file may be left behind, and should have been at times";
  EXPECT_EQ(Disk.Replace(File, "end"), std::nullopt);
  EXPECT_THAT(Folder.Names(), ElementsAre("u.sfd"));
}

TEST_F(DiskFilesTest, ManyReplaceAtOnceAndNobodyFails) {
  const auto replace = [&](char tag) {
    return [this, tag] {
      for (int i = 0; i < 30; ++i) {
        EXPECT_EQ(Disk.Replace(File, std::string(300'000, tag)), std::nullopt);
      }
    };
  };
  Child a(replace('a'));
  Child b(replace('b'));
  EXPECT_TRUE(a.Succeeded());
  EXPECT_TRUE(b.Succeeded());
  const std::string text = FileText(File);
  EXPECT_EQ(text, std::string(300'000, text[0]));
  EXPECT_THAT(Folder.Names(), ElementsAre("u.sfd"));
}

}  // namespace
}  // namespace starfolds

#include "storage/disk_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstddef>
#include <random>
#include <thread>

#include "storage/child.h"
#include "storage/file_writer.h"
#include "test_folder.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
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
  if (geteuid() != 0) return;
  ASSERT_EQ(chown(File.c_str(), 12, 34), 0);
  EXPECT_EQ(Disk.Replace(File, "three"), std::nullopt);
  struct stat status {};
  ASSERT_EQ(stat(File.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 12U);
  EXPECT_EQ(status.st_gid, 34U);
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

TEST_F(DiskFilesTest, PermissionsAreRespected) {
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
  for (int round = 0; round < 30; ++round) {
    const TestFolder other;
    {
      const Child process([&] {
        std::ofstream(other.Path("started")) << "now";
        for (char c = 'a';; c = c == 'z' ? 'a' : static_cast<char>(c + 1)) {
          Disk.Replace(File, std::string(50'000, c));
        }
      });
      ASSERT_TRUE(WaitForFile(other.Path("started")));
      std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
    }
    const std::string text = FileText(File);
    ASSERT_EQ(text, std::string(50'000, text[0]));
  }
}

/// From now on this process cannot create files without a name, as on a file system that lacks
/// them.
void RefuseUnnamedFiles() {
  sock_filter steps[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_openat, 0, 3),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),  // the low half
      BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, O_TMPFILE & ~O_DIRECTORY, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  const sock_fprog filter{std::size(steps), steps};
  ASSERT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
  ASSERT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter), 0);
}

TEST_F(DiskFilesTest, TemporaryFilesHaveNoNameOrARandomOne) {
  Put("u.sfd", "old");
  fs::permissions(File, fs::perms(0600));
  const auto writeTwo = [&](std::size_t names) {
    FileWriter one, two;
    ASSERT_EQ(one.Open(File, Targets::Files), std::nullopt);
    ASSERT_EQ(two.Open(File, Targets::Files), std::nullopt);
    EXPECT_EQ(Folder.Names().size(), names);
    for (const std::string& name : Folder.Names()) {
      EXPECT_THAT(name, MatchesRegex("u.sfd|starfolds-[0-9a-f]{32}.part"));
      EXPECT_EQ(fs::status(Folder.Path(name)).permissions(), fs::perms(0600));
    }
    EXPECT_EQ(one.Write("one"), std::nullopt);
    EXPECT_EQ(one.Commit(), std::nullopt);
  };
  writeTwo(1);
  EXPECT_TRUE(Child([&] {
                RefuseUnnamedFiles();
                writeTwo(3);
              }).Succeeded());
  EXPECT_EQ(FileText(File), "one");
  EXPECT_THAT(Folder.Names(), ElementsAre("u.sfd"));
}

TEST_F(DiskFilesTest, SignalsRemoveTemporaryFiles) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    const auto writeAndRaise = [&] {
      signal(SIGPIPE, SIG_IGN);
      RefuseUnnamedFiles();
      RemoveTemporaryFilesOnSignals();
      FileWriter file;
      ASSERT_EQ(file.Open(File, Targets::Files), std::nullopt);
      ASSERT_EQ(Folder.Names().size(), 1U);
      raise(SIGPIPE);
      raise(number);
    };
    EXPECT_EXIT(writeAndRaise(), testing::KilledBySignal(number), "");
    EXPECT_THAT(Folder.Names(), IsEmpty());
  }
}

}  // namespace
}  // namespace starfolds

// Files of Windows, and the damaged file of the stored tree.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "storage/disk_files.h"
#include "storage/file_writer.h"
#include "storage/storage_places.h"
#include "storage/stored_tree.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class WindowsFiles : public testing::Test {
 protected:
  TestFolder Folder;
  const std::string File =  // a with dots, and a kanji
      Folder.Path("") + "\xC3\xA4\xE6\x97\xA5.sfd";
  DiskFiles Disk;
};

TEST_F(WindowsFiles, AreReplacedUnderNamesOfAllLanguages) {
  const std::string bytes("a\n\0\x1A\r\nb", 7);
  EXPECT_FALSE(Disk.Exists(File));
  EXPECT_EQ(Disk.Read(File, 99).Fault, "No such file or directory");
  ASSERT_EQ(Disk.Replace(File, "former"), std::nullopt);
  ASSERT_EQ(Disk.Replace(File, bytes), std::nullopt);
  EXPECT_EQ(Disk.Read(File, 7).Bytes, bytes);
  EXPECT_EQ(Disk.Read(File, 6).Fault, "File too large");
  std::vector<std::u8string> names;
  for (const auto& entry : fs::directory_iterator(Folder.Path(""))) {
    names.push_back(entry.path().filename().u8string());
  }
  EXPECT_THAT(names, testing::ElementsAre(u8"\u00E4\u65E5.sfd"));
}

TEST_F(WindowsFiles, StayUnchangedWithoutACommit) {
  ASSERT_EQ(Disk.Replace(File, "former"), std::nullopt);
  {
    FileWriter writer;
    ASSERT_EQ(writer.Open(File, Targets::Files), std::nullopt);
    ASSERT_EQ(writer.Write("new"), std::nullopt);
  }
  EXPECT_EQ(Disk.Read(File, 99).Bytes, "former");
  EXPECT_EQ(std::distance(fs::directory_iterator(Folder.Path("")), {}), 1) << "temporary file";
}

TEST_F(WindowsFiles, AreRefusedWhereNoneCanBe) {
  fs::create_directory(Folder.Path("folder"));
  ASSERT_EQ(Disk.Replace(Folder.Path("fixed"), "former"), std::nullopt);
  fs::permissions(Folder.Path("fixed"), fs::perms::owner_write, fs::perm_options::remove);
  const std::pair<std::string, const char*> faults[] = {
      {Folder.Path("folder"), "Is a directory"},
      {Folder.Path("fixed"), "Permission denied"},
      {Folder.Path("none/u.sfd"), "No such file or directory"},
      {"NUL", "Not a plain file"},
      {"\xFF.sfd", "Invalid argument"}};
  for (const auto& [path, fault] : faults) EXPECT_EQ(Disk.Replace(path, "new"), fault) << path;
  EXPECT_EQ(Disk.Read(Folder.Path("fixed"), 99).Bytes, "former");
  EXPECT_EQ(Disk.Read(Folder.Path("folder"), 99).Fault, "Is a directory");
  EXPECT_EQ(Disk.Read("NUL", 99).Bytes, std::nullopt);
  EXPECT_TRUE(Disk.CanWriteFolder(Folder.Path("folder")));
  EXPECT_FALSE(Disk.CanWriteFolder(Folder.Path("none")));
  EXPECT_THAT(Folder.Names(), UnorderedElementsAre("folder", "fixed"));
  fs::permissions(Folder.Path("fixed"), fs::perms::owner_write, fs::perm_options::add);
}

TEST_F(WindowsFiles, ADamagedTreeIsSetAside) {
  const std::string file = Folder.Path("settings.db");
  std::ofstream(file) << std::string(5000, 'x');
  StoredTree stored(file);
  EXPECT_TRUE(stored.Save("new", 2));
  EXPECT_EQ(stored.Saved(2), "new");
  EXPECT_THAT(stored.Complaints, testing::SizeIs(1));
  EXPECT_EQ(FileText(Folder.Path("settings.db.damaged-1")), std::string(5000, 'x'));
}

TEST(WindowsPlaces, AreBelowTheFoldersOfApplications) {
  struct Case {
    std::optional<std::string> AppData;
    std::string Home, User;
  };
  for (const Case& c :
       {Case{"C:\\A", "C:\\H", "C:\\A\\Tessellane\\settings.db"},
        Case{{}, "C:\\H", "C:\\H\\AppData\\Roaming\\Tessellane\\settings.db"},
        Case{"A", "C:\\H", "C:\\H\\AppData\\Roaming\\Tessellane\\settings.db"}, Case{{}, "", ""}}) {
    const TreeFiles files =
        TreeFilesIn({[&](const char* name) {
                       return name == std::string("APPDATA") ? c.AppData : std::nullopt;
                     },
                     [&] { return c.Home; }});
    EXPECT_EQ(files.User, c.User);
    EXPECT_THAT(files.Machine, IsEmpty());
  }
}

}  // namespace
}  // namespace starfolds

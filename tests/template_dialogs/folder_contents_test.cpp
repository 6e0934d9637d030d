#include "template_dialogs/folder_contents.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "test_folder.h"

namespace starfolds {
namespace {

void MakeFile(const std::string& path) { std::ofstream(path) << "x"; }

TEST(TemplateFolders, ListWhatMatchesInOrderWithoutWhatIsHidden) {
  const TestFolder folder;
  for (const char* name : {"b.sfd", "A.SFD", "c.txt", ".hidden.sfd", "plain", "x.sfd.bak"}) {
    MakeFile(folder.Path(name));
  }
  for (const char* name : {"Sub", "a.sfd folder", ".git"}) {
    std::filesystem::create_directory(folder.Path(name));
  }
  std::filesystem::create_directory_symlink(folder.Path("Sub"), folder.Path("link"));
  std::filesystem::create_symlink(folder.Path("nowhere"), folder.Path("dangling.sfd"));
  mkfifo(folder.Path("pipe.sfd").c_str(), 0600);
  for (const char* name : {"\xff\xfe.sfd", "\xed\xa0\x80.sfd"})
    MakeFile(folder.Path(name));  // no text
  struct Case {
    const char* Patterns;
    QStringList Files;
  };
  for (const Case& each :
       {Case{"*.sfd", {"A.SFD", "b.sfd"}}, Case{"*.sfd; *.TXT", {"A.SFD", "b.sfd", "c.txt"}},
        Case{"*.*", {"A.SFD", "b.sfd", "c.txt", "plain", "x.sfd.bak"}}, Case{"", {}},
        Case{"[", {}}}) {
    const auto contents = ReadFolder(QString::fromStdString(folder.Path("")), each.Patterns);
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->Files, each.Files) << each.Patterns;
    EXPECT_EQ(contents->Folders, (QStringList{"a.sfd folder", "link", "Sub"}));
  }
  EXPECT_FALSE(ReadFolder(QString::fromStdString(folder.Path("b.sfd")), "*"));
  EXPECT_FALSE(ReadFolder(QString::fromStdString(folder.Path("nowhere")), "*"));
}

TEST(TemplateFolders, ANameCanBeWrittenWhereAFileMayStand) {
  const TestFolder folder;
  MakeFile(folder.Path("old.sfd"));
  std::filesystem::create_directory(folder.Path("sub.sfd"));
  mkfifo(folder.Path("pipe.sfd").c_str(), 0600);
  std::filesystem::create_symlink("loop.sfd", folder.Path("loop.sfd"));
  const std::vector<std::string> before = folder.Names();
  const QString base = QString::fromStdString(folder.Path(""));
  struct Case {
    QString Name;
    bool Can;
  };
  for (const Case& each :
       {Case{"old.sfd", true}, Case{"new.sfd", true}, Case{QString("\u00fc ' \" $(x).sfd"), true},
        Case{"sub.sfd", false}, Case{"missing/x.sfd", false}, Case{"old.sfd/x.sfd", false},
        Case{"pipe.sfd", false}, Case{"loop.sfd", false}, Case{QString(300, 'x'), false},
        Case{QString("a") + QChar::Null + "b.sfd", false},
        Case{QString(QChar(0xD800)) + ".sfd", false}}) {
    EXPECT_EQ(CanBeWritten(base + each.Name), each.Can) << each.Name.toStdString();
  }
  EXPECT_EQ(folder.Names(), before) << "the probe has left something";
  EXPECT_EQ(FileText(folder.Path("old.sfd")), "x");
}

TEST(TemplateFolders, TheInnermostRootHoldsAFolder) {
  const std::vector<FolderRoot> roots{{"", "/home/u"}, {"", "/"}, {"", "/media/stick"}};
  EXPECT_EQ(RootOf(roots, "/home/u/x"), 0);
  EXPECT_EQ(RootOf(roots, "/home/ulla"), 1);
  EXPECT_EQ(RootOf(roots, "/media/stick"), 2);
  EXPECT_EQ(WayTo("/home/u", "/home/u/a/b"), (QStringList{"/home/u", "/home/u/a", "/home/u/a/b"}));
  EXPECT_EQ(WayTo("/", "/a"), (QStringList{"/", "/a"}));
  EXPECT_EQ(WayTo("/elsewhere", "/a"), (QStringList{"/", "/a"}));
}

}  // namespace
}  // namespace starfolds

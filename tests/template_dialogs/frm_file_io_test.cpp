#include "template_dialogs/frm_file_io.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "settings/registry.h"
#include "test_folder.h"
#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

constexpr char kTypes[] = "Starfold Templates (*.sfd)|*.sfd|All Files (*.*)|*.*|";

/// The home folder is one of the test's own: "old.sfd", "b.txt", and "sub" with "inner.sfd".
class FrmFileIoTest : public DialogTest {
 protected:
  FrmFileIoTest() : formerHome_(qgetenv("HOME")) {
    std::filesystem::create_directory(Home.Path("sub"));
    for (const char* name : {"old.sfd", "b.txt", "sub/inner.sfd"}) {
      std::ofstream(Home.Path(name)) << "kept";
    }
    qputenv("HOME", QByteArray::fromStdString(Home.Path("")));
  }
  ~FrmFileIoTest() override { qputenv("HOME", formerHome_); }

  /// Shows the dialog, lets `act` use it, and dismisses it if it is still there.
  std::string Choose(bool open, const std::function<void()>& act, bool action = true) {
    const TemplateAction note = [this](const std::string& path, ProgressPicture* picture) {
      Done.push_back(path);
      EXPECT_TRUE(The<PictureBox>("picStatus").isVisible());
      DrawProgress(picture, 1, 2);
      return Fault;
    };
    FrmFileIo frmFileIo({Tree, HelpBook, Boxes, ProgramFolder, note, note});
    dialog_ = &frmFileIo;
    WhenShown<FrmFileIo>([&](FrmFileIo& shown) {
      act();
      if (shown.isVisible()) shown.reject();
    });
    return frmFileIo.ChooseTemplate(open, action, "A title", kTypes, "sfd");
  }

  /// Types a name and presses OK.
  std::string ChooseTyped(bool open, const QString& typed, bool action = true) {
    const auto act = [&] {
      Edit().setText(typed);
      Press(Edit(), Qt::Key_Return);
      if (!Fault) return;
      EXPECT_TRUE(Edit().isVisible());
      EXPECT_TRUE(The<PictureBox>("picStatus").isHidden());
    };
    return Choose(open, act, action);
  }

  QWidget& Window() override { return *dialog_; }
  QLineEdit& Edit() { return DialogTest::Edit("txtFile"); }
  QStringList Texts(const char* list) {
    QStringList texts;
    auto& widget = The<QListWidget>(list);
    for (int i = 0; i < widget.count(); ++i) texts.append(widget.item(i)->text());
    return texts;
  }
  std::string StoredFolder() { return RegistryReadText(Tree, sections::kTemplate, "Path_Dir"); }

  TestFolder Home;
  std::string ProgramFolder = "/nowhere";
  std::optional<std::string> Fault;
  std::vector<std::string> Done;

 private:
  FrmFileIo* dialog_ = nullptr;
  QByteArray formerHome_;
};

TEST_F(FrmFileIoTest, OpensAFileThatIsPointedAt) {
  EXPECT_EQ(Choose(true,
                   [&] {
                     EXPECT_EQ(Texts("filTemp"), QStringList{"old.sfd"});
                     EXPECT_FALSE(The<QComboBox>("cboFilter").isVisible());
                     The<QComboBox>("cboTypes").setCurrentIndex(1);
                     EXPECT_EQ(Texts("filTemp"), (QStringList{"b.txt", "old.sfd"}));
                     auto& folders = The<QListWidget>("dirTemp");
                     EXPECT_EQ(folders.currentRow(), 0);
                     folders.setCurrentRow(1);
                     emit folders.itemDoubleClicked(folders.currentItem());
                     EXPECT_EQ(Texts("dirTemp").back(), "sub");
                     auto& files = The<QListWidget>("filTemp");
                     files.setCurrentRow(0);
                     EXPECT_EQ(Edit().text(), "inner.sfd");
                     emit files.itemDoubleClicked(files.currentItem());
                   }),
            Home.Path("sub/inner.sfd"));
  EXPECT_EQ(Done, std::vector<std::string>{Home.Path("sub/inner.sfd")});
  EXPECT_EQ(StoredFolder(), Home.Path("sub"));
  EXPECT_EQ(RegistryReadText(Tree, sections::kTemplate, "Path_Drive") + "/", Home.Path(""));
  EXPECT_NE(RegistryReadText(Tree, sections::kTemplatePlace, "WindowSize"), "");
}

TEST_F(FrmFileIoTest, TypedNamesAreOpenedEnteredOrRefused) {
  constexpr char missing[] = "Please select an existing file.";
  struct Case {
    QString Typed;
    std::string Path, Box;
  };
  const QString whole = QString::fromStdString(Home.Path("sub/inner.sfd"));
  for (const Case& each :
       {Case{"old.sfd", Home.Path("old.sfd"), ""}, Case{" old.sfd\t", Home.Path("old.sfd"), ""},
        Case{"~/sub/inner.sfd", Home.Path("sub/inner.sfd"), ""},
        Case{whole, whole.toStdString(), ""}, Case{"   ", "", missing},
        Case{"none.sfd", "", missing}, Case{"sub", "", ""}, Case{"~/sub", "", ""},
        Case{"..", "", ""}}) {
    EXPECT_EQ(ChooseTyped(true, each.Typed), each.Path) << each.Typed.toStdString();
    EXPECT_EQ(LastBox(), each.Box) << each.Typed.toStdString();
    Tree = MemoryTree();
  }
}

TEST_F(FrmFileIoTest, NamesToSaveUnderGetTheExtensionOrAreRefused) {
  constexpr char blank[] = "Please enter a file name.";
  constexpr char wrong[] = "Please enter a valid path and file.";
  struct Case {
    QString Typed;
    std::string Path, Box;
  };
  std::filesystem::create_directory(Home.Path("folder.sfd"));
  for (const Case& each :
       {Case{"new", Home.Path("new.sfd"), ""}, Case{"a.b", Home.Path("a.b"), ""},
        Case{"old", Home.Path("old.sfd"), ""}, Case{"sub", Home.Path("sub.sfd"), ""},
        Case{"~/sub/x", Home.Path("sub/x.sfd"), ""}, Case{" ", "", blank},
        Case{"folder", "", wrong}, Case{"no/x", "", wrong}, Case{"x/", "", wrong},
        Case{QString(300, 'y'), "", wrong}, Case{"sub/", "", ""}, Case{"..", "", ""}}) {
    EXPECT_EQ(ChooseTyped(false, each.Typed), each.Path) << each.Typed.toStdString();
    EXPECT_EQ(LastBox(), each.Box) << each.Typed.toStdString();
    Tree = MemoryTree();
  }
  EXPECT_EQ(FileText(Home.Path("old.sfd")), "kept") << "the dialog itself writes nothing";
  EXPECT_EQ(Home.Names().size(), 5U);
}

TEST_F(FrmFileIoTest, AFaultIsToldAndTheDialogStays) {
  Fault = "No space left on device";
  for (const bool open : {true, false}) {
    EXPECT_EQ(ChooseTyped(open, "old.sfd"), "");
    const std::string text = LastBox();
    EXPECT_NE(text.find(Home.Path("old.sfd")), std::string::npos);
    EXPECT_TRUE(text.ends_with("\n\nNo space left on device"));
  }
  EXPECT_EQ(StoredFolder(), "");
}

TEST_F(FrmFileIoTest, BeginsWhereTheUserWasOrAtTheTemplates) {
  std::filesystem::create_directories(Home.Path("prog/templates"));
  std::ofstream(Home.Path("prog/templates/shipped.sfd")) << "x";
  ProgramFolder = Home.Path("prog");
  Choose(true, [&] { EXPECT_EQ(Texts("filTemp"), QStringList{"shipped.sfd"}); });
  Choose(false, [&] { EXPECT_EQ(Texts("filTemp"), QStringList{"old.sfd"}); });
  struct Case {
    std::string Stored;
    QString First;
  };
  for (const Case& each :
       {Case{Home.Path("sub"), "inner.sfd"}, Case{Home.Path("gone"), "shipped.sfd"},
        Case{"sub", "shipped.sfd"}, Case{std::string("\xff\0/", 3), "shipped.sfd"}}) {
    RegistryWrite(Tree, sections::kTemplate, "Path_Dir", each.Stored);
    Choose(true, [&] { EXPECT_EQ(Texts("filTemp"), QStringList{each.First}); });
  }
  RegistryWrite(Tree, sections::kTemplate, "Path_Dir", Home.Path("prog/templates"));
  Choose(false, [&] { EXPECT_EQ(Texts("filTemp"), QStringList{"old.sfd"}); });
}

TEST_F(FrmFileIoTest, AFolderThatCannotBeStoredIsRememberedByTheOneAbove) {
  const std::string deep = Home.Path("sub/" + std::string(120, 'd'));
  std::filesystem::create_directory(deep);
  std::ofstream(deep + "/x.sfd") << "x";
  EXPECT_EQ(ChooseTyped(true, QString::fromStdString(deep + "/x.sfd")), deep + "/x.sfd");
  EXPECT_EQ(StoredFolder(), Home.Path("sub"));
}

}  // namespace
}  // namespace starfolds

#include "info/help_window.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTextTable>

#include "info/help_viewer.h"
#include "settings/registry.h"
#include "toolkit.h"

namespace starfolds {
namespace {

class HelpWindowTest : public testing::Test {
 protected:
  static HelpViewer* Shown() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* viewer = qobject_cast<HelpViewer*>(window);
      if (viewer && viewer->isVisible()) return viewer;
    }
    return nullptr;
  }
  template <class Widget>
  static Widget& The(const char* name) {
    return Part<Widget>(*Shown(), name);
  }
  static std::string Caption() { return Shown()->windowTitle().toStdString(); }
  static void Follow(const char* link) { emit The<HelpPage>("txtTopic").anchorClicked(QUrl(link)); }
  static void Choose(const char* tool) { The<QAction>(tool).trigger(); }
  static void Search(const QString& words) {
    The<QLineEdit>("txtSearch").setText(words);
    Press(The<QLineEdit>("txtSearch"), Qt::Key_Return);
  }

  MemoryTree Tree;
  MemoryDesktop Desktop;
  ScriptedMessageBoxes Boxes;
  HelpWindow Book{Tree, Desktop, Boxes};
};

TEST_F(HelpWindowTest, OpensAtATopicAndGoesOnFromThere) {
  EXPECT_EQ(Shown(), nullptr);
  Book.ShowTopic(help::kMolecule);
  EXPECT_EQ(Caption(), "Starfolds Help - The molecule editor");
  EXPECT_FALSE(The<QAction>("cmdBack").isEnabled());

  const auto& scroll = *The<HelpPage>("txtTopic").verticalScrollBar();
  The<HelpPage>("txtTopic").verticalScrollBar()->setValue(300);
  Follow("glossary.md");
  EXPECT_EQ(Caption(), "Starfolds Help - Glossary");
  EXPECT_EQ(scroll.value(), 0);
  Choose("cmdBack");
  EXPECT_EQ(Caption(), "Starfolds Help - The molecule editor");
  EXPECT_EQ(scroll.value(), 300) << "the place that was read";
  Choose("cmdForward");
  EXPECT_EQ(Caption(), "Starfolds Help - Glossary");
  Choose("cmdBack");
  Follow("project.md");
  EXPECT_FALSE(The<QAction>("cmdForward").isEnabled());
  Follow("../../etc/passwd");  // no topic: nothing happens
  EXPECT_EQ(Caption(), "Starfolds Help - About this project");

  HelpViewer* const window = Shown();
  Book.ShowTopic(help::kLevels);
  EXPECT_EQ(Shown(), window) << "there is one window";
  EXPECT_FALSE(window->isModal());
  Book.Quit();
  EXPECT_EQ(Shown(), nullptr);
  Book.Quit();
}

TEST_F(HelpWindowTest, SearchLeadsToAMarkedPlace) {
  Book.ShowSearch();
  EXPECT_EQ(Shown()->focusWidget(), &The<QLineEdit>("txtSearch"));
  Search("water molecule");
  EXPECT_EQ(Caption(), "Starfolds Help - The molecule editor");
  EXPECT_FALSE(The<HelpPage>("txtTopic").extraSelections().isEmpty());

  Follow("glossary.md");
  EXPECT_TRUE(The<HelpPage>("txtTopic").extraSelections().isEmpty());
  Search("Chlorine");
  const HelpPage& page = The<HelpPage>("txtTopic");
  EXPECT_GT(page.verticalScrollBar()->value(), 0) << "it stands far down";
  EXPECT_TRUE(page.viewport()->rect().contains(page.cursorRect().topLeft()));

  Search("xyzzy");
  EXPECT_EQ(The<QListWidget>("lstFound").count(), 1) << "that nothing was found";
  EXPECT_EQ(Caption(), "Starfolds Help - User Defined: Molecular Structures");
  Book.ShowContents();
  EXPECT_EQ(Shown()->focusWidget(), &The<QTreeWidget>("treContents"));
}

TEST_F(HelpWindowTest, EscapeClosesAndThePlaceIsRemembered) {
  Book.ShowContents();
  Shown()->resize(700, 500);
  Activate(*Shown());
  Press(*Shown()->focusWidget(), Qt::Key_Escape);
  HelpWindow another(Tree, Desktop, Boxes);
  EXPECT_NE(RegistryReadText(Tree, sections::kHelpPlace, "WindowSize"), "");
  Book.Quit();
  another.ShowContents();
  QApplication::processEvents();
  EXPECT_EQ(Shown()->size(), QSize(700, 500));
}

TEST_F(HelpWindowTest, LinesStayShortAndPicturesAndTablesFit) {
  Book.ShowContents();
  Shown()->resize(1600, 700);
  HelpPage& page = The<HelpPage>("txtTopic");
  const int letter = QFontInfo(page.font()).pixelSize();
  QApplication::processEvents();
  EXPECT_LE(page.lineWrapColumnOrWidth(), 42 * letter + 1);
  Shown()->resize(980, 700);
  QApplication::processEvents();
  for (const HelpTopic& topic : HelpTopics()) {
    Follow(std::string(topic.File).c_str());
    EXPECT_LE(page.horizontalScrollBar()->maximum(), 0) << topic.File;
  }
  const QUrl file("pictures/dialog-starfold@2x.png");
  const auto picture =
      page.document()->resource(QTextDocument::ImageResource, file).value<QImage>();
  ASSERT_GT(picture.width(), 200);
  const QImage plain = picture.copy(picture.width() * 4 / 5, picture.height() * 3 / 4, 8, 8);
  EXPECT_TRUE(plain.allGray()) << "not dithered";
}

}  // namespace
}  // namespace starfolds

// Every dialog in German and in a language that is one third longer than English: all of its texts
// are translated, and none is cut off on a small screen.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTranslator>
#include <map>
#include <set>

#include "desktop/translation.h"
#include "info/frm_about.h"
#include "info/frm_system_diag.h"
#include "info/help_viewer.h"
#include "properties/frm_advanced.h"
#include "properties/frm_idle.h"
#include "properties/frm_welcome.h"
#include "properties/props_dialog.h"
#include "template_dialogs/frm_file_io.h"
#include "widgets/elided_label.h"
#include "widgets/qt_message_boxes.h"

namespace starfolds {
namespace {

/// A language, and whether it marks each of its texts with brackets.
struct Language {
  const char* File;
  bool Marked;
};
constexpr Language kLanguages[] = {{":/translations/starfolds_de.qm", false},
                                   {STARFOLDS_LONG_LANGUAGE, true}};

/// What is left of screens of 1024 x 768, and of 1920 x 1080 at 150 %, by frames and panels.
constexpr QSize kScreens[] = {{1000, 690}, {1260, 650}};

/// Names of bodies, fonts and files, which are not translated, and a list that is one text.
const std::set<QString> kNames = {
    "cboFont",      "cboUniProfile", "cboTourStarfolds", "cboCompMajor", "cboTheme",
    "cboFoldTheme", "cboUniTheme",   "cboFoldPlane",     "lblSystem",    "lblBody",
    "txtTopic",     "drvTemp",       "lblFoldPlace",     "cboTypes"};

class LanguagesTest : public FrmPropsTest, public testing::WithParamInterface<Language> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(InstallTranslation(GetParam().File)) << GetParam().File;
    StoreFactory();
  }
  void TearDown() override {
    for (QTranslator* each : qApp->findChildren<QTranslator*>()) delete each;
  }

  /// Checks what a window shows at present, on all screens.
  void Expect(QWidget& window, const std::string& where) {
    for (const QSize& screen : kScreens) {
      const QSize least = window.minimumSizeHint();
      EXPECT_TRUE(least.width() <= screen.width() && least.height() <= screen.height())
          << where << ": " << least.width() << " x " << least.height();
      const bool fillsScreen = qobject_cast<QMainWindow*>(&window) != nullptr;
      window.resize(fillsScreen ? screen : window.sizeHint().boundedTo(screen));
      QApplication::processEvents();
      std::map<QChar, std::string> keys;
      for (QWidget* part : window.findChildren<QWidget*>()) {
        if (!part->isVisible() || part->window() != &window) continue;
        const std::string at = where + ", " + part->objectName().toStdString();
        ExpectTexts(*part, at);
        ExpectRoom(*part, at);
        ExpectOwnKey(*part, at, keys);
      }
    }
  }

 private:
  static QStringList TextsOf(const QWidget& part) {
    QStringList texts{part.toolTip(), part.accessibleDescription()};
    if (const auto* label = qobject_cast<const QLabel*>(&part)) texts += label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&part)) texts += button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&part)) texts += frame->title();
    if (const auto* list = qobject_cast<const QComboBox*>(&part)) {
      for (int i = 0; i < list->count(); ++i) texts += list->itemText(i);
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&part)) {
      for (int i = 0; i < tabs->count(); ++i) texts += tabs->tabText(i);
    }
    if (const auto* bar = qobject_cast<const QMenuBar*>(&part)) {
      for (const QAction* menu : bar->actions()) {
        texts += menu->text();
        for (const QAction* entry : menu->menu()->actions()) texts += entry->text();
      }
    }
    return texts;
  }

  static void ExpectTexts(const QWidget& part, const std::string& at) {
    if (!GetParam().Marked || kNames.contains(part.objectName())) return;
    static const QRegularExpression word("[A-Za-z]{2,}");
    for (const QString& text : TextsOf(part)) {
      EXPECT_TRUE(!text.contains(word) || text.contains('[') || text.startsWith("Starfolds"))
          << at << " is not translated: " << text.toStdString();
    }
  }

  static void ExpectRoom(const QWidget& part, const std::string& at) {
    int needed = 0;
    const auto* label = qobject_cast<const QLabel*>(&part);
    if (label && label->wordWrap()) {
      EXPECT_GE(part.height(), label->heightForWidth(part.width()) - 1) << at << " is cut off";
    } else if (label && !dynamic_cast<const ElidedLabel*>(label)) {
      needed = label->sizeHint().width();
    } else if (qobject_cast<const QAbstractButton*>(&part)) {
      needed = part.sizeHint().width();
    } else if (const auto* frame = qobject_cast<const QGroupBox*>(&part)) {
      needed = frame->fontMetrics().horizontalAdvance(frame->title());
    } else if (const auto* area = qobject_cast<const QScrollArea*>(&part);
               area && area->objectName().startsWith("scr")) {  // those of editors may scroll
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << at << " is wider than the window";
    }
    EXPECT_GE(part.width(), needed)
        << at << " is cut off: " << TextsOf(part).join('|').toStdString();
  }

  /// The key of a mnemonic leads to one control only.
  static void ExpectOwnKey(const QWidget& part, const std::string& at,
                           std::map<QChar, std::string>& keys) {
    static const QRegularExpression mnemonic("(?<!&)&([^&\\s])");
    const auto* label = qobject_cast<const QLabel*>(&part);
    if (!part.isEnabled() || (label && !label->buddy())) return;
    if (qobject_cast<const QComboBox*>(&part)) return;
    for (const QString& text : TextsOf(part)) {
      const QRegularExpressionMatch found = mnemonic.match(text);
      if (!found.hasMatch() || qobject_cast<const QMenuBar*>(&part)) continue;
      const auto [same, isNew] = keys.insert({found.captured(1).toLower()[0], at});
      EXPECT_TRUE(isNew || same->second == at)
          << at << " and " << same->second << " have the same key: " << text.toStdString();
    }
  }
};

INSTANTIATE_TEST_SUITE_P(All, LanguagesTest, testing::ValuesIn(kLanguages));

TEST_P(LanguagesTest, ThePropertiesFit) {
  FrmProps& dialog = Open();
  EXPECT_EQ(dialog.windowTitle(), "Starfold Properties") << "other programs search for it";
  The<BodyList>("lstUniStarfold").setCurrentRow(6);
  for (int page = 0; page < kUniversePageCount; ++page) {
    List("cboUniExtras").setCurrentIndex(page);
    Expect(dialog, "universe page " + std::to_string(page));
  }
  Click("cmdFoldProps");
  for (int style = 0; style < kStyleCount; ++style) {
    List("cboFoldStyle").setCurrentIndex(style);
    Expect(dialog, "style " + std::to_string(style));
  }
  for (int page = 1; page < kStarfoldPageCount; ++page) {
    List("cboFoldExtras").setCurrentIndex(page);
    Expect(dialog, "starfold page " + std::to_string(page));
  }
}

TEST_P(LanguagesTest, TheOtherDialogsFit) {
  struct Opened {
    int Style;
    const char* Button;
  };
  Open();
  OpenType(0);
  for (const Opened& opened :
       {Opened{0, "cmdFoldLevels"}, {8, "cmdIFS_Chem"}, {9, "cmdIFS_Chem"}}) {
    List("cboFoldStyle").setCurrentIndex(opened.Style);
    WhenShown<QDialog>([&](QDialog& editor) {
      Expect(editor, editor.objectName().toStdString());
      editor.reject();
    });
    Click(opened.Button);
  }
  WhenShown<FrmFileIo>([&](FrmFileIo& files) {
    Expect(files, "frmFileIO");
    files.reject();
  });
  Choose("mnuOpen");
  FrmAdvanced advanced(Tree, HelpBook);
  FrmSystemDiag diagnostics({Tree, Desktop, Boxes, HelpBook, {"1", "settings.db"}, {}});
  FrmWelcome welcome(MakeWelcomePage(true), {}, HelpBook);
  FrmIdle idle(Tree, HelpBook, "/nonexistent");
  HelpViewer help(Tree, {});
  for (QWidget* window :
       std::initializer_list<QWidget*>{&advanced, &diagnostics, &welcome, &idle, &help}) {
    window->show();
    Expect(*window, window->objectName().toStdString());
  }
  FrmAbout about({*Process, HelpBook, "1", [] { return 1U; }});
  Events.Plan[Events.Pumps + 5] = [&] {  // its run ends when it closes
    Expect(about, "frmAbout");
    about.accept();
  };
  about.exec();
}

TEST_P(LanguagesTest, TheMessageBoxesFit) {
  for (const BoxStyle style : {BoxStyle::YesNoCancelQuestion, BoxStyle::UnacceptedChanges,
                               BoxStyle::SaveFailed, BoxStyle::Information}) {
    WhenShown<QMessageBox>([&](QMessageBox& box) {
      Expect(box, "box " + std::to_string(static_cast<int>(style)));
      box.reject();
    });
    QtMessageBoxes().Show(TemplateFaultText(true, "/" + std::string(200, 'x'), "Not a plain file"),
                          style, "Starfolds");
  }
}

}  // namespace
}  // namespace starfolds

#include "properties/frm_welcome.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTextDocument>
#include <string>

#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

class FrmWelcomeTest : public testing::Test {
 protected:
  static WelcomePage NewUser() { return MakeWelcomePage(false); }
  static WelcomePage Upgrade() { return MakeWelcomePage(true); }

  static QPushButton& Button(FrmWelcome& dialog, const char* name) {
    return Part<QPushButton>(dialog, name);
  }
  /// The page as it is read, without its markup.
  static std::string Read(FrmWelcome& dialog) {
    QTextDocument page;
    page.setHtml(dialog.findChild<QLabel*>("lblPage")->text());
    return page.toPlainText().toStdString();
  }

  bool Run(const WelcomePage& page, const std::function<void(FrmWelcome&)>& act) {
    WhenShown<FrmWelcome>(act);
    return RunWelcome(
        nullptr, page,
        [this](ProgressPicture* picture) {
          ++Copies;
          if (OnCopy) OnCopy(*picture);
        },
        HelpBook);
  }

  int Copies = 0;
  std::function<void(ProgressPicture&)> OnCopy;
  MemoryHelp HelpBook;
};

TEST_F(FrmWelcomeTest, GreetsANewUserWithTheWholeText) {
  const WelcomePage page = NewUser();
  EXPECT_FALSE(Run(page, [&](FrmWelcome& dialog) {
    const std::string text = Read(dialog);
    std::size_t begin = 0;
    while (begin < page.Text.size()) {  // line by line, with its double blanks
      const std::size_t end = std::min(page.Text.find('\n', begin), page.Text.size());
      EXPECT_NE(text.find(page.Text.substr(begin, end - begin)), std::string::npos) << begin;
      begin = end + 1;
    }
    EXPECT_EQ(dialog.findChild<QLabel*>("lblCaption")->text(), "Welcome to Starfolds 4.1a.");
    EXPECT_FALSE(Button(dialog, "cmdReset").isVisible());
    EXPECT_FALSE(dialog.findChild<PictureBox*>("picStatus")->isVisible());
    EXPECT_EQ(Button(dialog, "cmdDismiss").text(), "OK");
    Button(dialog, "cmdDismiss").click();
  }));
  EXPECT_EQ(Copies, 0);
}

TEST_F(FrmWelcomeTest, ResetsOnlyAfterTheSafetyCopy) {
  FrmWelcome* shown = nullptr;
  OnCopy = [&](ProgressPicture& picture) {
    EXPECT_FALSE(shown->ResetRequested());
    EXPECT_FALSE(Button(*shown, "cmdReset").isEnabled());
    EXPECT_TRUE(shown->findChild<PictureBox*>("picStatus")->isVisible());
    DrawProgress(&picture, 33, 66);
    const QImage bar = shown->findChild<PictureBox*>("picStatus")->grab().toImage();
    EXPECT_EQ(bar.pixel(bar.width() / 4, 2), qRgb(0, 255, 255));
    EXPECT_EQ(bar.pixel(bar.width() * 3 / 4, 2), qRgb(0, 0, 0));
    shown->close();  // somebody is impatient
    EXPECT_TRUE(shown->isVisible());
  };
  EXPECT_TRUE(Run(Upgrade(), [&](FrmWelcome& dialog) {
    shown = &dialog;
    EXPECT_EQ(Button(dialog, "cmdDismiss").text(), "Close");
    EXPECT_FALSE(dialog.findChild<PictureBox*>("picStatus")->isVisible());
    Button(dialog, "cmdReset").click();
  }));
  EXPECT_EQ(Copies, 1);
}

TEST_F(FrmWelcomeTest, LeavesTheSettingsAloneWhenItIsDismissed) {
  for (const int key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_FALSE(Run(Upgrade(), [key](FrmWelcome& dialog) { Press(dialog, key); }));
  }
  EXPECT_EQ(Copies, 0);
}

}  // namespace
}  // namespace starfolds

#include "properties/frm_welcome.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

class FrmWelcomeTest : public testing::Test {
 protected:
  static QPushButton& Button(FrmWelcome& dialog, const char* name) {
    return Part<QPushButton>(dialog, name);
  }

  bool Run(bool isUpgrade, const std::function<void(FrmWelcome&)>& act) {
    WhenShown<FrmWelcome>(act);
    return RunWelcome(
        nullptr, MakeWelcomePage(isUpgrade),
        [this](ProgressPicture*) {
          ++Copies;
          if (OnCopy) OnCopy();
        },
        HelpBook);
  }

  int Copies = 0;
  std::function<void()> OnCopy;
  MemoryHelp HelpBook;
};

TEST_F(FrmWelcomeTest, ResetsOnlyAfterTheSafetyCopy) {
  FrmWelcome* shown = nullptr;
  OnCopy = [&] {
    EXPECT_FALSE(shown->ResetRequested());
    EXPECT_FALSE(Button(*shown, "cmdReset").isEnabled());
    shown->close();  // somebody is impatient
    EXPECT_TRUE(shown->isVisible());
  };
  EXPECT_TRUE(Run(true, [&](FrmWelcome& dialog) {
    shown = &dialog;
    Button(dialog, "cmdReset").click();
  }));
  EXPECT_EQ(Copies, 1);
}

TEST_F(FrmWelcomeTest, LeavesTheSettingsAloneWhenItIsDismissed) {
  for (const int key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_FALSE(Run(true, [key](FrmWelcome& dialog) { Press(dialog, key); }));
  }
  EXPECT_EQ(Copies, 0);
}

}  // namespace
}  // namespace starfolds

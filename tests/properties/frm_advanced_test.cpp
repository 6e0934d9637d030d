#include "properties/frm_advanced.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <map>

#include "settings/registry.h"
#include "settings/stored_records.h"
#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

/// A value of every setting of the dialog that is not its default.
const std::map<std::string, std::string> kOther = {
    {"LockMessage", "Späti"}, {"Adv_TimeDelay", "999"}, {"FocalLength", "2.5"},
    {"Adv_FontSize", "80"},   {"Adv_FontHueV", "0"},    {"Adv_Randomize", "1"},
    {"Adv_RandomMag", "100"}, {"Adv_RandomExp", "1"},   {"Adv_WinResize", "1"},
    {"Adv_MouseMove", "1"},   {"Adv_DispBackG", "1"},   {"Adv_FontDrift", "1"},
};

class FrmAdvancedTest : public DialogTest {
 protected:
  FrmAdvanced& Open() {
    Dialog = std::make_unique<FrmAdvanced>(Tree, HelpBook);
    Dialog->ShowInPlace();
    return *Dialog;
  }
  QWidget& Window() override { return *Dialog; }
  std::string Stored(std::string_view name) {
    return RegistryReadText(Tree, sections::kAdvanced, name, "(none)");
  }
  void Store(const std::map<std::string, std::string>& values) {
    for (const auto& [name, text] : values) RegistryWrite(Tree, sections::kAdvanced, name, text);
  }

  std::unique_ptr<FrmAdvanced> Dialog;
};

TEST_F(FrmAdvancedTest, WhatIsStoredIsShownAndStoredAgain) {
  Store(kOther);
  Open();
  EXPECT_EQ(Edit("txtMessage").text(), "Späti");
  EXPECT_EQ(Edit("txtAdv_0").text(), "999");
  EXPECT_EQ(Edit("txtAdv_1").text(), "2.5");
  EXPECT_EQ(Edit("txtAdv_2").text(), "80");
  EXPECT_EQ(Edit("txtAdv_3").text(), "0");
  EXPECT_EQ(Edit("txtAdv_9").text(), "100");
  EXPECT_EQ(Edit("txtAdv_10").text(), "1");
  for (const char* check : {"chkRandom", "chkResize", "chkMouseM", "chkBackGr", "chkDrift"}) {
    EXPECT_TRUE(The<QCheckBox>(check).isChecked()) << check;
  }
  auto& fonts = The<QComboBox>("cboFont");
  fonts.setCurrentIndex(fonts.count() - 1);
  const std::string font = fonts.currentText().toStdString();
  Tree = MemoryTree();
  Click("cmdHelp");
  EXPECT_EQ(HelpBook.Topics, std::vector<Integer>{help::kAdvanced});
  Click("cmdOK");
  for (const auto& [name, text] : kOther) EXPECT_EQ(Stored(name), text) << name;
  EXPECT_EQ(Stored("Adv_FontName"), font);
  EXPECT_NE(RegistryReadText(Tree, sections::kAdvancedPlace, "WindowSize"), "");
}

TEST_F(FrmAdvancedTest, DefaultsStandWhereNothingIsStoredAndChangeOnlyTheControls) {
  Open();
  Click("cmdOK");
  for (const auto& [name, other] : kOther) {
    EXPECT_EQ(Stored(name), DefaultText(*FindField(AdvancedFields(), name))) << name;
  }
  const MemoryTree fresh = Tree;
  Store(kOther);
  const MemoryTree before = Tree;
  Open();
  Click("cmdDefaults");
  EXPECT_EQ(Edit("txtMessage").text(), "Späti");
  EXPECT_EQ(Edit("txtAdv_1").text(), "1.0");
  EXPECT_TRUE(Tree == before);
  Click("cmdDismiss");
  EXPECT_TRUE(Tree == before) << "the dialog stands where it stood";
  Open();
  Click("cmdDefaults");
  Edit("txtMessage").clear();
  Click("cmdOK");
  EXPECT_TRUE(Tree == fresh);
}

TEST_F(FrmAdvancedTest, NumbersAreClamped) {
  struct Case {
    const char *Box, *Typed, *Held;
  };
  for (const auto& [box, typed, held] :
       {Case{"txtAdv_1", "20", "10"}, Case{"txtAdv_1", "", "0.01"}, Case{"txtAdv_0", "", "0"},
        Case{"txtAdv_2", "9", "10"}, Case{"txtAdv_3", "360", "359"}, Case{"txtAdv_9", "0", "1"},
        Case{"txtAdv_10", "101", "100"}}) {
    Open();
    Edit(box).setText(typed);
    Leave(*Edit(box).parentWidget());
    EXPECT_STREQ(qPrintable(Edit(box).text()), held) << box;
    Edit(box).setFocus();
    Edit(box).setText(typed);
    Click("cmdOK");  // by the key that leaves no box
    EXPECT_FALSE(Dialog->isVisible());
    Open();
    EXPECT_STREQ(qPrintable(Edit(box).text()), held) << box;
  }
}

TEST_F(FrmAdvancedTest, StoresAllOrNothing) {
  Store(kOther);
  Open();
  Click("cmdDefaults");
  const MemoryTree before = Tree;
  Tree.WritesUntilFull = 5;
  Click("cmdOK");
  EXPECT_TRUE(Tree == before);
}

}  // namespace
}  // namespace starfolds

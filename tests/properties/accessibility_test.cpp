// What assistive technologies, such as screen readers, are told of the controls of all dialogs.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QShortcut>
#include <map>
#include <set>

#include "properties/frm_advanced.h"
#include "properties/frm_idle.h"
#include "properties/props_dialog.h"
#include "widgets/setting_guide.h"

namespace starfolds {
namespace {

const std::set<QAccessible::Role> kControls = {QAccessible::SpinBox,      QAccessible::ComboBox,
                                               QAccessible::CheckBox,     QAccessible::Button,
                                               QAccessible::EditableText, QAccessible::List};

class AccessibilityTest : public FrmPropsTest {
 protected:
  /// Every visible control has a name that no other one has, and every number a value in its range.
  void ExpectExplained(QWidget& window, const std::string& where) {
    std::map<QString, QString> named;
    Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& control) {
      const QString object = control.object()->objectName();
      const std::string at = where + " " + object.toStdString();
      const QString name = NameOf(control);
      EXPECT_FALSE(name.isEmpty()) << at;
      const auto [same, isNew] = named.insert({name, object});
      EXPECT_TRUE(isNew) << at << " and " << same->second.toStdString() << ": "
                         << name.toStdString();
      if (control.role() == QAccessible::SpinBox) ExpectNumber(control, at);
    });
    EXPECT_FALSE(named.empty()) << where;
  }

 private:
  template <class Visit>
  static void Walk(QAccessibleInterface* node, const Visit& visit) {
    if (node == nullptr || node->state().invisible) return;
    if (kControls.contains(node->role())) {
      visit(*node);
      return;  // what is inside is part of the control
    }
    for (int i = 0; i < node->childCount(); ++i) Walk(node->child(i), visit);
  }

  /// Qt tells the selected entry as the name of a list of choices, which is no name.
  static QString NameOf(QAccessibleInterface& control) {
    const auto* const widget = qobject_cast<QWidget*>(control.object());
    return control.role() == QAccessible::ComboBox ? widget->accessibleName()
                                                   : control.text(QAccessible::Name);
  }

  static void ExpectNumber(QAccessibleInterface& control, const std::string& at) {
    QAccessibleValueInterface* const number = control.valueInterface();
    ASSERT_NE(number, nullptr) << at;
    const auto* const box = qobject_cast<NumberBox*>(control.object());
    EXPECT_LT(number->minimumValue().toDouble(), number->maximumValue().toDouble()) << at;
    if (!box->Text().empty()) {
      EXPECT_EQ(number->currentValue().toDouble(), LenientNumber(box->Text())) << at;
      EXPECT_LE(number->minimumValue().toDouble(), number->currentValue().toDouble()) << at;
      EXPECT_GE(number->maximumValue().toDouble(), number->currentValue().toDouble()) << at;
    }
  }
};

TEST_F(AccessibilityTest, EveryControlOfTheUniverseHasANameAValueAndARange) {
  StoreFactory();
  Open();
  The<BodyList>("lstUniStarfold").setCurrentRow(2);
  The<BodyList>("lstCompStarfold").setCurrentRow(2);
  List("cboPropCopyList").setCurrentIndex(5);
  for (int page = 0; page < kUniversePageCount; ++page) {
    List("cboUniExtras").setCurrentIndex(page);
    ExpectExplained(*Dialog, "page " + std::to_string(page));
  }
  FrmAdvanced advanced(Tree, HelpBook);
  advanced.ShowInPlace();
  ExpectExplained(advanced, "advanced settings");
  FrmIdle idle(Tree, HelpBook, "");
  idle.ShowInPlace();
  ExpectExplained(idle, "when idle");
}

TEST_F(AccessibilityTest, EveryControlOfAStarfoldHasThemInEveryStyle) {
  StoreFactory();
  for (int style = 0; style < kStyleCount; ++style) {
    Open();
    OpenType(3);
    List("cboFoldStyle").setCurrentIndex(style);
    for (int page = 0; page < kStarfoldPageCount; ++page) {
      List("cboFoldExtras").setCurrentIndex(page);
      ExpectExplained(*Dialog, "style " + std::to_string(style) + ", page " + std::to_string(page));
    }
    const char* button = style == 0 ? "cmdFoldLevels" : style >= 8 ? "cmdIFS_Chem" : nullptr;
    if (!button) continue;
    WhenShown<BodyEditor>([&](BodyEditor& editor) {
      ExpectExplained(editor, "editor of style " + std::to_string(style));
      editor.reject();
    });
    Click(button);
  }
}

TEST_F(AccessibilityTest, AControlTellsItsSettingOfTheStyleAndGoesBackToItsDefault) {
  StoreFactory();
  Open();
  OpenType(3);
  List("cboFoldStyle").setCurrentIndex(static_cast<int>(FoldStyle::Nebula));
  QWidget& box = *Edit("txtStarfold_3").parentWidget();  // the control points of a nebula
  EXPECT_EQ(box.accessibleName(), "C-Points");
  SettingGuide* guide = nullptr;
  for (QObject* child : box.children()) {
    if (auto* found = dynamic_cast<SettingGuide*>(child)) guide = found;
  }
  ASSERT_NE(guide, nullptr);
  EXPECT_EQ(guide->Tip(), "About Starfold_CP_Points.\nRange: 1 to 20. Default: 8.");
  Enter("txtStarfold_3", "17");
  guide->ResetToDefault();
  EXPECT_EQ(Edit("txtStarfold_3").text(), "8");
  box.setFocus();
  emit Part<QShortcut>(*Dialog, "helpHere").activated();
  EXPECT_EQ(HelpBook.Settings, std::vector<std::string>{"Starfold_CP_Points"});
}

}  // namespace
}  // namespace starfolds

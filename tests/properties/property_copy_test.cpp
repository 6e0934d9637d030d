// Copying a property into all profiles.
#include "properties/property_copy.h"

#include <gtest/gtest.h>

#include <string>

#include "settings/fields.h"
#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

constexpr Single kFormer = 3;  // of all settings; no entry copies it

class PropertyCopyTest : public EditorTest {
 protected:
  /// Fifty profiles of all styles, which hold one number everywhere else.
  PropertyCopyTest() {
    for (int i = 0; i < kProfileCount; ++i) {
      StarfoldProfile& profile = Process->Profiles[i];
      for (const auto& field : ProfileFields()) SetFieldNumber(profile, field, kFormer);
      profile.Starfold_FoldStyle = static_cast<Integer>(i % kStyleCount);
    }
    QObject::connect(&Copy, &PropertyCopy::Copied, [this] { ++Copies; });
  }

  /// Enters the highest value that the control takes, and returns it.
  std::string EnterHighest() {
    if (!Choice.isHidden()) {
      Choice.setCurrentIndex(Choice.count() - 1);
      return std::to_string(Choice.count() - 1);
    }
    if (Box.isHidden()) {
      Closed.setChecked(true);
      return "1";
    }
    Box.SetText("99999999");
    Leave(Box);
    return Box.Text();
  }

  /// What differs from these profiles, as "STYLE NAME=VALUE" of the first profile of each style.
  std::string Changes(const ProfileArray& former) const {
    std::string changes;
    for (int i = 0; i < kProfileCount; ++i) {
      for (const auto& field : ProfileFields()) {
        const std::string text = FieldText(Process->Profiles[i], field);
        if (text == FieldText(former[i], field)) continue;
        EXPECT_EQ(text, FieldText(Process->Profiles[i % kStyleCount], field)) << i;
        if (i >= kStyleCount) continue;
        changes += std::to_string(i) + ' ' + std::string(field.Name) + '=' + text + '\n';
      }
    }
    return changes;
  }

  QWidget& Window() override { return Copy; }
  void PressCopy() { Click("cmdPropCopy"); }

  int Copies = 0;
  PropertyCopy Copy{Model};
  QComboBox& Properties = Part<QComboBox>(Copy, "cboPropCopyList");
  QLabel& Label = Part<QLabel>(Copy, "lblPropCopy");
  NumberBox& Box = Part<NumberBox>(Copy, "spnPropCopy");
  QComboBox& Choice = Part<QComboBox>(Copy, "cboPropCopy");
  QCheckBox& Closed = Part<QCheckBox>(Copy, "chkPropCopy");
};

/// Pinned: the setting and the styles that each entry changes, and the highest value of its box.
TEST_F(PropertyCopyTest, EveryEntryChangesItsSettingOnly) {
  std::string all;
  const ProfileArray former = Process->Profiles;
  for (int i = 0; i < Properties.count(); ++i) {
    Properties.setCurrentIndex(i);
    SCOPED_TRACE(Properties.currentText().toStdString());
    const std::string value = EnterHighest();
    if (!Box.isHidden()) {
      const QString highest = Label.text().section(" - ", 1).section(')', 0, 0);
      EXPECT_EQ(QString::fromStdString(value).toDouble(), highest.toDouble())
          << "as the label says";
    }
    Copies = 0;
    PressCopy();
    const std::string changes = Changes(former);
    EXPECT_EQ(Copies, changes.empty() ? 0 : 1);
    all += Properties.currentText().toStdString() + '\n' + changes;
    Process->Profiles = former;
  }
  EXPECT_EQ(HashOf(QString::fromStdString(all)), "37214f391a7116efe2c622c8cfb287f6") << all;
}

/// The mnemonic of the button leaves no box.
TEST_F(PropertyCopyTest, TheButtonClampsTheNumberAndUpdatesTheColours) {
  Properties.setCurrentIndex(0);
  Box.SetText("0");
  PressCopy();
  const Colour dark = Process->Colours.Profile[7].HueTable[0];
  Box.SetText("101");
  PressCopy();
  EXPECT_EQ(Process->Profiles[0].Starfold_HueRed, 100);
  EXPECT_EQ(Box.Text(), "100");
  EXPECT_GT(Process->Colours.Profile[7].HueTable[0] & 0xFFU, dark & 0xFFU);
}

}  // namespace
}  // namespace starfolds

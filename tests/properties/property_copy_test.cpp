// Copying a property into all profiles.
#include "properties/property_copy.h"

#include <gtest/gtest.h>

#include <set>

#include "settings/fields.h"
#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

/// The entries that change another setting than the one of their name, or not in all styles.
struct SpecialEntry {
  std::string Entry;
  std::string Target;   // the setting that changes; empty: none
  std::string Skipped;  // digits of the styles that are left alone
};
const SpecialEntry kSpecial[] = {
    {"Starfold Radius", "Starfold_Radius", "7"},
    {"Starfold Radial Arms", "Starfold_RadSegs", "123"},
    {"Starfold Radial Arm Fill %", "Starfold_RadFill", "123"},
    {"Starfold Radial Bands", "Starfold_RadBands", "127"},
    {"Starfold Radial Band Fill %", "Starfold_RadBFill", "7"},
    {"Starfold Radius Exponent", "Starfold_RadiusExp", "47"},
    {"Starfold Height Exponent", "Starfold_HeightExp", "4"},
    {"Comet Stars", "", ""},
    {"Comet Orbital Speed", "", ""},
    {"Nebula Control Point Steps", "", ""},
    {"Nebula Bias Points", "", ""},
    {"Nebula Bias Exponent", "", ""},
    {"Nebula Bias Travel Speed", "", ""},
    {"Nebula Control Points Closed", "", ""},
    {"Nebula Control Points", "Starfold_CP_Close", "012356789"},
};

SpecialEntry Expected(const std::string& entry) {
  for (const SpecialEntry& row : kSpecial) {
    if (row.Entry == entry) return row;
  }
  for (const auto& field : ProfileFields()) {
    if (field.Label == entry) return {entry, std::string(field.Name), ""};
  }
  return {entry, "", ""};
}

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

  /// Expects that each profile has its former settings, but for `value` where the row says so.
  void ExpectCopied(const SpecialEntry& row, const std::string& value, ProfileArray former) {
    for (int i = 0; i < kProfileCount; ++i) {
      const auto style = static_cast<char>('0' + former[i].Starfold_FoldStyle);
      if (!row.Target.empty() && row.Skipped.find(style) == std::string::npos) {
        SetFieldText(former[i], *FindField(ProfileFields(), row.Target), value);
      }
      for (const auto& field : ProfileFields()) {
        EXPECT_EQ(FieldText(Process->Profiles[i], field), FieldText(former[i], field))
            << i << " " << field.Name;
      }
    }
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

TEST_F(PropertyCopyTest, EveryEntryChangesItsSettingOnly) {
  std::set<std::string> entries;
  for (int i = 0; i < Properties.count(); ++i) {
    Properties.setCurrentIndex(i);
    const SpecialEntry row = Expected(Properties.currentText().toStdString());
    SCOPED_TRACE(row.Entry);
    EXPECT_TRUE(entries.insert(row.Entry).second);
    const ProfileArray former = Process->Profiles;
    const std::string value = EnterHighest();
    if (!Box.isHidden()) {
      const QString highest = Label.text().section(" - ", 1).section(')', 0, 0);
      EXPECT_EQ(QString::fromStdString(value).toDouble(), highest.toDouble())
          << "as the label says";
    }
    Copies = 0;
    PressCopy();
    ExpectCopied(row, value, former);
    EXPECT_EQ(Copies, row.Target.empty() ? 0 : 1);
    Process->Profiles = former;
  }
}

TEST_F(PropertyCopyTest, WithoutASelectionOrAValueNothingIsCopied) {
  Copy.SetupPropCopyValue(68);  // behind the last one
  EXPECT_TRUE(Box.isHidden() && Choice.isHidden() && Closed.isHidden());
  Properties.setCurrentIndex(-1);
  PressCopy();
  EXPECT_EQ(LastBox(), "Please select a Property to copy.");
  Properties.setCurrentIndex(0);
  Box.SetText(" ");
  PressCopy();
  EXPECT_EQ(LastBox(), "Please enter a Property value.");
  Properties.setCurrentIndex(12);
  Choice.setCurrentIndex(-1);
  PressCopy();
  EXPECT_EQ(LastBox(), "Please select a Property value.");
  EXPECT_EQ(Copies, 0);
}

/// The mnemonic of the button leaves no box.
TEST_F(PropertyCopyTest, TheButtonHoldsTheNumberAndColoursFollow) {
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

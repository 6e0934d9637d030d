// Copying a property into all profiles, against a table of its own.
#include "properties/property_copy.h"

#include <gtest/gtest.h>

#include <set>

#include "widgets/dialog_test.h"
#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

/// What is expected of an entry. Without a range and choices it has a check box.
struct ExpectedRow {
  std::string Entry;
  std::string Range;    // of the number
  int Choices;          // in the list
  std::string Target;   // the setting that changes; empty: none
  std::string Skipped;  // digits of the styles that are left alone
};

/// The entries that are more, less or something else than a number for the setting of their name.
const ExpectedRow kSpecial[] = {
    {"Starfold Radius", "1 - 30000", 0, "Starfold_Radius", "7"},
    {"Starfold Radial Arms", "1 - 99", 0, "Starfold_RadSegs", "123"},
    {"Starfold Radial Arm Fill %", "0 - 100", 0, "Starfold_RadFill", "123"},
    {"Starfold Radial Bands", "1 - 99", 0, "Starfold_RadBands", "127"},
    {"Starfold Radial Band Fill %", "0 - 100", 0, "Starfold_RadBFill", "7"},
    {"Starfold Style", "", 10, "Starfold_FoldStyle", ""},
    {"Starfold Axial Plane of Rotation", "", 2, "Starfold_AxisPlane", ""},
    {"Starfold Shape Profile", "", 7, "Starfold_Profile", ""},
    {"Starfold Radius Exponent", "0 - 99.9", 0, "Starfold_RadiusExp", "47"},
    {"Starfold Height Exponent", "0 - 99.9", 0, "Starfold_HeightExp", "4"},
    {"Starfold Angular Tilt", "0 - 359", 0, "Starfold_AngleTilt", ""},
    {"Starfold Angular Tilt Increment", "0 - 360.0", 0, "Starfold_AngleTInc", ""},
    {"Starfold Color Computation Index", "", 5, "Starfold_ColorComp", ""},
    {"Starfold Hue Wheel Increment", "0 - 360.0", 0, "Starfold_HWheelInc", ""},
    {"New Star Frames", "1 - 999", 0, "Starfold_NewFrames", ""},
    {"Pulsar Star General Shape", "", 5, "Starfold_PulsarShape", ""},
    {"Comet Stars", "1 - 999", 0, "", ""},
    {"Comet Orbital Speed", "0 - 9999", 0, "", ""},
    {"Nebula Control Points", "1 - 20", 0, "Starfold_CP_Close", "012356789"},
    {"Nebula Control Point Steps", "1 - 9999", 0, "", ""},
    {"Nebula Bias Points", "1 - 99", 0, "", ""},
    {"Nebula Bias Exponent", "0 - 100", 0, "", ""},
    {"Nebula Bias Travel Speed", "0 - 999", 0, "", ""},
    {"Nebula Control Points Closed", "", 0, "", ""},
};

/// An entry that is called after no setting changes none; it is held to the range that it tells.
ExpectedRow Expected(const std::string& entry, const std::string& rangeTold) {
  for (const ExpectedRow& row : kSpecial) {
    if (row.Entry == entry) return row;
  }
  const auto number = [](double value) { return NumberText(static_cast<Single>(value)); };
  for (const auto& field : ProfileFields()) {
    if (field.Label != entry) continue;
    return {entry, number(field.Low) + " - " + number(field.High), 0, std::string(field.Name), ""};
  }
  return {entry, rangeTold, 0, "", ""};
}

constexpr Single kFormer = 3;  // of all settings; no row is tested with it

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

  /// All settings of all profiles, one line each.
  std::vector<std::string> Settings() const {
    std::vector<std::string> lines;
    for (int i = 0; i < kProfileCount; ++i) {
      for (const auto& field : ProfileFields()) {
        lines.push_back(std::to_string(i) + " " + std::string(field.Name) + " " +
                        FieldText(Process->Profiles[i], field));
      }
    }
    return lines;
  }

  /// The same after `value` has been copied as the row says.
  std::vector<std::string> SettingsAfter(const ExpectedRow& row, const std::string& value) {
    const ProfileArray former = Process->Profiles;
    for (StarfoldProfile& profile : Process->Profiles) {
      const auto style = static_cast<char>('0' + profile.Starfold_FoldStyle);
      if (row.Target.empty() || row.Skipped.find(style) != std::string::npos) continue;
      EXPECT_TRUE(SetFieldText(profile, *FindField(ProfileFields(), row.Target), value));
    }
    std::vector<std::string> lines = Settings();
    Process->Profiles = former;
    return lines;
  }

  QWidget& Window() override { return Copy; }
  void PressCopy() { Click("cmdPropCopy"); }

  int Copies = 0;
  PropertyCopy Copy{Model};
  QComboBox& Properties = Part<QComboBox>(Copy, "cboPropCopyList");
  QLabel& Label = Part<QLabel>(Copy, "lblPropCopy");
  NumberBox& Box = Part<NumberBox>(Copy, "spnPropCopy");
  QLineEdit& Text = Part<QLineEdit>(Copy, "txtPropCopy");
  QComboBox& Choice = Part<QComboBox>(Copy, "cboPropCopy");
  QCheckBox& Closed = Part<QCheckBox>(Copy, "chkPropCopy");
};

TEST_F(PropertyCopyTest, EveryEntryShowsItsControlAndChangesItsSettingOnly) {
  ASSERT_EQ(Properties.count(), 68);
  std::set<std::string> entries;
  for (int i = 0; i < Properties.count(); ++i) {
    Properties.setCurrentIndex(i);
    const std::string entry = Properties.currentText().toStdString();
    SCOPED_TRACE(entry);
    EXPECT_TRUE(entries.insert(entry).second);
    const std::string told = Label.text().section('(', 1).section(')', 0, 0).toStdString();
    const ExpectedRow row = Expected(entry, told);
    EXPECT_EQ(!Box.isHidden(), !row.Range.empty());
    EXPECT_EQ(!Choice.isHidden(), row.Choices > 0);
    EXPECT_EQ(!Closed.isHidden(), row.Range.empty() && row.Choices == 0);
    EXPECT_EQ(Choice.count(), row.Choices);
    EXPECT_EQ(Label.text().toStdString(), row.Range.empty() ? "" : "Range (" + row.Range + "):");

    std::string value;
    if (!row.Range.empty()) {
      const std::size_t dash = row.Range.find(" - ");
      const std::string high = row.Range.substr(dash + 3);
      const bool real = row.Range.find('.') != std::string::npos;
      EXPECT_EQ(Text.maxLength(), real ? 8 : static_cast<int>(high.size()));
      EXPECT_EQ(Text.text(), "");
      Leave(Box);
      EXPECT_EQ(Box.Text(), row.Range.substr(0, dash));
      Box.SetText("99999999");
      Leave(Box);
      value = Box.Text();
      EXPECT_EQ(LenientNumber(value), LenientNumber(high));
    } else if (row.Choices > 0) {
      EXPECT_EQ(Choice.currentIndex(), 0);
      Choice.setCurrentIndex(row.Choices - 1);
      value = std::to_string(row.Choices - 1);
    } else {
      EXPECT_EQ(Closed.text(), "Control Point Loop is Closed?");
      Closed.setChecked(true);
      value = "1";
    }

    const ProfileArray former = Process->Profiles;
    const std::vector<std::string> expected = SettingsAfter(row, value);
    Copies = 0;
    PressCopy();
    EXPECT_EQ(Settings(), expected);
    EXPECT_EQ(Copies, row.Target.empty() ? 0 : 1);
    EXPECT_EQ(LastBox(), "");
    Process->Profiles = former;
  }
}

TEST_F(PropertyCopyTest, EachEntryBeginsWithoutTheFormerValue) {
  Properties.setCurrentIndex(61);
  Closed.setChecked(true);
  Properties.setCurrentIndex(12);
  Choice.setCurrentIndex(4);
  Properties.setCurrentIndex(20);
  EXPECT_EQ(Choice.currentIndex(), 0);
  Properties.setCurrentIndex(61);
  EXPECT_FALSE(Closed.isChecked());
}

TEST_F(PropertyCopyTest, WithoutASelectionNothingIsShownOrTaken) {
  for (const int position : {-1, 68}) {
    Properties.setCurrentIndex(5);
    Copy.SetupPropCopyValue(position);
    EXPECT_TRUE(Box.isHidden() && Choice.isHidden() && Closed.isHidden());
    EXPECT_EQ(Label.text(), "");
    EXPECT_EQ(Text.maxLength(), 0);
  }
  Properties.setCurrentIndex(-1);
  Activate(Copy);
  PressCopy();
  EXPECT_EQ(LastBox(), "Please select a Property to copy.");
  EXPECT_TRUE(Properties.hasFocus());
}

TEST_F(PropertyCopyTest, AMissingValueIsAskedFor) {
  Activate(Copy);
  Properties.setCurrentIndex(0);
  for (const char* blank : {"", " "}) {
    Properties.setFocus();
    Box.SetText(blank);
    PressCopy();
    EXPECT_EQ(LastBox(), "Please enter a Property value.");
    EXPECT_TRUE(Box.hasFocus());
  }
  Properties.setCurrentIndex(12);
  Choice.setCurrentIndex(-1);
  PressCopy();
  EXPECT_EQ(LastBox(), "Please select a Property value.");
  EXPECT_TRUE(Choice.hasFocus());
  EXPECT_EQ(Copies, 0);
}

TEST_F(PropertyCopyTest, WholeNumbersTakeTheNearestEvenOneAndOthersTheNumberItself) {
  const auto copy = [this](int position, const char* text) {
    Properties.setCurrentIndex(position);
    Box.SetText(text);
    Copy.CopyPropertyToAllProfiles();
  };
  copy(0, "2.5");
  EXPECT_EQ(Process->Profiles[0].Starfold_HueRed, 2);
  copy(0, "3.5");
  EXPECT_EQ(Process->Profiles[0].Starfold_HueRed, 4);
  copy(5, "2.5");
  EXPECT_EQ(Process->Profiles[0].Starfold_Radius, 2);
  copy(15, "2.5");
  EXPECT_EQ(Process->Profiles[0].Starfold_GHW_Ratio, 2.5F);
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

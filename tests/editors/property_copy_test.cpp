// Copying a property into all profiles, against a table of its own.
#include "editors/property_copy.h"

#include <gmock/gmock.h>

#include "editors/widgets.h"
#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

/// What is expected of an entry. Without a range and choices it has a check box.
struct ExpectedRow {
  const char* Entry;
  std::string Range;    // of the number
  int Choices;          // in the list
  const char* Target;   // the setting that changes; empty: none
  std::string Skipped;  // digits of the styles that are left alone
};

const ExpectedRow kExpected[] = {
    {"Starfold Hue:  Red", "0 - 100", 0, "Starfold_HueRed", ""},
    {"Starfold Hue:  Green", "0 - 100", 0, "Starfold_HueGrn", ""},
    {"Starfold Hue:  Blue", "0 - 100", 0, "Starfold_HueBlu", ""},
    {"Starfold Hue:  Base", "0 - 100", 0, "Starfold_HueBase", ""},
    {"Starfold Hue:  Blend", "1 - 60", 0, "Starfold_HueBlend", ""},
    {"Starfold Radius", "1 - 30000", 0, "Starfold_Radius", "7"},
    {"Starfold Rotation Speed", "0 - 30000", 0, "Starfold_Rotation", ""},
    {"Starfold Core Distance from Eye", "0 - 30000", 0, "Starfold_Distance", ""},
    {"Starfold Radial Arms", "1 - 99", 0, "Starfold_RadSegs", "123"},
    {"Starfold Radial Arm Fill %", "0 - 100", 0, "Starfold_RadFill", "123"},
    {"Starfold Radial Bands", "1 - 99", 0, "Starfold_RadBands", "127"},
    {"Starfold Radial Band Fill %", "0 - 100", 0, "Starfold_RadBFill", "7"},
    {"Starfold Style", "", 10, "Starfold_FoldStyle", ""},
    {"Starfold Axial Plane of Rotation", "", 2, "Starfold_AxisPlane", ""},
    {"Starfold Shape Profile", "", 7, "Starfold_Profile", ""},
    {"Starfold Height/Width Ratio", "0 - 99.9", 0, "Starfold_GHW_Ratio", ""},
    {"Starfold Radius Exponent", "0 - 99.9", 0, "Starfold_RadiusExp", "47"},
    {"Starfold Height Exponent", "0 - 99.9", 0, "Starfold_HeightExp", "4"},
    {"Starfold Angular Tilt", "0 - 359", 0, "Starfold_AngleTilt", ""},
    {"Starfold Angular Tilt Increment", "0 - 360.0", 0, "Starfold_AngleTInc", ""},
    {"Starfold Color Computation Index", "", 5, "Starfold_ColorComp", ""},
    {"Starfold Color Multiplier", "0 - 30000", 0, "Starfold_ColorMult", ""},
    {"Starfold Hue Wheel Start", "0 - 359", 0, "Starfold_HueStart", ""},
    {"Starfold Hue Wheel Increment", "0 - 360.0", 0, "Starfold_HWheelInc", ""},
    {"New Star Frequency", "0 - 9999", 0, "Starfold_NewFreq", ""},
    {"New Star Frames", "1 - 999", 0, "Starfold_NewFrames", ""},
    {"New Star Extension Multiplier", "1 - 9999", 0, "Starfold_NewExtMult", ""},
    {"Nova Star Frequency", "0 - 9999", 0, "Starfold_NovaFreq", ""},
    {"Nova Star Frames", "1 - 999", 0, "Starfold_NovaFrames", ""},
    {"Nova Star Extension Multiplier", "1 - 9999", 0, "Starfold_NovaExtMult", ""},
    {"Pulsar Star Frequency", "0 - 9999", 0, "Starfold_PulsarFreq", ""},
    {"Pulsar Star Z-Depth", "0 - 9999", 0, "Starfold_PulsarDepth", ""},
    {"Pulsar Star Cycles", "1 - 99", 0, "Starfold_PulsarCycles", ""},
    {"Pulsar Star Frames per Cycle", "1 - 99", 0, "Starfold_PulsarFrames", ""},
    {"Pulsar Star Radius Start", "1 - 9999", 0, "Starfold_PulsarMinExt", ""},
    {"Pulsar Star Radius End", "1 - 9999", 0, "Starfold_PulsarMaxExt", ""},
    {"Pulsar Star General Shape", "", 5, "Starfold_PulsarShape", ""},
    {"Comet Frequency", "0 - 9999", 0, "Starfold_CometFreq", ""},
    {"Comet Stars", "1 - 999", 0, "", ""},
    {"Comet Orbital Speed", "0 - 9999", 0, "", ""},
    {"Comet Emit Speed", "0 - 9999", 0, "Starfold_CometSpeed", ""},
    {"Comet Solar Wind", "0 - 9999", 0, "Starfold_CometSWind", ""},
    {"Comet Persistence", "0.1 - 0.9999", 0, "Starfold_CometCPersist", ""},
    {"Comet Star Persistence", "0.1 - 0.9999", 0, "Starfold_CometSPersist", ""},
    {"Comet Hue Wheel Start", "0 - 999", 0, "Starfold_HWC_Start", ""},
    {"Comet Hue Wheel End", "0 - 999", 0, "Starfold_HWC_End", ""},
    {"Attractor Iteration Points", "1 - 99", 0, "", ""},
    {"Attractor Iteration Scale %", "0 - 100", 0, "", ""},
    {"Attractor Rotation Angle", "0 - 360", 0, "", ""},
    {"Wireframe Vertices", "4 - 10", 0, "", ""},
    {"Wireframe Scale %", "0 - 100", 0, "", ""},
    {"Wireframe Iteration Levels", "1 - 99", 0, "", ""},
    {"Fractal Iteration Points", "4 - 10", 0, "", ""},
    {"Fractal Iteration Scale %", "0 - 100", 0, "", ""},
    {"Nebula Control Points", "1 - 20", 0, "Starfold_CP_Close", "012356789"},
    {"Nebula Control Point Steps", "1 - 9999", 0, "", ""},
    {"Nebula Bias Points", "1 - 99", 0, "", ""},
    {"Nebula Bias Exponent", "0 - 100", 0, "", ""},
    {"Nebula Bias Travel Speed", "0 - 999", 0, "", ""},
    {"Nebula Expansion Speed", "0 - 99.9", 0, "", ""},
    {"Nebula Solar Wind Magnitude", "0 - 99.9", 0, "", ""},
    {"Nebula Control Points Closed", "", 0, "", ""},
    {"Quasar Emit Speed", "0 - 99.9", 0, "", ""},
    {"Graviton Force", "0 - 99.9", 0, "", ""},
    {"Starwave Expansion Rate", "1 - 30000", 0, "", ""},
    {"Starwave Interleaved Waves", "1 - 99", 0, "", ""},
    {"Starwave Amplitude Persistence", "1 - 999", 0, "", ""},
    {"Starwave Particle Angle Increment", "0 - 99.9", 0, "", ""},
};

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
      if (!*row.Target || row.Skipped.find(style) != std::string::npos) continue;
      EXPECT_TRUE(SetFieldText(profile, *FindField(ProfileFields(), row.Target), value));
    }
    std::vector<std::string> lines = Settings();
    Process->Profiles = former;
    return lines;
  }

  void PressCopy() { Part<QPushButton>(Copy, "cmdPropCopy").click(); }

  int Copies = 0;
  PropertyCopy Copy{Model};
  QComboBox& List = Part<QComboBox>(Copy, "cboPropCopyList");
  QLabel& Label = Part<QLabel>(Copy, "lblPropCopy");
  NumberBox& Box = Part<NumberBox>(Copy, "spnPropCopy");
  QLineEdit& Text = Part<QLineEdit>(Copy, "txtPropCopy");
  QComboBox& Choice = Part<QComboBox>(Copy, "cboPropCopy");
  QCheckBox& Check = Part<QCheckBox>(Copy, "chkPropCopy");
};

TEST_F(PropertyCopyTest, EveryEntryShowsItsControlAndChangesItsSettingOnly) {
  ASSERT_EQ(List.count(), static_cast<int>(std::size(kExpected)));
  for (int i = 0; i < List.count(); ++i) {
    const ExpectedRow& row = kExpected[i];
    SCOPED_TRACE(row.Entry);
    EXPECT_EQ(List.itemText(i).toStdString(), row.Entry);
    List.setCurrentIndex(i);
    EXPECT_EQ(!Box.isHidden(), !row.Range.empty());
    EXPECT_EQ(!Choice.isHidden(), row.Choices > 0);
    EXPECT_EQ(!Check.isHidden(), row.Range.empty() && row.Choices == 0);
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
      EXPECT_EQ(Check.text(), "Control Point Loop is Closed?");
      Check.setChecked(true);
      value = "1";
    }

    const ProfileArray former = Process->Profiles;
    const std::vector<std::string> expected = SettingsAfter(row, value);
    Copies = 0;
    PressCopy();
    EXPECT_EQ(Settings(), expected);
    EXPECT_EQ(Copies, *row.Target ? 1 : 0);
    EXPECT_EQ(LastBox(), "");
    Process->Profiles = former;
  }
}

TEST_F(PropertyCopyTest, EachEntryBeginsWithoutTheFormerValue) {
  List.setCurrentIndex(61);
  Check.setChecked(true);
  List.setCurrentIndex(12);
  Choice.setCurrentIndex(4);
  List.setCurrentIndex(20);
  EXPECT_EQ(Choice.currentIndex(), 0);
  List.setCurrentIndex(61);
  EXPECT_FALSE(Check.isChecked());
}

TEST_F(PropertyCopyTest, WithoutASelectionNothingIsShownOrTaken) {
  for (const int position : {-1, 68}) {
    List.setCurrentIndex(5);
    Copy.SetupPropCopyValue(position);
    EXPECT_TRUE(Box.isHidden() && Choice.isHidden() && Check.isHidden());
    EXPECT_EQ(Label.text(), "");
    EXPECT_EQ(Text.maxLength(), 0);
  }
  List.setCurrentIndex(-1);
  Activate(Copy);
  PressCopy();
  EXPECT_EQ(LastBox(), "Please select a Property to copy.");
  EXPECT_TRUE(List.hasFocus());
}

TEST_F(PropertyCopyTest, AMissingValueIsAskedFor) {
  Activate(Copy);
  List.setCurrentIndex(0);
  for (const char* blank : {"", " "}) {
    List.setFocus();
    Box.SetText(blank);
    PressCopy();
    EXPECT_EQ(LastBox(), "Please enter a Property value.");
    EXPECT_TRUE(Box.hasFocus());
  }
  List.setCurrentIndex(12);
  Choice.setCurrentIndex(-1);
  PressCopy();
  EXPECT_EQ(LastBox(), "Please select a Property value.");
  EXPECT_TRUE(Choice.hasFocus());
  EXPECT_EQ(Copies, 0);
}

TEST_F(PropertyCopyTest, WholeNumbersTakeTheNearestEvenOneAndOthersTheNumberItself) {
  const auto copy = [this](int position, const char* text) {
    List.setCurrentIndex(position);
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

TEST_F(PropertyCopyTest, TheMnemonicOfTheButtonTakesNoNumberOutOfRange) {
  List.setCurrentIndex(5);
  Box.SetText("40000");
  PressCopy();
  EXPECT_EQ(Process->Profiles[0].Starfold_Radius, 30000);
  EXPECT_EQ(Box.Text(), "30000");
}

TEST_F(PropertyCopyTest, ColoursFollowTheRecords) {
  List.setCurrentIndex(0);
  Box.SetText("0");
  PressCopy();
  const Colour dark = Process->Colours.Profile[7].HueTable[0];
  Box.SetText("100");
  PressCopy();
  EXPECT_GT(Process->Colours.Profile[7].HueTable[0] & 0xFFU, dark & 0xFFU);
}

}  // namespace
}  // namespace starfolds

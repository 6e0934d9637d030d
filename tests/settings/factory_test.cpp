#include "settings/factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <span>
#include <string>

#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

using enum FactorySet;
using testing::IsEmpty;

constexpr FactorySet kSets[] = {Starfolds4x, Starfolds20};

StarfoldProfile Loaded(FactorySet set, int index) {
  StarfoldProfile record;
  LoadFactoryProfile(record, set, index);
  return record;
}

double Number(std::string_view row, int n) { return LenientNumber(GetField(row, n)); }

int Whole(std::string_view row, int n) { return static_cast<int>(Number(row, n)); }

int FieldCount(std::string_view row) {
  return static_cast<int>(std::count(row.begin(), row.end(), ',')) + 1;
}

/// The lines of a section of the file that says what the tables have to hold.
std::vector<std::string> Given(const std::string& section) {
  std::ifstream file(STARFOLDS_FACTORY_GIVEN);
  std::vector<std::string> lines;
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('[')) {
      inside = line == "[" + section + "]";
    } else if (inside && !line.starts_with('#')) {
      lines.push_back(line);
    }
  }
  EXPECT_FALSE(lines.empty()) << section;
  return lines;
}

/// Names of all settings of a record that differ between two records.
template <class Record>
std::set<std::string_view> Differences(const Record& a, const Record& b,
                                       std::span<const Field<Record>> fields) {
  std::set<std::string_view> names;
  for (const Field<Record>& field : fields) {
    if (FieldText(a, field) != FieldText(b, field)) names.insert(field.Name);
  }
  return names;
}

std::set<std::string_view> Differences(const StarfoldProfile& a, const StarfoldProfile& b) {
  auto names = Differences(a, b, ProfileFields());
  for (int i = 0; i < kMaxIfsPoints; ++i) {
    names.merge(Differences(a.IFS.Points[i], b.IFS.Points[i], IfsPointFields()));
  }
  for (int i = 0; i < kMaxAtoms; ++i) {
    names.merge(Differences(a.Atom.Atoms[i], b.Atom.Atoms[i], AtomPointFields()));
  }
  return names;
}

TEST(GetField, TakesThePieceBetweenTwoCommas) {
  EXPECT_EQ(GetField("a, b ,c", 0), "a");
  EXPECT_EQ(GetField("a, b ,c", 1), "b");
  EXPECT_EQ(GetField("a,, c", 2), "c");
  EXPECT_EQ(GetField("a,, c,", 1), "");
  EXPECT_EQ(GetField("a, b", 2), "");
  EXPECT_EQ(GetField("", 3), "");
}

TEST(FactoryProfiles, HaveTheGivenColumns) {
  constexpr int columns[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 17, 18};
  for (const FactorySet set : kSets) {
    const auto given = Given(set == Starfolds4x ? "profiles 4.x" : "profiles 2.0");
    for (int i = 0; i < static_cast<int>(given.size()); ++i) {
      const std::string& expected = given[static_cast<std::size_t>(i)];
      const StarfoldProfile record = Loaded(set, i);
      EXPECT_EQ(record.UniFoldName, GetField(expected, 0));
      EXPECT_EQ(record.UniFoldPct, Whole(expected, 1)) << expected;
      int at = 2;
      for (const int column : columns) {
        EXPECT_EQ(Whole(FactoryProfileRow(set, i + 1), column), Whole(expected, at++)) << expected;
      }
    }
  }
}

TEST(FactoryProfiles, GivenRowsAndEntriesStandWhole) {
  for (const auto& [section, first] : {std::pair("rows 4.x", 0), {"entries 4.x", 68}}) {
    for (const std::string& expected : Given(section)) {
      const std::string_view row = FactoryProfileRow(Starfolds4x, Whole(expected, 0) + 1);
      for (int n = 1; n < FieldCount(expected); ++n) {
        EXPECT_EQ(Number(row, first + n - 1), Number(expected, n)) << expected << ": " << n;
      }
    }
  }
}

TEST(FactoryProfiles, EveryPositionGoesToItsSetting) {
  for (const std::string& expected : Given("decoded 4.x")) {
    const auto* field = FindField(ProfileFields(), GetField(expected, 1));
    ASSERT_NE(field, nullptr) << expected;
    const std::string text = FieldText(Loaded(Starfolds4x, Whole(expected, 0)), *field);
    EXPECT_EQ(LenientNumber(text), Number(expected, 2)) << expected;
  }
  const IfsPoint point = Loaded(Starfolds4x, 40).IFS.Points[3];
  EXPECT_EQ((std::array{point.IFS_LocX, point.IFS_Scale, point.IFS_Angle, point.IFS_RelPct}),
            (std::array<Integer, 4>{1000, 33, 60, 1}));
  const AtomPoint atom = Loaded(Starfolds4x, 44).Atom.Atoms[7];
  EXPECT_EQ((std::array{atom.Atom_Element, atom.Atom_Structure, atom.Atom_Size, atom.Atom_Radius,
                        atom.Atom_Count}),
            (std::array<Integer, 5>{9, 5, 10, 1250, 38}));
}

TEST(FactoryProfiles, RowsAreNumbersInAllFieldsAndNoClampChangesThem) {
  for (const FactorySet set : kSets) {
    for (int rowNumber = 1; rowNumber <= kProfileCount; ++rowNumber) {
      const std::string_view row = FactoryProfileRow(set, rowNumber);
      SCOPED_TRACE(row);
      const int entries = Whole(row, 67);
      const int fields = entries > 0 ? 71 + 7 * entries : 68;
      for (int n = 0; n < fields; ++n) EXPECT_TRUE(IsNumeric(GetField(row, n))) << "field " << n;
      EXPECT_EQ(GetField(row, fields), "");
      const StarfoldProfile record = Loaded(set, rowNumber - 1);
      StarfoldProfile clamped = record;
      ClampProfile(clamped);
      EXPECT_THAT(Differences(record, clamped), IsEmpty());
    }
  }
}

/// One level leaves the settings of levels alone; points and atoms drive each other out.
TEST(FactoryProfiles, WhatTheRowBeforeLeaves) {
  StarfoldProfile record;
  record.Starfold_StdLevels = 3;
  record.Starfold_StdLevDRad = 777;
  struct Case {
    int Row, Points, Atoms;
  };
  for (const Case& c : {Case{0, 0, 0}, Case{43, 0, 6}, Case{39, 5, 0}, Case{43, 0, 6}}) {
    LoadFactoryProfile(record, Starfolds4x, c.Row);
    EXPECT_EQ(record.Starfold_StdLevels, 1);
    EXPECT_EQ(record.Starfold_StdLevDRad, 777);
    EXPECT_EQ(record.Starfold_IFS_Points, c.Points) << c.Row;
    EXPECT_EQ(record.Starfold_Atoms, c.Atoms) << c.Row;
  }
}

TEST(FactoryProfiles, UndefinedOnesAreTheFirstAndBeyondThemIsNothing) {
  const StarfoldProfile first = Loaded(Starfolds20, 0);
  const std::set<std::string_view> nameAndWeight = {"_UniFoldName", "_UniFoldPct"};
  for (int row = 32; row < kProfileCount; ++row) {
    const StarfoldProfile record = Loaded(Starfolds20, row);
    EXPECT_EQ(record.UniFoldName, "Undefined") << row;
    EXPECT_EQ(record.UniFoldPct, 0) << row;
    EXPECT_EQ(Differences(first, record), nameAndWeight) << row;
  }
  for (const int index : {-1, 50, 1000}) {
    StarfoldProfile record = first;
    LoadFactoryProfile(record, Starfolds4x, index);
    EXPECT_THAT(Differences(first, record), IsEmpty()) << index;
    EXPECT_EQ(FactoryProfileName(index, Starfolds20), "");
  }
  EXPECT_EQ(FactoryCompositeRow(Starfolds4x, 0), "");
  EXPECT_EQ(FactoryCompositeRow(Starfolds4x, 17), "");
}

/// Bodies whose stars drift away stay full only if enough new ones come, and black stars show only
/// while they flare.
TEST(FactoryProfiles, BodiesStayVisible) {
  constexpr Integer blackStars = 4;
  for (const FactorySet set : kSets) {
    for (int row = 0; row < kProfileCount; ++row) {
      const StarfoldProfile p = Loaded(set, row);
      const bool drifts = p.Style() == FoldStyle::Nebula || p.Style() == FoldStyle::Quasar ||
                          p.Style() == FoldStyle::Starwave;
      const bool isBlack = p.Starfold_ColorComp == blackStars;
      EXPECT_GE(p.Starfold_NewFreq, drifts ? 1000 : 0) << p.UniFoldName;
      EXPECT_GE(p.Starfold_NewFreq * p.Starfold_NewFrames, isBlack ? 20000 : 0) << p.UniFoldName;
    }
  }
  EXPECT_EQ(Loaded(Starfolds20, 6).Starfold_HueGrn, 0) << "Red-Blue Exclusive";
  EXPECT_EQ(Loaded(Starfolds20, 7).Starfold_HueRed, 0) << "Blue-Green Shell";
}

TEST(FactoryComposites, HaveTheGivenMembers) {
  for (const FactorySet set : kSets) {
    const auto given = Given(set == Starfolds4x ? "composites 4.x" : "composites 2.0");
    SettingsRecords records;
    LoadFactorySet(records, set);
    ASSERT_EQ(given.size(), records.Composites.size());
    for (std::size_t i = 0; i < given.size(); ++i) {
      const CompositeProfile& c = records.Composites[i];
      EXPECT_EQ(c.CompFoldName, GetField(given[i], 0));
      EXPECT_EQ(c.CompFoldPct, Whole(given[i], 1)) << given[i];
      EXPECT_EQ(c.CompFold_Count, Whole(given[i], 2)) << given[i];
      for (int k = 0; k < c.MemberCount(); ++k) {
        EXPECT_EQ(c.CompFold_Type[k], Whole(given[i], 3 + k)) << given[i];
      }
    }
    EXPECT_EQ(records.Profiles[49].UniFoldName, FactoryProfileName(49, set));
  }
}

UniverseSettings Theme(int theme, bool is20) {
  UniverseSettings universe;
  universe.Universe_GS_Idx = "3 4";
  universe.Universe_C_Ramp = 123;
  LoadFactoryTheme(universe, theme, is20);
  return universe;
}

TEST(FactoryThemes, HaveTheGivenValues) {
  for (const std::string& setting : Given("themes")) {
    const auto* field = FindField(UniverseFields(), GetField(setting, 0));
    ASSERT_NE(field, nullptr) << setting;
    for (int theme = 0; theme <= kThemeCount; ++theme) {
      const std::string text = FieldText(Theme(std::max(theme, 1), theme == 0), *field);
      EXPECT_EQ(LenientNumber(text), Number(setting, 1 + theme)) << setting;
    }
  }
}

TEST(FactoryThemes, ClearTheVisitListKeepTheRampAndLieInTheirRanges) {
  for (int theme = 1; theme <= kThemeCount; ++theme) {
    EXPECT_EQ(FactoryThemeRow(theme, true) == FactoryThemeRow(theme, false), theme != 1) << theme;
    const UniverseSettings universe = Theme(theme, true);
    EXPECT_EQ(universe.Universe_GS_Idx, "") << theme;
    EXPECT_EQ(universe.Universe_C_Ramp, 123) << theme;
    UniverseSettings clamped = universe;
    ClampUniverse(clamped);
    // The bodies of theme 4 stay in one place: no expansion, so no steps of it.
    EXPECT_EQ(Differences(universe, clamped, UniverseFields()).size(), theme == 4 ? 1U : 0U);
  }
}

TEST(FactoryThemes, BeyondTheListNothingIsLoaded) {
  for (const int theme : {-1, 0, 9}) {
    EXPECT_EQ(Theme(theme, true).Universe_GS_Idx, "3 4");
    EXPECT_EQ(FactoryThemeName(theme), theme == 0 ? "< NONE >" : "");
  }
  EXPECT_EQ(FactoryThemeName(3), "Sparce Space:  Long Distance Trips");
  EXPECT_EQ(FactoryThemeName(8), "Starfolds in Motion:  Gravity On");
}

}  // namespace
}  // namespace starfolds

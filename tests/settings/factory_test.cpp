#include "settings/factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <span>
#include <string>

#include "numbers/text.h"
#include "settings/factory_given.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

using enum FactorySet;
using testing::ElementsAreArray;
using testing::HasSubstr;

constexpr FactorySet kSets[] = {Starfolds4x, Starfolds20};

StarfoldProfile Loaded(FactorySet set, int index) {
  StarfoldProfile record;
  LoadFactoryProfile(record, set, index);
  return record;
}

std::string Where(FactorySet set, int row) {
  return "set " + std::to_string(static_cast<int>(set)) + ", row " + std::to_string(row) + ", " +
         std::string(FactoryProfileName(row, set));
}

int FieldCount(std::string_view row) {
  return static_cast<int>(std::count(row.begin(), row.end(), ',')) + 1;
}

double Number(std::string_view row, int n) { return LenientNumber(GetField(row, n)); }

/// Names and values of all settings of a record that differ between two records.
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
  names.merge(Differences(a.IFS, b.IFS, IfsCenterFields()));
  names.merge(Differences(a.Atom, b.Atom, AtomCenterFields()));
  for (int i = 0; i < kMaxIfsPoints; ++i) {
    names.merge(Differences(a.IFS.Points[i], b.IFS.Points[i], IfsPointFields()));
  }
  for (int i = 0; i < kMaxAtoms; ++i) {
    names.merge(Differences(a.Atom.Atoms[i], b.Atom.Atoms[i], AtomPointFields()));
  }
  return names;
}

std::array<int, 13> ColumnsOf(const StarfoldProfile& p) {
  return {p.Starfold_Radius,
          p.Starfold_Rotation,
          p.Starfold_Distance,
          p.Starfold_FoldStyle,
          p.Starfold_AxisPlane,
          p.Starfold_RadSegs,
          static_cast<int>(p.Starfold_RadFill),
          p.Starfold_RadBands,
          static_cast<int>(p.Starfold_RadBFill),
          static_cast<int>(p.Starfold_ColorMult),
          p.Starfold_HueStart,
          p.Starfold_ColorComp,
          p.Starfold_Profile};
}

TEST(GetField, TakesThePieceBetweenTwoCommas) {
  EXPECT_EQ(GetField("a, b ,c", 0), "a");
  EXPECT_EQ(GetField("a, b ,c", 1), "b");
  EXPECT_EQ(GetField("a, b ,c", 2), "c");
  EXPECT_EQ(GetField(" one field ", 0), "one field");
  EXPECT_EQ(GetField("a,, c,", 1), "");
  EXPECT_EQ(GetField("a,, c,", 2), "c");
}

TEST(GetField, IsEmptyBehindTheLastField) {
  EXPECT_EQ(GetField("a, b", 2), "");
  EXPECT_EQ(GetField("a, b,", 2), "");
  EXPECT_EQ(GetField("a, b", 70), "");
  EXPECT_EQ(GetField("", 0), "");
  EXPECT_EQ(GetField("", 3), "");
}

void ExpectGivenColumns(FactorySet set, std::span<const GivenProfile> given) {
  for (int row = 0; row < static_cast<int>(given.size()); ++row) {
    SCOPED_TRACE(Where(set, row));
    const GivenProfile& expected = given[static_cast<std::size_t>(row)];
    EXPECT_EQ(FactoryProfileName(row, set), expected.Name);
    EXPECT_EQ(FactoryProfilePct(row, set), expected.Weight);
    const StarfoldProfile record = Loaded(set, row);
    EXPECT_EQ(record.UniFoldName, expected.Name);
    EXPECT_EQ(record.UniFoldPct, expected.Weight);
    EXPECT_THAT(ColumnsOf(record), ElementsAreArray(expected.Columns));
  }
}

TEST(FactoryProfiles, HaveTheGivenColumns) {
  ASSERT_EQ(std::size(kGivenProfiles4x), 50U);
  ExpectGivenColumns(Starfolds4x, kGivenProfiles4x);
  ASSERT_EQ(std::size(kGivenProfiles20), 32U);
  ExpectGivenColumns(Starfolds20, kGivenProfiles20);
}

TEST(FactoryProfiles, GivenRowsStandWhole) {
  for (const GivenRow& given : kGivenRows4x) {
    const std::string_view row = FactoryProfileRow(Starfolds4x, given.Row + 1);
    for (int n = 0; n < FieldCount(given.Text); ++n) {
      EXPECT_EQ(Number(row, n), Number(given.Text, n)) << "row " << given.Row << ", field " << n;
    }
  }
}

TEST(FactoryProfiles, RowsAreNumbersInAllFields) {
  constexpr int notRead[] = {32, 33, 34, 64, 65, 66};
  for (const FactorySet set : kSets) {
    for (int rowNumber = 1; rowNumber <= kProfileCount; ++rowNumber) {
      const std::string_view row = FactoryProfileRow(set, rowNumber);
      SCOPED_TRACE(Where(set, rowNumber - 1));
      EXPECT_GE(FieldCount(row), 69);
      const int entries = static_cast<int>(Number(row, 67));
      const int fields = entries > 0 ? 71 + 7 * entries : 68;
      for (int n = 0; n < fields; ++n) {
        EXPECT_TRUE(IsNumeric(GetField(row, n))) << "field " << n << ": " << GetField(row, n);
      }
      EXPECT_EQ(GetField(row, fields), "");
      for (const int n : notRead) EXPECT_EQ(Number(row, n), 0) << "field " << n;
    }
  }
}

TEST(FactoryProfiles, FractionsStandOnlyInFieldsThatHoldThem) {
  const std::set<int> singles = {10, 11, 12, 13, 14, 16, 40, 41, 44, 57, 60};
  for (const FactorySet set : kSets) {
    for (int rowNumber = 1; rowNumber <= kProfileCount; ++rowNumber) {
      const std::string_view row = FactoryProfileRow(set, rowNumber);
      for (int n = 0; n < FieldCount(row); ++n) {
        const double value = Number(row, n);
        if (singles.count(n) == 0) {
          EXPECT_EQ(value, std::floor(value)) << Where(set, rowNumber - 1) << ", field " << n;
        }
      }
    }
  }
}

TEST(FactoryProfiles, NoClampChangesAnyOfThem) {
  for (const FactorySet set : kSets) {
    for (int row = 0; row < kProfileCount; ++row) {
      const StarfoldProfile record = Loaded(set, row);
      StarfoldProfile clamped = record;
      ClampProfile(clamped);
      EXPECT_THAT(Differences(record, clamped), testing::IsEmpty()) << Where(set, row);
    }
  }
}

TEST(FactoryProfiles, LevelSettingsAreInTheEditorsRange) {
  int nested = 0;
  for (const FactorySet set : kSets) {
    for (int row = 0; row < kProfileCount; ++row) {
      const StarfoldProfile p = Loaded(set, row);
      if (p.Starfold_StdLevels == 1) continue;
      ++nested;
      SCOPED_TRACE(Where(set, row));
      EXPECT_EQ(p.Style(), FoldStyle::Standard);
      EXPECT_TRUE(p.Starfold_StdLevDRad >= 1 && p.Starfold_StdLevDRad <= 30000);
      EXPECT_TRUE(p.Starfold_StdLevHSca >= 0 && p.Starfold_StdLevHSca <= 99.9F);
      for (const Integer flag :
           {p.Starfold_StdLevB_HS, p.Starfold_StdLevB_A0, p.Starfold_StdLevB_A1}) {
        EXPECT_TRUE(flag == 0 || flag == 1);
      }
    }
  }
  EXPECT_GT(nested, 0);
}

// The given row with the fewest equal neighbours, so that two fields that changed places show.
TEST(FactoryProfiles, EveryPositionGoesToItsSetting) {
  const StarfoldProfile p = Loaded(Starfolds4x, 33);
  EXPECT_EQ(p.Starfold_GHW_Ratio, 3);
  EXPECT_EQ(p.Starfold_RadiusExp, 1.5F);
  EXPECT_EQ(p.Starfold_HeightExp, 1);
  EXPECT_EQ(p.Starfold_AngleTilt, 90);
  EXPECT_EQ(p.Starfold_AngleTInc, 0.25F);
  EXPECT_EQ(p.Starfold_HWheelInc, 0.3F);
  EXPECT_EQ(p.Starfold_NewFreq, 2000);
  EXPECT_EQ(p.Starfold_NewFrames, 0);
  EXPECT_EQ(p.Starfold_NewExtMult, 10);
  EXPECT_EQ(p.Starfold_NovaFreq, 200);
  EXPECT_EQ(p.Starfold_NovaFrames, 40);
  EXPECT_EQ(p.Starfold_NovaExtMult, 250);
  EXPECT_EQ(p.Starfold_PulsarFreq, 10);
  EXPECT_EQ(p.Starfold_PulsarDepth, 100);
  EXPECT_EQ(p.Starfold_PulsarCycles, 3);
  EXPECT_EQ(p.Starfold_PulsarFrames, 30);
  EXPECT_EQ(p.Starfold_PulsarMinExt, 5);
  EXPECT_EQ(p.Starfold_PulsarMaxExt, 125);
  EXPECT_EQ(p.Starfold_PulsarShape, 3);
  EXPECT_EQ(p.Starfold_CometFreq, 200);
  EXPECT_EQ(p.Starfold_CometStars, 300);
  EXPECT_EQ(p.Starfold_CometOrbit, 0);
  EXPECT_EQ(p.Starfold_CometSpeed, 1000);
  EXPECT_EQ(p.Starfold_CometSWind, 0);
  EXPECT_EQ(p.Starfold_CometCPersist, 0.1F);
  EXPECT_EQ(p.Starfold_CometSPersist, 0.95F);
  EXPECT_EQ(p.Starfold_HWC_Start, 170);
  EXPECT_EQ(p.Starfold_HWC_End, 160);
  EXPECT_EQ(p.Starfold_HWC_Inc, 0.3F);
  EXPECT_EQ(p.Starfold_HueBase, 0);
  EXPECT_EQ(p.Starfold_HueBlend, 60);
  EXPECT_EQ(p.Starfold_CP_Points, 10);
  EXPECT_EQ(p.Starfold_CP_Steps, 200);
  EXPECT_EQ(p.Starfold_CP_B_Pts, 1);
  EXPECT_EQ(p.Starfold_CP_B_Exp, 100);
  EXPECT_EQ(p.Starfold_CP_B_Spd, 0);
  EXPECT_EQ(p.Starfold_CP_Close, 1);
  EXPECT_EQ(p.Starfold_CP_AdvHW, 0);
  EXPECT_EQ(p.Starfold_StdLevels, 1);

  const StarfoldProfile rainbow = Loaded(Starfolds4x, 22);
  EXPECT_EQ(rainbow.Starfold_CometOrbit, 800);
  EXPECT_EQ(rainbow.Starfold_CometSpeed, 125);
  EXPECT_EQ(rainbow.Starfold_CometSWind, 25);
  EXPECT_EQ(rainbow.Starfold_HueBase, 25);
  EXPECT_EQ(rainbow.Starfold_CP_AdvHW, 1);
  EXPECT_EQ(Loaded(Starfolds4x, 29).Starfold_QG_Force, 5);
}

TEST(FactoryProfiles, LevelsComeFromTheirFields) {
  for (const FactorySet set : kSets) {
    for (int row = 0; row < kProfileCount; ++row) {
      const StarfoldProfile p = Loaded(set, row);
      if (p.Starfold_StdLevels == 1) continue;
      SCOPED_TRACE(Where(set, row));
      const std::string_view text = FactoryProfileRow(set, row + 1);
      EXPECT_EQ(p.Starfold_StdLevels, Number(text, 58));
      EXPECT_EQ(p.Starfold_StdLevDRad, Number(text, 59));
      EXPECT_EQ(p.Starfold_StdLevHSca, static_cast<Single>(Number(text, 60)));
      EXPECT_EQ(p.Starfold_StdLevB_HS, Number(text, 61));
      EXPECT_EQ(p.Starfold_StdLevB_A0, Number(text, 62));
      EXPECT_EQ(p.Starfold_StdLevB_A1, Number(text, 63));
    }
  }
}

TEST(FactoryProfiles, OneLevelLeavesTheLevelSettingsAlone) {
  StarfoldProfile record;
  record.Starfold_StdLevels = 3;
  record.Starfold_StdLevDRad = 777;
  record.Starfold_StdLevHSca = 2.5F;
  record.Starfold_StdLevB_HS = 1;
  record.Starfold_StdLevB_A0 = 1;
  record.Starfold_StdLevB_A1 = 1;
  LoadFactoryProfile(record, Starfolds4x, 0);
  EXPECT_EQ(record.Starfold_StdLevels, 1);
  EXPECT_EQ(record.Starfold_StdLevDRad, 777);
  EXPECT_EQ(record.Starfold_StdLevHSca, 2.5F);
  EXPECT_EQ(record.Starfold_StdLevB_HS, 1);
  EXPECT_EQ(record.Starfold_StdLevB_A0, 1);
  EXPECT_EQ(record.Starfold_StdLevB_A1, 1);
}

TEST(FactoryProfiles, PointsAndAtomsDriveEachOtherOut) {
  StarfoldProfile record = Loaded(Starfolds4x, 43);
  EXPECT_EQ(record.Starfold_Atoms, 6);
  EXPECT_EQ(record.Starfold_IFS_Points, 0);
  LoadFactoryProfile(record, Starfolds4x, 39);
  EXPECT_EQ(record.Starfold_Atoms, 0);
  EXPECT_EQ(record.Starfold_IFS_Points, 5);
  LoadFactoryProfile(record, Starfolds4x, 43);
  EXPECT_EQ(record.Starfold_Atoms, 6);
  EXPECT_EQ(record.Starfold_IFS_Points, 0);
  LoadFactoryProfile(record, Starfolds4x, 0);
  EXPECT_EQ(record.Starfold_Atoms, 0);
  EXPECT_EQ(record.Starfold_IFS_Points, 0);
}

using IfsNumbers = std::vector<std::array<int, 7>>;

IfsNumbers PointsOf(const StarfoldProfile& p) {
  IfsNumbers points;
  for (int i = 0; i < p.Starfold_IFS_Points; ++i) {
    const IfsPoint& a = p.IFS.Points[static_cast<std::size_t>(i)];
    points.push_back(
        {a.IFS_LocX, a.IFS_LocY, a.IFS_LocZ, a.IFS_Scale, a.IFS_Axis, a.IFS_Angle, a.IFS_RelPct});
  }
  return points;
}

/// Element, structure, place, size, radius and the count that is derived.
using AtomNumbers = std::vector<std::array<int, 8>>;

AtomNumbers AtomsOf(const StarfoldProfile& p) {
  AtomNumbers atoms;
  for (int i = 0; i < p.Starfold_Atoms; ++i) {
    const AtomPoint& a = p.Atom.Atoms[static_cast<std::size_t>(i)];
    atoms.push_back({a.Atom_Element, a.Atom_Structure, a.Atom_LocX, a.Atom_LocY, a.Atom_LocZ,
                     a.Atom_Size, a.Atom_Radius, a.Atom_Count});
  }
  return atoms;
}

std::array<int, 3> IfsCenter(const StarfoldProfile& p) {
  return {p.IFS.IFS_CenterX, p.IFS.IFS_CenterY, p.IFS.IFS_CenterZ};
}

TEST(FactoryProfiles, AttractorPointsAreDecoded) {
  const StarfoldProfile station = Loaded(Starfolds4x, 39);
  EXPECT_THAT(IfsCenter(station), testing::ElementsAre(0, 500, 0));
  EXPECT_EQ(PointsOf(station), (IfsNumbers{{0, 1500, 0, 33, 0, 0, 4},
                                           {0, 0, 0, 50, 0, 90, 2},
                                           {0, 0, 0, 50, 0, 270, 2},
                                           {0, 0, 0, 50, 1, 90, 1},
                                           {0, 0, 0, 50, 1, 270, 1}}));
  const StarfoldProfile branches = Loaded(Starfolds4x, 40);
  EXPECT_THAT(IfsCenter(branches), testing::ElementsAre(200, 300, 300));
  EXPECT_EQ(PointsOf(branches), (IfsNumbers{{1000, 0, 0, 50, 0, 90, 1},
                                            {0, 1000, 0, 50, 1, 90, 1},
                                            {0, 0, 1000, 50, 2, 90, 1},
                                            {1000, 0, 0, 33, 0, 60, 1}}));
  const StarfoldProfile bird = Loaded(Starfolds4x, 41);
  EXPECT_THAT(IfsCenter(bird), testing::ElementsAre(0, 0, 750));
  EXPECT_EQ(PointsOf(bird), (IfsNumbers{{0, 0, 2000, 33, 0, 15, 6},
                                        {0, 0, 0, 50, 0, 90, 2},
                                        {0, 0, 0, 50, 0, 270, 2},
                                        {0, 0, 0, 50, 1, 90, 1},
                                        {0, 0, 0, 50, 1, 270, 1}}));
}

TEST(FactoryProfiles, AtomsAreDecodedAndCounted) {
  EXPECT_EQ(AtomsOf(Loaded(Starfolds4x, 42)), (AtomNumbers{{8, 8, 11, 0, 0, 1, 100, 1},
                                                           {6, 8, 7, 0, 0, 8, 100, 1},
                                                           {1, 8, 3, 0, 0, 15, 100, 1}}));
  EXPECT_EQ(AtomsOf(Loaded(Starfolds4x, 43)), (AtomNumbers{{8, 5, 0, 0, 0, 80, 750, 38},
                                                           {11, 5, 0, 0, 0, 40, 750, 38},
                                                           {16, 5, 0, 0, 0, 20, 750, 38},
                                                           {7, 4, 0, 0, 0, 40, 250, 26},
                                                           {6, 4, 0, 0, 0, 20, 250, 26},
                                                           {1, 4, 0, 0, 0, 10, 250, 26}}));
  EXPECT_EQ(AtomsOf(Loaded(Starfolds4x, 44)), (AtomNumbers{{16, 3, 0, 0, 0, 10, 100, 18},
                                                           {11, 3, 0, 0, 0, 20, 175, 18},
                                                           {8, 3, 0, 0, 0, 30, 250, 18},
                                                           {17, 4, 0, 0, 0, 75, 600, 26},
                                                           {1, 4, 0, 0, 0, 25, 600, 26},
                                                           {6, 5, 0, 0, 0, 30, 1100, 38},
                                                           {7, 5, 0, 0, 0, 20, 1175, 38},
                                                           {9, 5, 0, 0, 0, 10, 1250, 38}}));
}

TEST(FactoryProfiles, UndefinedOnesAreTheFirstWithoutItsWeight) {
  const StarfoldProfile first = Loaded(Starfolds20, 0);
  const std::set<std::string_view> nameAndWeight = {"_UniFoldName", "_UniFoldPct"};
  for (int row = 32; row < kProfileCount; ++row) {
    const StarfoldProfile record = Loaded(Starfolds20, row);
    EXPECT_EQ(record.UniFoldName, "Undefined") << row;
    EXPECT_EQ(record.UniFoldPct, 0) << row;
    EXPECT_EQ(Differences(first, record), nameAndWeight) << row;
  }
}

TEST(FactoryProfiles, BeyondTheTableNothingIsLoaded) {
  const StarfoldProfile before = Loaded(Starfolds4x, 43);
  for (const FactorySet set : kSets) {
    for (const int index : {-1, 50, 1000}) {
      EXPECT_EQ(FactoryProfileRow(set, index + 1), "");
      EXPECT_EQ(FactoryProfileName(index, set), "");
      EXPECT_EQ(FactoryProfilePct(index, set), 0);
      StarfoldProfile record = before;
      LoadFactoryProfile(record, set, index);
      EXPECT_THAT(Differences(before, record), testing::IsEmpty()) << index;
    }
    EXPECT_EQ(FactoryCompositeRow(set, 0), "");
    EXPECT_EQ(FactoryCompositeRow(set, 17), "");
  }
}

// Bodies whose stars drift away stay full only if enough new ones come.
TEST(FactoryProfiles, DriftingBodiesAreRefilled) {
  for (const FactorySet set : kSets) {
    for (int row = 0; row < kProfileCount; ++row) {
      const StarfoldProfile p = Loaded(set, row);
      const bool drifts = p.Style() == FoldStyle::Nebula || p.Style() == FoldStyle::Quasar ||
                          p.Style() == FoldStyle::Starwave;
      if (!drifts) continue;
      EXPECT_GE(p.Starfold_NewFreq, 1000) << Where(set, row);
    }
  }
}

// Black stars show only while they flare.
TEST(FactoryProfiles, DarkMatterSparkles) {
  constexpr Integer blackStars = 4;
  for (const FactorySet set : kSets) {
    for (int row = 0; row < kProfileCount; ++row) {
      const StarfoldProfile p = Loaded(set, row);
      if (p.Starfold_ColorComp != blackStars) continue;
      EXPECT_THAT(p.UniFoldName, HasSubstr("Dark Matter"));
      EXPECT_GE(p.Starfold_NewFreq * p.Starfold_NewFrames, 20000) << Where(set, row);
    }
  }
}

TEST(FactoryProfiles, ColoursThatANameRulesOutAreShutOff) {
  const StarfoldProfile redBlue = Loaded(Starfolds20, 6);
  EXPECT_EQ(redBlue.Starfold_HueGrn, 0);
  EXPECT_GT(std::min(redBlue.Starfold_HueRed, redBlue.Starfold_HueBlu), 0);
  const StarfoldProfile blueGreen = Loaded(Starfolds20, 7);
  EXPECT_EQ(blueGreen.Starfold_HueRed, 0);
  EXPECT_GT(std::min(blueGreen.Starfold_HueGrn, blueGreen.Starfold_HueBlu), 0);
  const StarfoldProfile ruby = Loaded(Starfolds20, 26);
  EXPECT_GT(ruby.Starfold_HueRed, 2 * std::max(ruby.Starfold_HueGrn, ruby.Starfold_HueBlu));
}

void ExpectGivenComposites(FactorySet set, const std::vector<GivenComposite>& given) {
  CompositeArray composites;
  LoadFactoryComposites(composites, set);
  ASSERT_EQ(given.size(), composites.size());
  for (std::size_t i = 0; i < given.size(); ++i) {
    const CompositeProfile& c = composites[i];
    EXPECT_EQ(c.CompFoldName, given[i].Name);
    EXPECT_EQ(c.CompFoldPct, given[i].Weight) << given[i].Name;
    EXPECT_EQ(c.CompFold_Count, static_cast<int>(given[i].Members.size())) << given[i].Name;
    const std::vector<int> members(c.CompFold_Type.begin(),
                                   c.CompFold_Type.begin() + c.MemberCount());
    EXPECT_EQ(members, given[i].Members) << given[i].Name;
  }
}

TEST(FactoryComposites, HaveTheGivenMembers) {
  ExpectGivenComposites(Starfolds4x, kGivenComposites4x);
  ExpectGivenComposites(Starfolds20, kGivenComposites20);
}

TEST(FactoryComposites, TheLastMemberNeedsNoCommaBehindIt) {
  const std::string_view row = FactoryCompositeRow(Starfolds20, 15);
  ASSERT_FALSE(row.ends_with(','));
  EXPECT_EQ(GetField(row, 7), "30");
}

TEST(FactorySets, LoadAllRecordsAtOnce) {
  for (const FactorySet set : kSets) {
    SettingsRecords records;
    LoadFactorySet(records, set);
    for (int i = 0; i < kProfileCount; ++i) {
      EXPECT_THAT(Differences(records.Profiles[static_cast<std::size_t>(i)], Loaded(set, i)),
                  testing::IsEmpty())
          << Where(set, i);
    }
    EXPECT_EQ(records.Composites.back().CompFoldName, GetField(FactoryCompositeRow(set, 16), 0));
  }
}

double ThemeValue(int theme, bool is20, std::string_view name) {
  UniverseSettings universe;
  LoadFactoryTheme(universe, theme, is20);
  return LenientNumber(FieldText(universe, *FindField(UniverseFields(), name)));
}

TEST(FactoryThemes, HaveTheGivenValues) {
  for (const GivenThemeSetting& setting : kGivenThemes) {
    ASSERT_NE(FindField(UniverseFields(), setting.Name), nullptr) << setting.Name;
    EXPECT_EQ(ThemeValue(1, true, setting.Name), setting.Values[0]) << setting.Name;
    for (int theme = 1; theme <= kThemeCount; ++theme) {
      EXPECT_EQ(ThemeValue(theme, false, setting.Name),
                setting.Values[static_cast<std::size_t>(theme)])
          << setting.Name << " of theme " << theme;
    }
  }
}

TEST(FactoryThemes, OnlyTheFirstHasAVariant) {
  EXPECT_NE(FactoryThemeRow(1, true), FactoryThemeRow(1, false));
  for (int theme = 2; theme <= kThemeCount; ++theme) {
    EXPECT_EQ(FactoryThemeRow(theme, true), FactoryThemeRow(theme, false)) << theme;
  }
}

TEST(FactoryThemes, ClearTheVisitListAndKeepTheRamp) {
  for (const bool is20 : {false, true}) {
    for (int theme = 1; theme <= kThemeCount; ++theme) {
      UniverseSettings universe;
      universe.Universe_GS_Idx = "3 4";
      universe.Universe_C_Ramp = 123;
      LoadFactoryTheme(universe, theme, is20);
      EXPECT_EQ(universe.Universe_GS_Idx, "") << theme;
      EXPECT_EQ(universe.Universe_C_Ramp, 123) << theme;
    }
  }
}

TEST(FactoryThemes, NoClampChangesThemButTheMissingBlast) {
  for (const bool is20 : {false, true}) {
    for (int theme = 1; theme <= kThemeCount; ++theme) {
      UniverseSettings universe;
      LoadFactoryTheme(universe, theme, is20);
      UniverseSettings clamped = universe;
      ClampUniverse(clamped);
      const auto changed = Differences(universe, clamped, UniverseFields());
      // The bodies of theme 4 stay in one place: no expansion, so no steps of it.
      const std::set<std::string_view> expected =
          theme == 4 ? std::set<std::string_view>{"Universe_ESteps"} : std::set<std::string_view>{};
      EXPECT_EQ(changed, expected) << theme;
    }
  }
}

TEST(FactoryThemes, BeyondTheListNothingIsLoaded) {
  for (const int theme : {-1, 0, 9}) {
    EXPECT_EQ(FactoryThemeRow(theme, true), "");
    UniverseSettings universe;
    universe.Universe_GS_Idx = "3 4";
    universe.Universe_Stars = 1234;
    LoadFactoryTheme(universe, theme, true);
    EXPECT_EQ(universe.Universe_GS_Idx, "3 4");
    EXPECT_EQ(universe.Universe_Stars, 1234);
  }
}

TEST(FactoryThemes, NamesFillTheListInOrder) {
  EXPECT_EQ(FactoryThemeName(-1), "");
  EXPECT_EQ(FactoryThemeName(0), "< NONE >");
  EXPECT_EQ(FactoryThemeName(1), "Classical (14.3 Billion Years Ago...)");
  EXPECT_EQ(FactoryThemeName(3), "Sparce Space:  Long Distance Trips");
  EXPECT_EQ(FactoryThemeName(8), "Starfolds in Motion:  Gravity On");
  EXPECT_EQ(FactoryThemeName(9), "");
}

}  // namespace
}  // namespace starfolds

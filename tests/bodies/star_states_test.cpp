// The states of stars are the same to the last bit in every build: with and without optimisation,
// with GCC and with clang. A compiler that keeps a Single in a wider register shows here first.
#include <gtest/gtest.h>

#include <bit>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

using scenes::BodyStage;

/// FNV-1a over the bits of what the frame loop stores of the stars.
std::uint64_t HashOf(const std::vector<StarState>& stars) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const StarState& star : stars) {
    for (const Single value : {star.StarX, star.StarY, star.StarZ, star.StarVX, star.StarVY,
                               star.StarVZ, star.StarSpinCos, star.StarSpinSin, star.StarHue}) {
      hash = (hash ^ std::bit_cast<std::uint32_t>(value)) * 0x100000001B3U;
    }
  }
  return hash;
}

void MakeRich(StarfoldProfile& profile, Integer style) {
  profile.Starfold_FoldStyle = style;
  profile.Starfold_ColorComp = FactsOf(style).OwnColorRule.value_or(Integer{3});
  profile.Starfold_RadSegs = 5;
  profile.Starfold_RadFill = 60;
  profile.Starfold_StdLevels = 3;
  profile.Starfold_AngleTInc = 0.7F;
  profile.Starfold_NewFreq = 3000;
  profile.Starfold_IFS_Points = 2;
  profile.IFS.Points[0] = {1200, 300, 40, 45, 1, 30, 3};
  profile.IFS.Points[1] = {100, 900, 1700, 60, 2, 75, 2};
  profile.Starfold_Atoms = 2;
  profile.Atom.Atoms[0] = {
      .Atom_LocX = 700, .Atom_Structure = 5, .Atom_Size = 90, .Atom_Radius = 500};
  profile.Atom.Atoms[1] = {
      .Atom_LocX = 4, .Atom_Structure = 10, .Atom_Size = 30, .Atom_Radius = 200};
}

TEST(StarStates, AreTheSameInEveryBuild) {
  constexpr std::uint64_t pinned[kStyleCount] = {
      15127723049588416046U, 14720938569555838660U, 6592438359559480472U,  250699348464268546U,
      8945764254010514977U,  18057175802505891555U, 11951692271114720059U, 16102546433614785230U,
      15357198844200834918U, 6175702373169033130U};
  for (Integer style = 0; style < kStyleCount; ++style) {
    BodyStage stage(640, 360, 500, 1,
                    [style](SettingsRecords& settings) { MakeRich(settings.Profiles[0], style); });
    for (int frame = 0; frame < 60; ++frame) stage.Step();
    EXPECT_EQ(HashOf(stage.Run->Stars.Star), pinned[style]) << FactsOf(style).Name;
  }
}

/// One thing at a time that the styles above do not show: the profile of `Style` is changed with
/// every number from `First` to `Last`, and the stars and the pixels of all these runs are pinned.
struct Variation {
  const char* Name;
  FoldStyle Style;
  Integer First, Last;
  void (*Change)(StarfoldProfile&, Integer);
  std::uint64_t Hash;
};

constexpr Variation kVariations[] = {
    {"figures of 6 to 10 corners, flattened", FoldStyle::IfsFractal, 6, 10,
     [](StarfoldProfile& profile, Integer n) {
       profile.Starfold_RadSegs = n;
       profile.Starfold_GHW_Ratio = 0.5F;
     },
     2754980906677991032U},
    {"points that turn about each axis", FoldStyle::UserIfs, 0, 3,
     [](StarfoldProfile& profile, Integer n) { profile.IFS.Points[0].IFS_Axis = n; },
     13214919160164177649U},
    {"points without a weight", FoldStyle::UserIfs, 0, 1,
     [](StarfoldProfile& profile, Integer n) {
       profile.IFS.Points[0].IFS_RelPct = 0;
       profile.IFS.Points[1].IFS_RelPct = n;
     },
     4859769721585788624U},
    {"a molecule without atoms and one of a single atom", FoldStyle::Molecule, 0, 1,
     [](StarfoldProfile& profile, Integer n) { profile.Starfold_Atoms = n; }, 4899504133222165899U},
    {"structures of atoms, lattices with clamped edges among them", FoldStyle::Molecule, 0, 11,
     [](StarfoldProfile& profile, Integer n) {
       profile.Atom.Atom_CenterX = 400;
       profile.Atom.Atoms[1].Atom_Structure = n;
       profile.Atom.Atoms[1].Atom_LocX = static_cast<Integer>(n % 2 == 0 ? 500 : 3);
     },
     16045936242732322446U},
    {"open and closed ribbons", FoldStyle::Nebula, 0, 1,
     [](StarfoldProfile& profile, Integer n) {
       profile.Starfold_CP_Close = n;
       profile.Starfold_CP_Points = 3;
     },
     9947794585236163817U},
    {"shapes of the disk", FoldStyle::Standard, 0, 6,
     [](StarfoldProfile& profile, Integer n) { profile.Starfold_Profile = n; },
     2248804275594751766U},
    {"rules of colour", FoldStyle::Standard, 0, 5,
     [](StarfoldProfile& profile, Integer n) { profile.Starfold_ColorComp = n; },
     2007515599580769964U},
    {"levels that tilt backward", FoldStyle::Standard, 352, 352,
     [](StarfoldProfile& profile, Integer n) {
       profile.Starfold_AngleTInc = n;
       profile.Starfold_StdLevB_A1 = profile.Starfold_StdLevB_A0 = 1;
     },
     276853345125379680U},
    {"an inner level of radius 0", FoldStyle::Standard, 2, 3,
     [](StarfoldProfile& profile, Integer n) {
       profile.Starfold_ColorComp = n;
       profile.Starfold_Radius = 300;
       profile.Starfold_StdLevDRad = -150;
     },
     7885538802102169728U},
    {"shapes of pulsars", FoldStyle::Standard, 0, 4,
     [](StarfoldProfile& profile, Integer n) {
       profile.Starfold_PulsarShape = n;
       profile.Starfold_PulsarFreq = 5000;
     },
     18164687582255938627U},
};

TEST(StarStates, OfTheseVariationsAreAsPinned) {
  for (const Variation& variation : kVariations) {
    std::uint64_t hash = 0;
    for (Integer n = variation.First; n <= variation.Last; ++n) {
      BodyStage stage(320, 180, 300, 1, [&](SettingsRecords& settings) {
        MakeRich(settings.Profiles[0], static_cast<Integer>(variation.Style));
        variation.Change(settings.Profiles[0], n);
      });
      for (int frame = 0; frame < 60; ++frame) stage.Step();
      hash = hash * 31 + (HashOf(stage.Run->Stars.Star) ^ stage.Canvas.Hash());
    }
    EXPECT_EQ(hash, variation.Hash) << variation.Name;
  }
}

}  // namespace
}  // namespace starfolds

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

}  // namespace
}  // namespace starfolds

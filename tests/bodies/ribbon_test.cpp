#include "bodies/ribbon.h"

#include <complex>

#include "one_body.h"

namespace starfolds {
namespace {

constexpr double kRadius = 3;

class Ribbon : public OneBody {
 protected:
  Ribbon() : OneBody(FoldStyle::Nebula) {
    Set().Starfold_Radius = 300;
    Set().Starfold_GHW_Ratio = 0.5F;
    Set().Starfold_Rotation = 0;
    Set().Starfold_CP_Points = 8;
  }

  RibbonSlot& Slot() { return Slots.Ribbon[0]; }
  void Morph(int frames = 1) {
    for (int i = 0; i < frames; ++i) MorphRibbon(Slot(), TheBody());
  }
  Point3 At(double place) { return RibbonPoint(Slot(), Set().Starfold_CP_Points, place); }
};

TEST_F(Ribbon, KeysAreDrawnPointByPointAndKeyByKey) {
  for (const bool closed : {true, false}) {
    Set().Starfold_CP_Close = closed;
    const std::size_t points = closed ? 8 : 11;  // an open ribbon has three more of its own
    std::vector<Single> draws;
    for (std::size_t n = 0; n < points * 4 * 3; ++n) draws.push_back(static_cast<Single>(n) / 256);
    Draws(draws);
    SetUpSlots();
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U) << closed;
    for (std::size_t i = 0; i < points; ++i) {
      const auto keyOf = [&](std::size_t key) {
        const auto draw = static_cast<Single>((i * 4 + key) * 3);
        return Point3{(draw / 256 - 0.5F) * 6, ((draw + 1) / 256 - 0.5F) * 3,
                      ((draw + 2) / 256 - 0.5F) * 6};
      };
      for (std::size_t k = 0; k < 4; ++k) ExpectPoint(Slot().RibbonKey[k][i], keyOf(k));
      // Successive keys differ alike, so their spline stands at the second of them.
      ExpectPoint(Slot().Ribbon[i], keyOf(1));
    }
  }
}

TEST_F(Ribbon, ALoopClosesAndAnOpenRibbonDoesNot) {
  for (const Integer points : {1, 3, 20}) {
    Set().Starfold_CP_Points = points;
    for (const Integer closed : {0, 1}) {
      Set().Starfold_CP_Close = closed;
      SetUpSlots();
      constexpr double step = 1e-3;
      // No coordinate of the curve moves faster than its points lie apart.
      const double nearby = 2 * kRadius * std::sqrt(3) * step;
      for (int i = 1; i < points; ++i) {
        EXPECT_LE(Distance(At(i - step), At(i)), nearby) << "knot " << i << " of " << points;
      }
      EXPECT_EQ(Distance(At(points - step), At(0)) <= nearby, closed != 0) << points;
      ExpectPoint(At(0.25 - points), At(0.25));
      ExpectPoint(At(0.25 + points), At(0.25));
    }
  }
}

TEST_F(Ribbon, WithoutMorphStepsTheRibbonOnlyTurns) {
  Set().Starfold_CP_Steps = 0;
  Set().Starfold_Rotation = 20000;
  for (const bool upright : {false, true}) {
    Set().Starfold_AxisPlane = upright;
    SetUpSlots();
    const RibbonSlot before = Slot();
    Morph(40);
    for (std::size_t i = 0; i < 11; ++i) {
      const Point3& p = before.Ribbon[i];
      const auto turned = std::complex<double>(upright ? p.Y : p.X, p.Z) * std::polar(1.0, 0.8);
      const auto first = static_cast<Single>(turned.real());
      const auto z = static_cast<Single>(turned.imag());
      ExpectPoint(Slot().Ribbon[i], upright ? Point3{p.X, first, z} : Point3{first, p.Y, z}, 1e-4);
    }
  }
}

TEST_F(Ribbon, AfterItsStepsEveryPointReachesTheNextKey) {
  Set().Starfold_CP_Steps = 4;
  SetUpSlots();
  const RibbonSlot before = Slot();
  Morph(3);
  ExpectPoint(Slot().RibbonKey[3][0], before.RibbonKey[3][0], 0);
  Morph();
  EXPECT_EQ(Slot().RibbonMorph, 0);
  for (std::size_t i = 0; i < 11; ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      ExpectPoint(Slot().RibbonKey[k][i], before.RibbonKey[k + 1][i], 0);
    }
    EXPECT_GT(Distance(Slot().RibbonKey[3][i], before.RibbonKey[3][i]), 0) << "drawn anew";
  }
}

TEST_F(Ribbon, TheBiasTravelsWithEachSeededStar) {
  Set().Starfold_CP_B_Exp = 0;
  Set().Starfold_CP_B_Spd = 15000;  // 1.5 points a star
  SetUpSlots();
  double phase = 0;
  for (int star = 0; star < 20; ++star) {
    phase = std::fmod(phase + 1.5, 8);
    const SeedPoint point = Seed();
    EXPECT_NEAR(point.Span, (4 + phase) / 8, 1e-5) << "the middle of the one band, and the phase";
    EXPECT_NEAR(point.RibbonPos, std::fmod(4 + phase, 8), 1e-4);
    ExpectPoint(PlaceOf(point), At(point.RibbonPos), 1e-4);
  }
}

TEST_F(Ribbon, StarsAreBlownOffAndExpandFromTheCore) {
  Set().Starfold_RadiusExp = 20;
  Set().Starfold_HeightExp = 5;
  SetUpSlots();
  for (int i = 0; i < 200; ++i) {
    const SeedPoint star = Seed();
    EXPECT_NEAR(
        Length(star.VX - star.X * 0.005, star.VY - star.Y * 0.005, star.VZ - star.Z * 0.005), 0.02,
        1e-6);
  }
}

TEST_F(Ribbon, ALaterSlotBeginsOnTheFirstOnesKeys) {
  Set().Starfold_CP_Steps = 0;
  SetUpSlots(2);
  const RibbonSlot& second = Slots.Ribbon[1];
  ExpectPoint(second.Ribbon[0], Slots.Ribbon[0].Ribbon[0], 0);
  StepNebulaRibbons(Process(), Slots, std::vector<Integer>(Slots.Ribbon.size()));
  EXPECT_GT(Distance(second.Ribbon[0], Slots.Ribbon[0].Ribbon[0]), 0) << "its own from now on";
}

}  // namespace
}  // namespace starfolds

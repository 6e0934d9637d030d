#include "bodies/ribbon.h"

#include <algorithm>
#include <complex>
#include <map>
#include <set>

#include "one_body.h"

namespace starfolds {
namespace {

constexpr double kRadius = 3;
constexpr double kRatio = 0.5;

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

bool InTheBox(const Point3& p) {
  const double rim = kRadius + 1e-5;
  return std::abs(p.X) <= rim && std::abs(p.Z) <= rim && std::abs(p.Y) <= rim * kRatio;
}

TEST_F(Ribbon, KeysAreDrawnPointByPointAndKeyByKey) {
  for (const bool closed : {true, false}) {
    Set().Starfold_CP_Close = closed;
    const int points = closed ? 8 : 11;  // an open ribbon has three more points of its own
    std::vector<Single> draws;
    for (int n = 0; n < points * 4 * 3; ++n) draws.push_back(static_cast<Single>(n) / 256);
    Draws(draws);
    SetUpSlots();
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U) << closed;
    for (int i = 0; i < points; ++i) {
      const auto place = static_cast<std::size_t>(i);
      const auto keyOf = [&](int key) {
        const int draw = (i * 4 + key) * 3;
        return Point3{static_cast<Single>((draw / 256.0 - 0.5) * 6),
                      static_cast<Single>(((draw + 1) / 256.0 - 0.5) * 3),
                      static_cast<Single>(((draw + 2) / 256.0 - 0.5) * 6)};
      };
      for (int k = 0; k < kRibbonKeys; ++k) {
        ExpectPoint(Slot().RibbonKey[static_cast<std::size_t>(k)][place], keyOf(k));
      }
      // Successive keys differ alike, so their spline stands at the second of them.
      ExpectPoint(Slot().Ribbon[place], keyOf(1));
    }
    for (std::size_t i = 8; closed && i < 11; ++i) {
      ExpectPoint(Slot().Ribbon[i], Slot().Ribbon[i - 8], 0);
    }
  }
}

TEST_F(Ribbon, KeysFillABoxOfTwiceTheRadius) {
  Set().Starfold_CP_Points = 20;
  double reach = 0;
  double height = 0;
  for (int i = 0; i < 50; ++i) {
    SetUpSlots();
    for (const auto& keys : Slot().RibbonKey) {
      for (const Point3& key : keys) {
        ASSERT_TRUE(InTheBox(key));
        reach = std::max({reach, std::abs(double{key.X}), std::abs(double{key.Z})});
        height = std::max(height, std::abs(double{key.Y}));
      }
    }
  }
  EXPECT_GT(reach, kRadius * 0.99);
  EXPECT_GT(height, kRadius * kRatio * 0.99);
}

TEST_F(Ribbon, StarsStayInTheBoxOfTheKeys) {
  Set().Starfold_CP_Steps = 7;
  Set().Starfold_CP_B_Spd = 999;
  for (const Integer closed : {0, 1}) {
    Set().Starfold_CP_Close = closed;
    SetUpSlots();
    for (int frame = 0; frame < 200; ++frame) {
      Morph();
      for (int i = 0; i < 20; ++i) ASSERT_TRUE(InTheBox(PlaceOf(Seed()))) << closed;
    }
  }
}

TEST_F(Ribbon, ALoopClosesAndAnOpenRibbonDoesNot) {
  for (const Integer points : {1, 2, 3, 8, 20}) {
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
      const double gap = Distance(At(points - step), At(0));
      if (closed) {
        EXPECT_LE(gap, nearby) << points;
        const Point3 before = At(points - step);
        const Point3 knot = At(0);
        const Point3 after = At(step);
        const Point3 middle{(before.X + after.X) / 2, (before.Y + after.Y) / 2,
                            (before.Z + after.Z) / 2};
        EXPECT_LE(Distance(middle, knot), nearby * 0.01) << "no kink, " << points;
      } else {
        EXPECT_GT(gap, nearby) << points;
      }
    }
  }
}

TEST_F(Ribbon, PlacesBeyondTheLoopComeRound) {
  SetUpSlots();
  for (const double place : {0.25, 3.5, 7.75}) {
    ExpectPoint(At(place - 8), At(place));
    ExpectPoint(At(place + 8), At(place));
  }
  Run().RibbonPhase = -1.5F;
  Set().Starfold_CP_B_Spd = 0;
  for (int i = 0; i < 200; ++i) {
    const SeedPoint star = Seed();
    ASSERT_GE(star.RibbonPos, 0);
    ASSERT_LT(star.RibbonPos, 8);
    ExpectPoint(PlaceOf(star), At(star.RibbonPos), 1e-4);
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
    EXPECT_EQ(Slot().RibbonMorph, 0);
    const auto turn = std::polar(1.0, 40 * 0.02);
    const auto turned = [&](const Point3& p) {
      const auto place = std::complex<double>(upright ? p.Y : p.X, p.Z) * turn;
      const auto first = static_cast<Single>(place.real());
      const auto z = static_cast<Single>(place.imag());
      return upright ? Point3{p.X, first, z} : Point3{first, p.Y, z};
    };
    for (std::size_t i = 0; i < 11; ++i) {
      ExpectPoint(Slot().Ribbon[i], turned(before.Ribbon[i]), 1e-4);
      for (std::size_t k = 0; k < 4; ++k) {
        ExpectPoint(Slot().RibbonKey[k][i], turned(before.RibbonKey[k][i]), 1e-4);
      }
    }
  }
}

TEST_F(Ribbon, AfterItsStepsEveryPointReachesTheNextKey) {
  Set().Starfold_CP_Steps = 4;
  SetUpSlots();
  const RibbonSlot before = Slot();
  Morph(3);
  EXPECT_EQ(Slot().RibbonMorph, 0.75F);
  EXPECT_EQ(Slot().RibbonKey[3][0].X, before.RibbonKey[3][0].X) << "not before";
  Morph();
  EXPECT_EQ(Slot().RibbonMorph, 0);
  std::set<Single> fresh;
  for (std::size_t i = 0; i < 11; ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      ExpectPoint(Slot().RibbonKey[k][i], before.RibbonKey[k + 1][i], 0);
    }
    EXPECT_TRUE(InTheBox(Slot().RibbonKey[3][i]));
    fresh.insert(Slot().RibbonKey[3][i].X);
  }
  EXPECT_EQ(fresh.size(), 11U) << "each point has a key of its own";
}

TEST_F(Ribbon, PointsPassTheirKeysSmoothly) {
  constexpr Integer steps = 100;
  Set().Starfold_CP_Steps = steps;
  SetUpSlots();
  std::array<Point3, 3> track{};
  for (int frame = 0; frame < 3 * steps; ++frame) {
    Morph();
    track = {track[1], track[2], Slot().Ribbon[5]};
    if (frame < 2) continue;
    const Point3 middle{(track[0].X + track[2].X) / 2, (track[0].Y + track[2].Y) / 2,
                        (track[0].Z + track[2].Z) / 2};
    // The spline's acceleration is at most four radii on an axis, per key squared.
    EXPECT_LE(Distance(middle, track[1]), 2 * kRadius * std::sqrt(3) / (steps * steps) + 1e-5)
        << "frame " << frame;
  }
}

TEST_F(Ribbon, ABiasExponentOfZeroShowsTheBiasPointsAlone) {
  constexpr int spots = 5;
  Set().Starfold_CP_B_Pts = spots;
  Set().Starfold_CP_B_Exp = 0;
  SetUpSlots();
  constexpr int stars = 10000;
  std::map<Single, int> hits;
  for (int i = 0; i < stars; ++i) {
    const SeedPoint star = Seed();
    ++hits[star.RibbonPos];
    ExpectPoint(PlaceOf(star), At(star.RibbonPos));
  }
  ASSERT_EQ(hits.size(), static_cast<std::size_t>(spots));
  int band = 0;
  for (const auto& [place, count] : hits) {
    EXPECT_NEAR(place, (band++ + 0.5) * 8 / spots, 1e-5);
    EXPECT_NEAR(count, stars / double{spots}, FiveSigma(stars, 1.0 / spots));
  }
}

TEST_F(Ribbon, TheExponentSpreadsStarsAboutTheBiasPoints) {
  constexpr int spots = 4;
  constexpr int stars = 20000;
  Set().Starfold_CP_B_Pts = spots;
  struct Case {
    Integer Exponent;
    double NearShare;  // of the stars within half of the half band: 1 - 0.5^(1/exponent)
  };
  for (const Case& c : {Case{50, 0.75}, Case{100, 0.5}, Case{200, 1 - std::sqrt(0.5)}}) {
    Set().Starfold_CP_B_Exp = c.Exponent;
    SetUpSlots();
    int near = 0;
    int before = 0;
    for (int i = 0; i < stars; ++i) {
      const double place = double{Seed().Span} * spots;
      const double offset = place - std::floor(place) - 0.5;
      near += std::abs(offset) < 0.25;
      before += offset < 0;
    }
    EXPECT_NEAR(near, stars * c.NearShare, FiveSigma(stars, c.NearShare)) << c.Exponent;
    EXPECT_NEAR(before, stars * 0.5, FiveSigma(stars, 0.5)) << c.Exponent;
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
  }
}

TEST_F(Ribbon, StarsAreBlownOffAndExpandFromTheCore) {
  struct Case {
    Single Wind, Expansion;
  };
  for (const Case& c : {Case{20, 0}, Case{0, 5}, Case{20, 5}}) {
    Set().Starfold_RadiusExp = c.Wind;
    Set().Starfold_HeightExp = c.Expansion;
    SetUpSlots();
    for (int i = 0; i < 200; ++i) {
      const SeedPoint star = Seed();
      const double outward = c.Expansion * 0.001;
      EXPECT_NEAR(Length(star.VX - star.X * outward, star.VY - star.Y * outward,
                         star.VZ - star.Z * outward),
                  c.Wind * 0.001, 1e-6);
    }
  }
}

TEST_F(Ribbon, HuesRunAlongTheRibbon) {
  Set().Starfold_ColorComp = 5;
  Set().Starfold_ColorMult = 1000;  // one turn of the wheel over the ribbon
  Set().Starfold_HueStart = 100;
  Set().Starfold_CP_B_Pts = 4;
  Set().Starfold_CP_B_Exp = 0;
  SetUpSlots();
  BuildHueWheels(Process());
  StarArrays stars(1, 1);
  std::set<long> hues;
  for (int i = 0; i < 100; ++i) {
    SeedStar(Process(), stars, Slots, 0);
    hues.insert(std::lround(stars.Star[0].StarHue));
  }
  EXPECT_EQ(hues, (std::set<long>{55, 145, 235, 325})) << "100 and each eighth, odd ones, of 360";
}

TEST_F(Ribbon, ALaterSlotBeginsOnTheFirstOnesKeys) {
  Set().Starfold_CP_Steps = 0;
  SetUpSlots(2);
  const RibbonSlot& first = Slots.Ribbon[0];
  const RibbonSlot& second = Slots.Ribbon[1];
  EXPECT_GT(Distance(first.RibbonKey[0][0], second.RibbonKey[0][0]), 0);
  for (std::size_t i = 0; i < 11; ++i) ExpectPoint(second.Ribbon[i], first.Ribbon[i], 0);
  StepNebulaRibbonsAlike(Process(), Slots, 0);
  for (std::size_t i = 0; i < 8; ++i) {
    const auto& key = second.RibbonKey;
    ExpectPoint(second.Ribbon[i], {(key[0][i].X + 4 * key[1][i].X + key[2][i].X) / 6,
                                   (key[0][i].Y + 4 * key[1][i].Y + key[2][i].Y) / 6,
                                   (key[0][i].Z + 4 * key[1][i].Z + key[2][i].Z) / 6});
  }
}

}  // namespace
}  // namespace starfolds

#include "prepared/prepared.h"

#include <cmath>
#include <cstdlib>

#include "numbers/conversions.h"
#include "numbers/elementary.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

/// Radians of a whole or broken number of degrees, by the Single circle constant.
double Radians(double degrees) { return degrees * kTwoPi / 360; }

/// One factor between 1 / magnitude and magnitude: most lie near 1 for exponents above 1, and
/// whether a property is multiplied or divided is a coin toss.
Single RandomFactor(Rnd& random, int magnitude, int exponent) {
  const double a = random();
  const Single b = random();
  const double v = 1 + Power(a, exponent) * (magnitude - 1);
  return static_cast<Single>(b < 0.5F ? v : 1 / v);
}

struct RandomFactors {
  Single Size = 1;
  Single Speed = 1;
};

RandomFactors DrawFactors(const AdvancedSettings& advanced, Rnd& random) {
  if (!advanced.Adv_Randomize) return {};
  const int magnitude = ClampTo<int>(advanced.Adv_RandomMag, 1, 100);
  const int exponent = ClampTo<int>(advanced.Adv_RandomExp, 1, 100);
  RandomFactors factors;
  factors.Size = RandomFactor(random, magnitude, exponent);
  factors.Speed = RandomFactor(random, magnitude, exponent);
  return factors;
}

void PrepareBody(PreparedProfile& run, const StarfoldProfile& profile, RandomFactors factors) {
  run.RunRadius = static_cast<Single>(profile.Starfold_Radius * 0.01 * factors.Size);
  run.RunDistance = static_cast<Single>(profile.Starfold_Distance * 0.01 * factors.Size);
  run.RunSpin = static_cast<Single>(profile.Starfold_Rotation * 1e-06 * factors.Speed);
  run.RunRadiusSq = run.RunRadius * run.RunRadius;
  run.RunRadiusTenth = static_cast<Single>(run.RunRadius * 0.01);
  run.RunSpin8 = run.RunSpin * 8;
  run.RunCoreSpin = static_cast<Single>(std::sqrt(1 / std::abs(run.RunRadius + 1e-09)) *
                                        kTwoPiWide * run.RunSpin);
  run.RunSegFill = static_cast<Single>(profile.Starfold_RadFill * 0.01);
  run.RunBandFill = static_cast<Single>(profile.Starfold_RadBFill * 0.01);
  run.RunSegAngle = kTwoPi / std::max<Integer>(profile.Starfold_RadSegs, 1);
  const double bandAngle = Radians(profile.Starfold_RadBands);
  run.RunBandCos = static_cast<Single>(Cosine(bandAngle));
  run.RunBandSin = static_cast<Single>(Sine(bandAngle));
  run.RunSpinCos = static_cast<Single>(Cosine(static_cast<double>(run.RunSpin)));
  run.RunSpinSin = static_cast<Single>(Sine(static_cast<double>(run.RunSpin)));
  run.RunSpin8Cos = static_cast<Single>(Cosine(static_cast<double>(run.RunSpin8)));
  run.RunSpin8Sin = static_cast<Single>(Sine(static_cast<double>(run.RunSpin8)));
}

void PrepareRates(PreparedProfile& run, const StarfoldProfile& profile, RandomFactors factors) {
  run.RunHeightExp = static_cast<Single>(profile.Starfold_HeightExp * 0.001);
  run.RunBiasExp = static_cast<Single>(profile.Starfold_CP_B_Exp * 0.01);
  run.RunBiasSpeed = static_cast<Single>(profile.Starfold_CP_B_Spd * 0.0001);
  run.RunColorTenth = static_cast<Single>(profile.Starfold_ColorMult * 0.1);
  run.RunColorThousandth = static_cast<Single>(profile.Starfold_ColorMult * 0.001);
  run.RunNewExt = static_cast<Single>(profile.Starfold_NewExtMult * 0.001);
  run.RunNovaChance = static_cast<Single>(profile.Starfold_NovaFreq * 0.0001);
  run.RunNovaExt = static_cast<Single>(profile.Starfold_NovaExtMult * 0.0001);
  run.RunPulsarChance = static_cast<Single>(profile.Starfold_PulsarFreq * 0.0001);
  run.RunPulsarDepth = static_cast<Single>(profile.Starfold_PulsarDepth * 0.001);
  run.RunCometChance = static_cast<Single>(profile.Starfold_CometFreq * 0.0001);
  run.RunCometOrbit = static_cast<Single>(profile.Starfold_CometOrbit * 1e-05 * factors.Speed);
  run.RunCometSpeed = static_cast<Single>(profile.Starfold_CometSpeed * 1e-05);
  run.RunCometWind = static_cast<Single>(profile.Starfold_CometSWind * 1e-05);
  run.RunHwcStart = profile.Starfold_HWC_Start;
  run.RunHwcEnd = profile.Starfold_HWC_End;
  run.RunHwcAcc = 0;
  run.RibbonPhase = 0;
}

bool StyleCyclesHues(const StarfoldProfile& profile) {
  switch (FactsOf(profile.Style()).Hues) {
    case HueCycling::Always: return true;
    case HueCycling::IfNebulaAdvances: return profile.Starfold_CP_AdvHW > 0;
    case HueCycling::Never: break;
  }
  return false;
}

void PrepareMotion(PreparedProfile& run, const StarfoldProfile& profile) {
  StarMotion& star = run.Star;
  const StyleFacts& style = FactsOf(profile.Style());
  star.RunMotion = style.RunMotion;
  star.AxisPlane = profile.Starfold_AxisPlane != 0;
  star.HueCycleOn = profile.Starfold_ColorComp != 4 && StyleCyclesHues(profile);
  star.HWheelInc = profile.Starfold_HWheelInc;
  star.RunForce = static_cast<Single>(profile.Starfold_QG_Force * style.ForceUnit);
  AssignRounded(star.WaveDecay, profile.Starfold_RadBFill);
  star.WaveAmplitude = static_cast<Single>(static_cast<double>(profile.Starfold_GHW_Ratio) *
                                           profile.Starfold_Radius * 0.01);
  star.WavePhaseStep = static_cast<Single>(Radians(profile.Starfold_RadiusExp));
}

/// The tilt step of one level. With taper it falls off toward the outer levels; a step above half a
/// turn is read as a backward turn and falls off the same way.
double TiltStep(const StarfoldProfile& profile, int level, int levels) {
  const double a = Radians(profile.Starfold_AngleTInc);
  double step = a;
  if (profile.Starfold_StdLevB_A1 != 0) {
    const double taper = static_cast<double>(levels - level) / levels;
    step = a <= kPi ? a * taper : kTwoPiWide - (kTwoPi - a) * taper;
  }
  const bool backward = profile.Starfold_StdLevB_A0 != 0 && level % 2 == 1;
  return backward ? -step : step;
}

void PrepareLevels(PreparedProfile& run, StarfoldProfile& profile) {
  const bool nested = FactsOf(profile.Style()).NestedLevels;
  run.RunLevels = nested ? ClampTo<Integer>(profile.Starfold_StdLevels, 1, kMaxLevels) : Integer{1};
  profile.Starfold_StdLevels = run.RunLevels;
  run.RunLevelStep = static_cast<Single>(profile.Starfold_StdLevDRad * 0.01);
  run.RunMaxRadius = static_cast<Single>(
      (run.RunLevels - 1) * static_cast<double>(run.RunLevelStep) + run.RunRadius);
  run.RunTilt = static_cast<Single>(Radians(-profile.Starfold_AngleTilt));
  for (int i = 0; i < run.RunLevels; ++i) {
    run.LevelTiltStep[i] = static_cast<Single>(TiltStep(profile, i, run.RunLevels));
  }
}

/// Distances in user-defined records are hundredths of a tenth of the radius, from their centre.
Single RecordLength(Integer place, Integer centre, double tenth) {
  return static_cast<Single>((place * 0.01 - centre * 0.01) * tenth);
}

void PrepareIfs(PreparedProfile& run, const StarfoldProfile& profile) {
  const double tenth = run.RunRadius * 0.1;
  const IfsRecord& record = profile.IFS;
  Long sum = 0;
  for (int i = 0; i < ClampTo<int>(profile.Starfold_IFS_Points, 0, kMaxIfsPoints); ++i) {
    const IfsPoint& point = record.Points[i];
    RunIfsPoint& prepared = run.RunIfs[i];
    prepared.X = RecordLength(point.IFS_LocX, record.IFS_CenterX, tenth);
    prepared.Y = RecordLength(point.IFS_LocY, record.IFS_CenterY, tenth);
    prepared.Z = RecordLength(point.IFS_LocZ, record.IFS_CenterZ, tenth);
    prepared.Scale = static_cast<Single>(point.IFS_Scale * 0.01);
    prepared.Cos = static_cast<Single>(Cosine(Radians(point.IFS_Angle)));
    prepared.Sin = static_cast<Single>(Sine(Radians(point.IFS_Angle)));
    sum += std::max<Integer>(point.IFS_RelPct, 0);
    prepared.Sum = sum;
  }
}

// Coordinates of the points of an atom's structure, for a symmetry radius of 1. They are six-digit
// constants, and the pictures depend on them.
constexpr double kCubeCorner = 0.594603;  // near the corner of a cube, a bit outside of the sphere
constexpr double kEdgeMiddle = 0.707106;  // 1 / sqrt(2), between two axes
constexpr double kSineOf60 = 0.866025;    // sqrt(3) / 2, the sine of a sixth of a turn

void PrepareAtoms(PreparedProfile& run, const StarfoldProfile& profile) {
  const double tenth = run.RunRadius * 0.1;
  const AtomRecord& record = profile.Atom;
  Long sum = 0;
  for (int i = 0; i < ClampTo<int>(profile.Starfold_Atoms, 0, kMaxAtoms); ++i) {
    const AtomPoint& atom = record.Atoms[i];
    RunAtom& prepared = run.RunAtoms[i];
    prepared.X = RecordLength(atom.Atom_LocX, record.Atom_CenterX, tenth);
    prepared.Y = RecordLength(atom.Atom_LocY, record.Atom_CenterY, tenth);
    prepared.Z = RecordLength(atom.Atom_LocZ, record.Atom_CenterZ, tenth);
    prepared.Offset = static_cast<Single>(atom.Atom_Size * 0.01 * tenth);
    const double radius = atom.Atom_Radius * 0.01 * tenth;
    prepared.Radius = static_cast<Single>(radius);
    prepared.RadiusHalf = static_cast<Single>(radius * 0.5);
    prepared.RadiusCube = static_cast<Single>(radius * kCubeCorner);
    prepared.RadiusEdge = static_cast<Single>(radius * kEdgeMiddle);
    prepared.RadiusThird = static_cast<Single>(radius * kSineOf60);
    prepared.RunAtomStars = AtomPoints(atom.Atom_Structure);
    sum += prepared.RunAtomStars;
    prepared.Sum = sum;
  }
}

/// Sets the angle of one level, in radians.
void SetLevelTilt(PreparedProfile& run, int level, Single angle) {
  StarMotion& star = run.Star;
  run.LevelTilt[level] = angle;
  star.LevelCos[level] = static_cast<Single>(Cosine(static_cast<double>(angle)));
  star.LevelSin[level] = static_cast<Single>(Sine(static_cast<double>(angle)));
}

/// Takes whole turns off an angle that has run past one.
Single WithinTurn(double angle) {
  return static_cast<Single>(angle > kTwoPi ? angle - kTwoPi : angle);
}

}  // namespace

PreparedUniverse PrepareUniverse(const UniverseSettings& universe) {
  const Integer mostTrail =
      kMostTrailPlaces / ClampTo<Integer>(universe.Universe_Stars, 1, kMostTrailPlaces);
  return {
      .RunTrail = ClampTo<Integer>(universe.Universe_STrail, 1, mostTrail),
      .RunExpand = static_cast<Single>(universe.Universe_Expand * 0.001),
      .RunDamping =
          static_cast<Single>((1 - static_cast<double>(universe.Universe_Damping)) * 0.5 + 0.5),
      .RunNewShare = static_cast<Single>(universe.Universe_NewPctStEx * 0.01),
      .RunDstCen = static_cast<Single>(universe.Universe_DstCen * 0.01),
      .RunAmMaxExt = static_cast<Single>(universe.Universe_AmMaxExt * 0.01),
      .RunGravForce = static_cast<Single>(universe.Universe_GravForce * 1e-07),
  };
}

void PrepareProfiles(PreparedArray& prepared, ProfileArray& profiles,
                     const AdvancedSettings& advanced, Rnd& random) {
  for (int p = 0; p < kProfileCount; ++p) {
    StarfoldProfile& profile = profiles[p];
    PreparedProfile& run = prepared[p];
    const RandomFactors factors = DrawFactors(advanced, random);
    PrepareBody(run, profile, factors);
    PrepareRates(run, profile, factors);
    PrepareMotion(run, profile);
    PrepareLevels(run, profile);
    PrepareIfs(run, profile);
    PrepareAtoms(run, profile);
  }
}

void SumMembers(MemberSums& sums, const CompositeArray& composites, const PreparedArray& prepared) {
  for (int k = 0; k < kCompositeCount; ++k) {
    Integer sum = 0;
    for (int i = 0; i < composites[k].MemberCount(); ++i) {
      const int member = ClampTo<int>(composites[k].CompFold_Type[i], 0, kProfileCount - 1);
      sum = static_cast<Integer>(sum + prepared[member].RunLevels);
      sums[k][i] = sum;
    }
  }
}

void ResetAngles(PreparedProfile& run, const StarfoldProfile& profile) {
  for (int level = 0; level < run.RunLevels; ++level) SetLevelTilt(run, level, -run.RunTilt);
  run.SpinPhase = 0;
  run.SweepPhase = 0;
  run.SweepCos = 1;
  run.SweepSin = 0;
  run.HueWheel = profile.Starfold_HueStart;
}

void AdvanceAngles(PreparedArray& prepared) {
  for (PreparedProfile& run : prepared) {
    for (int level = 0; level < run.RunLevels; ++level) {
      const double step = run.LevelTiltStep[level];
      if (step == 0) continue;  // a body that does not tumble keeps its cosine and sine
      SetLevelTilt(run, level, WithinTurn(run.LevelTilt[level] + step));
    }
    const double hue = static_cast<double>(run.HueWheel) + run.Star.HWheelInc;
    run.HueWheel = static_cast<Single>(hue >= 360 ? hue - 360 : hue);
    run.SpinPhase = WithinTurn(static_cast<double>(run.SpinPhase) + run.RunCoreSpin);
    if (run.RunSpin8 == 0) continue;  // nor does a body that does not turn sweep
    run.SweepPhase = WithinTurn(static_cast<double>(run.SweepPhase) + run.RunSpin8);
    run.SweepCos = static_cast<Single>(Cosine(static_cast<double>(run.SweepPhase)));
    run.SweepSin = static_cast<Single>(Sine(static_cast<double>(run.SweepPhase)));
  }
}

}  // namespace starfolds

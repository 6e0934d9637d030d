// The prepared values of a profile: what a run reads in place of the settings, so that no routine
// of a frame converts a unit. `PrepareProfiles` derives them once per run; a few of them are the
// running state of the profile (tilts, phases, the hue wheel) and move with the frames.
#pragma once

#include <array>

#include "settings/records.h"
#include "settings/styles.h"

namespace starfolds {

/// What the star loop reads for every star, kept together in two cache lines.
struct alignas(64) StarMotion {
  Motion RunMotion = Motion::Rotate;
  bool AxisPlane = false;  // `Starfold_AxisPlane` is not 0: the body's X axis runs up the screen
  bool HueCycleOn = false;
  Integer WaveDecay = 0;  // frames until a wave has half its height
  Single HWheelInc = 0;   // degrees per frame
  Single RunForce = 0;
  Single WaveAmplitude = 0;
  Single WavePhaseStep = 0;  // radians per frame
  std::array<Single, kMaxLevels> LevelCos{};
  std::array<Single, kMaxLevels> LevelSin{};
};
static_assert(sizeof(StarMotion) <= 128);

/// A user-defined attractor point, in the run's units.
struct RunIfsPoint {
  Single X = 0, Y = 0, Z = 0;
  Single Scale = 0;  // fraction of the way to the point
  Single Cos = 1, Sin = 0;
  Long Sum = 0;  // running sum of the weights
};

/// An atom, in the run's units.
struct RunAtom {
  Single X = 0, Y = 0, Z = 0;
  Single Offset = 0;  // radius of the random cloud about each point
  Single Radius = 0;  // distance between points, or of a shell
  Single RadiusHalf = 0, RadiusCube = 0, RadiusEdge = 0, RadiusThird = 0;  // shell coordinates
  Integer RunAtomStars = 1;
  Long Sum = 0;  // running sum of RunAtomStars
};

struct PreparedProfile {
  StarMotion Star;

  // Lengths are settings * 0.01; angles are radians.
  Single RunRadius = 0;
  Single RunDistance = 0;
  Single RunRadiusSq = 0;
  Single RunRadiusTenth = 0;
  Single RunMaxRadius = 0;
  Single RunSpin = 0;
  Single RunSpin8 = 0;
  Single RunCoreSpin = 0;
  Single RunSegFill = 0;
  Single RunBandFill = 0;
  Single RunSegAngle = 0;
  Single RunBandCos = 1, RunBandSin = 0;
  Single RunSpinCos = 1, RunSpinSin = 0;
  Single RunSpin8Cos = 1, RunSpin8Sin = 0;
  Single RunHeightExp = 0;
  Single RunBiasExp = 0;
  Single RunBiasSpeed = 0;
  Single RunColorTenth = 0;
  Single RunColorThousandth = 0;
  Single RunNewExt = 0;
  Single RunNovaChance = 0;
  Single RunNovaExt = 0;
  Single RunPulsarChance = 0;
  Single RunPulsarDepth = 0;
  Single RunCometChance = 0;
  Single RunCometOrbit = 0;
  Single RunCometSpeed = 0;
  Single RunCometWind = 0;
  Integer RunLevels = 1;
  Single RunLevelStep = 0;
  Single RunTilt = 0;
  std::array<Single, kMaxLevels> LevelTiltStep{};
  std::array<RunIfsPoint, kMaxIfsPoints> RunIfs;
  std::array<RunAtom, kMaxAtoms> RunAtoms;

  // Running state.
  std::array<Single, kMaxLevels> LevelTilt{};
  Single SpinPhase = 0;
  Single SweepPhase = 0;
  Single SweepCos = 1, SweepSin = 0;
  Single HueWheel = 0;  // degrees; where a newly seeded star finds the wheel's start
  Single RibbonPhase = 0;
  Integer IfsVertexCount = 1;
  Integer RunHwcStart = 0, RunHwcEnd = 0;
  Single RunHwcAcc = 0;
};

using PreparedArray = std::array<PreparedProfile, kProfileCount>;

/// Per composite, the running sum of its members' `RunLevels`, in member order.
using MemberSums = std::array<std::array<Integer, kMaxMembers>, kCompositeCount>;

struct Saver;

/// Derives all prepared values of all profiles and composites, with their randomisation. To be
/// called after the settings are in the records and before any star is seeded. Writes `RunLevels`
/// over `Starfold_StdLevels` of the records in memory.
void PrepareProfiles(Saver& saver);

/// Steps tilts, hue wheels and phases of all profiles by one frame.
void AdvanceAngles(Saver& saver);

/// Sets tilts and phases of one profile back to where a run begins.
void ResetAngles(PreparedProfile& run, const StarfoldProfile& profile);

}  // namespace starfolds

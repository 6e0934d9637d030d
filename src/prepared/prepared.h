// The prepared values of a profile: what a run reads in place of the settings, so that no routine
// of a frame converts a unit. `PrepareProfiles` derives them once per run; a few of them are the
// running state of the profile (tilts, phases, the hue wheel) and move with the frames.
#pragma once

#include <array>

#include "numbers/rnd.h"
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
  Single RadiusHalf = 0, RadiusCube = 0, RadiusEdge = 0, RadiusThird = 0;  // coordinates on a shell
  Integer RunAtomStars = 1;
  Long Sum = 0;  // running sum of RunAtomStars
};

/// Lengths are hundredths of the settings' units (`Starfold_Radius` 300 is a `RunRadius` of 3);
/// angles are radians; speeds and chances are per frame.
struct PreparedProfile {
  StarMotion Star;

  Single RunRadius = 0;
  Single RunDistance = 0;  // from the eye, at the nearest point of a visit's approach
  Single RunRadiusSq = 0;
  Single RunRadiusTenth = 0;  // RunRadius * 0.01 (a hundredth, whatever its name says)
  Single RunMaxRadius = 0;    // of the outermost level; may be 0 or below
  Single RunSpin = 0;         // rotation of a star at radius (2 pi)^2
  Single RunSpin8 = 0;        // rotation of a rigid body: 8 * RunSpin
  Single RunCoreSpin = 0;     // rotation at the rim, by which `SpinPhase` advances
  Single RunSegFill = 0;      // filled share of an arm, 0 to 1; scale factor of the IFS styles
  Single RunBandFill = 0;     // filled share of a band, 0 to 1
  Single RunSegAngle = 0;     // of one arm
  Single RunBandCos = 1, RunBandSin = 0;    // of `Starfold_RadBands` degrees
  Single RunSpinCos = 1, RunSpinSin = 0;    // of RunSpin
  Single RunSpin8Cos = 1, RunSpin8Sin = 0;  // of RunSpin8
  Single RunHeightExp = 0;                  // `Starfold_HeightExp` * 0.001: wind of a Nebula
  Single RunBiasExp = 0;                    // 0 to 1
  Single RunBiasSpeed = 0;                  // in control points
  Single RunColorTenth = 0;                 // `Starfold_ColorMult` * 0.1
  Single RunColorThousandth = 0;            // `Starfold_ColorMult` * 0.001
  Single RunNewExt = 0;                     // extent of a new star, `Starfold_NewExtMult` * 0.001
  Single RunNovaChance = 0;                 // of a seeded star, 0 to 1
  Single RunNovaExt = 0;                    // `Starfold_NovaExtMult` * 0.0001
  Single RunPulsarChance = 0;               // of a seeded star, 0 to 1
  Single RunPulsarDepth = 0;                // spread of the slices, `Starfold_PulsarDepth` * 0.001
  Single RunCometChance = 0;                // 0 to 1
  Single RunCometOrbit = 0;  // rotation at radius (2 pi)^2; of a Nebula in control points
  Single RunCometSpeed = 0;  // of the stars away from the nucleus
  Single RunCometWind = 0;   // of the stars away from the core
  Integer RunLevels = 1;
  Single RunLevelStep = 0;  // from one level's radius to the next
  Single RunTilt = 0;       // the negated first tilt
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

/// The largest product of a run's star count and its trail length, so that the index of a trail
/// place fits an Integer.
inline constexpr Integer kMostTrailPlaces = 30000;

/// The settings of the universe in the run's units; a frame reads these and not the settings.
struct PreparedUniverse {
  Integer RunTrail = 1;     // pixels that a star leaves, itself among them
  Single RunExpand = 0;     // lengths that the blast grows by in its first frame
  Single RunDamping = 0;    // factor of all speeds per frame of the blast
  Single RunNewShare = 0;   // of the re-seeded stars that go to the visited starfold, 0 to 1
  Single RunDstCen = 0;     // of the viewpoint from the centre, a length
  Single RunAmMaxExt = 0;   // extent of an ambient star's flash
  Single RunGravForce = 0;  // pull at distance 1 per frame; 0: no gravity
};

/// Derives the prepared values from settings within their ranges. A trail for which there is no
/// room is shortened.
PreparedUniverse PrepareUniverse(const UniverseSettings& universe);

using PreparedArray = std::array<PreparedProfile, kProfileCount>;

/// Per composite, the running sum of its members' `RunLevels`, in member order.
using MemberSums = std::array<std::array<Integer, kMaxMembers>, kCompositeCount>;

/// Derives all prepared values of all profiles, varied at random as `advanced` says (four draws a
/// profile if it does). To be called before any star is seeded. Writes `RunLevels` over
/// `Starfold_StdLevels` of the records in memory.
void PrepareProfiles(PreparedArray& prepared, ProfileArray& profiles,
                     const AdvancedSettings& advanced, Rnd& random);

/// Sums the levels of the composites' members. To be called after `PrepareProfiles`.
void SumMembers(MemberSums& sums, const CompositeArray& composites, const PreparedArray& prepared);

/// Steps tilts, hue wheels and phases of all profiles by one frame.
void AdvanceAngles(PreparedArray& prepared);

/// Sets tilts and phases of one profile back to where a run begins.
void ResetAngles(PreparedProfile& run, const StarfoldProfile& profile);

}  // namespace starfolds

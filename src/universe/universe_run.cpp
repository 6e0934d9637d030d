#include "universe/universe_run.h"

#include <algorithm>

#include "bodies/comets.h"
#include "bodies/star_step.h"
#include "process/prepare_run.h"
#include "universe/ambient.h"
#include "universe/camera_path.h"
#include "universe/creation.h"
#include "universe/gravity.h"
#include "universe/pacing.h"

namespace starfolds {
namespace {

/// The state of one run, from the clamps to its end.
struct UniverseTour {
  UniverseScene Scene;
  TourWindow Window = {};
  TourPlace Place = {};
  TourPoint Eye = {};
  Integer VisitCount = 0;
  Integer VisitProf = 0;
  Integer CometProf = 0;
  Integer GravTick = 0;

  ProcessState& Process() { return Scene.Process; }
  FrameScene Frame() { return {Scene.Process, Scene.Arrays}; }
};

Integer NextTourProfile(ProcessState& process, Integer former) {
  const Integer choice = process.Universe.Universe_Profile;
  if (choice < kCycleRandomly) return choice;
  if (choice == kCycleRandomly) {
    return static_cast<Integer>(DrawBelow(process.Random, kProfileCount));
  }
  return static_cast<Integer>((former + 1) % kProfileCount);
}

TourPoint Viewpoint(const ProcessState& process) { return {0, 0, -process.RunUniverse.RunDstCen}; }

TourPoint FoldPlace(const StarfoldArrays& folds, Integer i) {
  const auto fold = static_cast<std::size_t>(i);
  return {folds.StarfoldX[fold], folds.StarfoldY[fold], folds.StarfoldZ[fold]};
}

void StepGravityOfFrame(UniverseTour& tour) {
  const ProcessState& process = tour.Process();
  const Single force = process.RunUniverse.RunGravForce;
  if (!(force > 0)) return;
  tour.GravTick = static_cast<Integer>((tour.GravTick + 1) % process.Universe.Universe_GravFrame);
  StepGravity(tour.Scene.Arrays.Folds, force, tour.GravTick == 0);
}

void PlaceStarfoldsToEye(StarfoldArrays& folds, const TourPoint& eye) {
  for (std::size_t i = 0; i < folds.StarfoldRel.size(); ++i) {
    folds.StarfoldRel[i] = {folds.StarfoldX[i] - eye.X, folds.StarfoldY[i] - eye.Y,
                            folds.StarfoldZ[i] - eye.Z};
  }
}

void StepAmbientOfFrame(UniverseTour& tour) {
  UniverseScene& scene = tour.Scene;
  StepAmbientStars({scene.Process, scene.Arrays.Ambient, scene.Shape}, tour.Eye,
                   scene.Growth.ExpandTotal, scene.Growth.ExpandStep, AmbientMode::Finished,
                   scene.TourProfile);
}

/// One frame of a visit. False: the run must end.
bool TourFrame(UniverseTour& tour) {
  ProcessState& process = tour.Process();
  RunArrays& run = tour.Scene.Arrays;
  tour.Eye = BSplinePoint(tour.Window, tour.Place.SplineT);
  StampFrame(process);
  if (!process.Universe.Universe_Tour) tour.Eye = Viewpoint(process);
  StepGravityOfFrame(tour);
  PlaceStarfoldsToEye(run.Folds, tour.Eye);
  AdvanceAngles(process.Prepared);
  StarStep(tour.Frame(), tour.Place);
  StepAmbientOfFrame(tour);
  StepNebulaRibbons(process, run.Slots, run.Folds.StarfoldProf);
  return !process.Requests.TakeNewRun() && !FramePaceAhead(process);
}

/// One frame of the pull-out. It is not stamped, so it waits for the screen and not for the frame's
/// delay, and neither gravity nor ribbons nor `NewRun` are looked at.
bool PullOutFrame(UniverseTour& tour) {
  ProcessState& process = tour.Process();
  tour.Eye = BSplinePoint(tour.Window, tour.Place.SplineT);
  PlaceStarfoldsToEye(tour.Scene.Arrays.Folds, tour.Eye);
  AdvanceAngles(process.Prepared);
  StarStep(tour.Frame(), tour.Place);
  StepAmbientOfFrame(tour);
  return !FramePace(process);
}

/// The frames of one control step.
template <class FrameRoutine>
bool ControlStep(UniverseTour& tour, FrameRoutine frame) {
  const Integer steps = tour.Process().Universe.Universe_GSteps;
  const Single step = Single{1} / steps;
  tour.Place.SplineT = 0;
  for (int i = 0; i < steps; ++i) {
    if (!frame(tour)) return false;
    tour.Place.SplineT += step;
  }
  return true;
}

bool VisitStarfold(UniverseTour& tour, Integer visit) {
  ProcessState& process = tour.Process();
  const StarfoldArrays& folds = tour.Scene.Arrays.Folds;
  const int approach = process.Universe.Universe_GPCtrl;
  const int closeIn = process.Universe.Universe_GCCtrl;
  tour.Place.VisitIdx = visit;
  tour.VisitProf = ResolveProfile(process, folds.StarfoldProf[static_cast<std::size_t>(visit)]);
  for (int segment = 1; segment <= approach + closeIn; ++segment) {
    tour.Place.SegIdx = static_cast<Integer>(segment);
    tour.Window.Append(VisitPoint(FoldPlace(folds, visit),
                                  process.Prepared[tour.VisitProf].RunDistance, segment, approach,
                                  closeIn));
    if (segment == 2) {
      tour.CometProf = tour.VisitProf;
      ResetComets(process, tour.Scene.Arrays.Comets, visit, tour.VisitProf);
    }
    tour.Place.CometProf = tour.CometProf;
    if (!ControlStep(tour, TourFrame)) return false;
  }
  return true;
}

bool PullOut(UniverseTour& tour) {
  ProcessState& process = tour.Process();
  const int steps = process.Universe.Universe_GPCtrl;
  if (!process.Universe.Universe_Tour) tour.Window.Fill(Viewpoint(process));
  tour.Place.TourOn = false;
  tour.Place.VisitIdx = tour.VisitCount;
  for (int k = 1; k <= steps; ++k) {
    tour.Window.Append(PullOutPoint(tour.Scene.Growth.ExpandTotal, k, steps));
    if (!ControlStep(tour, PullOutFrame)) return false;
  }
  return true;
}

bool Create(UniverseTour& tour) {
  ProcessState& process = tour.Process();
  tour.Scene.TourProfile = NextTourProfile(process, tour.Scene.TourProfile);
  tour.Scene.Arrays.TrailHead = 0;
  tour.Scene.Growth = {process.RunUniverse.RunExpand, 0};
  for (int p = 0; p < kProfileCount; ++p) {
    process.Prepared[p].HueWheel = process.Profiles[p].Starfold_HueStart;
  }
  CreateUniverse(tour.Scene);
  return !process.Requests.StopRun() && !process.Requests.TakeNewRun();
}

bool VisitAll(UniverseTour& tour) {
  StarfoldArrays& folds = tour.Scene.Arrays.Folds;
  std::fill(folds.StarfoldVX.begin(), folds.StarfoldVX.end(), Single{0});
  std::fill(folds.StarfoldVY.begin(), folds.StarfoldVY.end(), Single{0});
  std::fill(folds.StarfoldVZ.begin(), folds.StarfoldVZ.end(), Single{0});
  tour.Window.Fill(Viewpoint(tour.Process()));
  tour.Place.TourOn = true;
  for (Integer visit = 0; visit < tour.VisitCount; ++visit) {
    if (!VisitStarfold(tour, visit)) return false;
  }
  return true;
}

void ClearAway(UniverseTour& tour) {
  ResetComets(tour.Process(), tour.Scene.Arrays.Comets, tour.VisitCount, tour.VisitProf);
  tour.Process().Screen.hDCDraw->Clear();
}

Integer VisitsOf(const UniverseSettings& universe) {
  return std::min(universe.Universe_Starfold, universe.Universe_Recycle);
}

}  // namespace

std::int64_t FramesOfUniverse(UniverseSettings universe) {
  ClampUniverse(universe);
  const std::int64_t approach = universe.Universe_GPCtrl;
  const std::int64_t visit = approach + universe.Universe_GCCtrl;
  return universe.Universe_ESteps +
         (VisitsOf(universe) * visit + approach) * universe.Universe_GSteps;
}

void UniverseRun(ProcessState& process) {
  ClampUniverse(process.Universe);
  PrepareRun(process);
  RunArrays run(process.Universe, process.RunUniverse.RunTrail, process.Universe.Universe_Starfold,
                process.Universe.Universe_AmStar);
  UniverseTour tour{.Scene = {process, run}};
  tour.VisitCount = VisitsOf(process.Universe);
  BuildAmbRamp(run.Ambient);

  while (Create(tour) && VisitAll(tour) && PullOut(tour)) ClearAway(tour);
}

}  // namespace starfolds

#include "bodies/star_step.h"

#include <cassert>

#include "bodies/comets.h"
#include "bodies/seed_point.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

const StarMotion& MotionOfStar(const FrameScene& scene, const StarState& star) {
  return scene.Process.Prepared[static_cast<std::size_t>(star.StarProf)].Star;
}

/// Moves a hue by one frame and looks its colour up.
void MoveHue(StarState& star, Single increment, const Colour* hueTable) {
  const Single sum = star.StarHue + increment;
  star.StarHue = sum >= 360 ? sum - 360 : sum;
  star.StarColor = hueTable[RoundHue(star.StarHue)];
}

void AdvanceStarHue(const ProcessState& process, StarState& star) {
  const auto prof = static_cast<std::size_t>(star.StarProf);
  const StarMotion& motion = process.Prepared[prof].Star;
  if (!motion.HueCycleOn) return;
  MoveHue(star, motion.HWheelInc, process.Colours.Profile[prof].HueTable.data());
}

/// Counts a nova or pulsar down. At its end the star is re-seeded and the answer is false.
bool CountFlareDown(const FrameScene& scene, std::size_t i) {
  StarState& star = scene.Arrays.Stars.Star[i];
  if (--star.StarFlareLeft > 0) return true;
  ReseedStar(scene, i);
  return false;
}

/// The hue work that the last frame left for a star.
void DoHueWork(const FrameScene& scene, StarState& star) {
  if (scene.Arrays.Stars.HueWorkDue) AdvanceStarHue(scene.Process, star);
}

void StepFlareWithoutTrail(const FrameScene& scene, std::size_t i) {
  StarState& star = scene.Arrays.Stars.Star[i];
  EraseFlare(scene, i);
  if (star.StarFlare != FlareKind::NewStar) {
    if (CountFlareDown(scene, i)) MoveAndDrawFlare(scene, i);
    return;
  }
  // At 0 it is a plain star from the next frame on, and its first erase falls on a stale place.
  if (--star.StarFlareLeft == 0) return;
  const StarMotion& motion = MotionOfStar(scene, star);
  MoveStar(star, motion);
  PlaceAndDrawNewStar(scene, i, ViewStar(star, motion, scene.Arrays.Folds));
}

/// The `BodyFrame` of a settled star.
Long FrameOf(const StarState& star) {
  return static_cast<Long>(FrameIndex(static_cast<std::size_t>(star.StarProf),
                                      static_cast<std::size_t>(star.StarLevel)));
}

/// Notes for each level of the profiles what its stars share in this frame.
void FillFrames(const FrameScene& scene) {
  const bool hueWorkDue = scene.Arrays.Stars.HueWorkDue;
  for (std::size_t prof = 0; prof < kProfileCount; ++prof) {
    const PreparedProfile& run = scene.Process.Prepared[prof];
    const Colour* const hues = hueWorkDue && run.Star.HueCycleOn
                                   ? scene.Process.Colours.Profile[prof].HueTable.data()
                                   : nullptr;
    for (std::size_t level = 0; level < static_cast<std::size_t>(run.RunLevels); ++level) {
      scene.Arrays.Frames[FrameIndex(prof, level)] = {
          run.Star.LevelCos[level], run.Star.LevelSin[level], &run.Star, hues,
          run.Star.HWheelInc,       run.Star.AxisPlane};
    }
  }
}

/// A star in flare, or one that was seeded in the last frame.
void StepStarTheLongWay(const FrameScene& scene, std::size_t i) {
  StarArrays& stars = scene.Arrays.Stars;
  StarState& star = stars.Star[i];
  DoHueWork(scene, star);
  if (star.InFlare()) return StepFlareWithoutTrail(scene, i);
  Surface::Pen pen(*scene.Process.Screen.hDCDraw);
  TrailPlace& trail = stars.Trail[i];
  pen.SetPixelV(trail.TrailX, trail.TrailY, 0);
  const StarMotion& motion = MotionOfStar(scene, star);
  MoveStar(star, motion);
  const View view = ViewStar(star, motion, scene.Arrays.Folds);
  if (view.InFront()) {
    PlotView(pen, Lens(scene.Process.Screen), view, trail, star.StarColor);
  }
  star.StarFrame = FrameOf(star);
}

/// The loop of the common case. A settled star costs two pixels, and what it shares with the rest
/// of its body is made ready once a frame.
///
/// The hue work of a frame follows its re-seeding, which reads the hues that stars had before. A
/// second pass over all stars would cost as much as this one, so each star does the hue work of the
/// last frame just before it is drawn.
void StepStarsWithoutTrails(const FrameScene& scene) {
  FillFrames(scene);
  StarState* const stars = scene.Arrays.Stars.Star.data();
  TrailPlace* const trails = scene.Arrays.Stars.Trail.data();
  const BodyFrame* const frames = scene.Arrays.Frames.data();
  const RelPlace* const places = scene.Arrays.Folds.StarfoldRel.data();
  Surface::Pen pen(*scene.Process.Screen.hDCDraw);
  const Lens lens(scene.Process.Screen);
  const std::size_t count = scene.Arrays.Stars.Star.size();
  for (std::size_t i = 0; i < count; ++i) {
    StarState& star = stars[i];
    if (star.StarFrame == 0) [[unlikely]] {
      StepStarTheLongWay(scene, i);
      continue;
    }
    assert(star.StarFrame == FrameOf(star) && "set anew with StarProf and StarLevel");
    pen.SetPixelV(trails[i].TrailX, trails[i].TrailY, 0);
    const BodyFrame& frame = frames[star.StarFrame];
    if (frame.HueTable) MoveHue(star, frame.HWheelInc, frame.HueTable);
    MoveStar(star, *frame.Motion);
    const View view = TiltStar(star, frame.TiltCos, frame.TiltSin, frame.AxisPlane,
                               places[static_cast<std::size_t>(star.StarHome)]);
    if (view.InFront()) PlotView(pen, lens, view, trails[i], star.StarColor);
  }
  scene.Arrays.Stars.HueWorkDue = true;
}

/// A nova or pulsar with trails; the profile of a star that is re-seeded here is drawn once more.
void StepFlareWithTrail(const FrameScene& scene, std::size_t i) {
  if (CountFlareDown(scene, i)) return MoveAndDrawFlare(scene, i);
  StarState& star = scene.Arrays.Stars.Star[i];
  star.StarProf = PickProfile(
      scene.Process, scene.Arrays.Folds.StarfoldProf[static_cast<std::size_t>(star.StarHome)]);
}

/// A star that waits for its trail to drain neither moves nor shows. True while that is so.
bool StepWaiting(const FrameScene& scene, const TourPlace& place, double crossFade, std::size_t i) {
  StarState& star = scene.Arrays.Stars.Star[i];
  if (star.StarWait == 0) return false;
  if (--star.StarWait == 0) {
    star.StarHome = ChooseHome(scene, place, crossFade);
    ReseedStar(scene, i);
  }
  return true;
}

void StepStarsWithTrails(const FrameScene& scene, const TourPlace& place, double crossFade) {
  StarArrays& stars = scene.Arrays.Stars;
  const StarfoldArrays& folds = scene.Arrays.Folds;
  Surface::Pen pen(*scene.Process.Screen.hDCDraw);
  const Lens lens(scene.Process.Screen);
  const auto length = static_cast<std::size_t>(scene.Process.RunUniverse.RunTrail);
  auto slot = static_cast<std::size_t>(scene.Arrays.TrailHead);
  for (std::size_t i = 0; i < stars.Star.size(); ++i, slot += length) {
    StarState& star = stars.Star[i];
    TrailPlace& trail = stars.Trail[slot];
    AgeStar(star);
    if (star.InFlare()) [[unlikely]] {
      EraseFlare(scene, i);
      if (star.StarFlare == FlareKind::NewStar) --star.StarFlareLeft;
    } else {
      pen.SetPixelV(trail.TrailX, trail.TrailY, 0);
    }
    if (StepWaiting(scene, place, crossFade, i)) continue;
    if (star.InFlare() && star.StarFlare != FlareKind::NewStar) {
      StepFlareWithTrail(scene, i);
      continue;
    }
    const StarMotion& motion = MotionOfStar(scene, star);
    MoveStar(star, motion);
    const View view = ViewStar(star, motion, folds);
    if (star.InFlare()) {
      PlaceAndDrawNewStar(scene, i, view);
    } else if (view.InFront()) {
      PlotView(pen, lens, view, trail, star.StarColor);
    }
  }
}

/// The starfold whose comets live in this frame. During the first step of a visit they stay with
/// the one just left, and in the pull-out with the one visited last.
std::size_t CometFold(const FrameScene& scene, const TourPlace& place) {
  if (scene.Kind != RunKind::Universe) return 0;
  const bool leaves = place.TourOn && place.LeavesFormer();
  const int visit = leaves ? place.VisitIdx - 1 : place.VisitIdx;
  const int visits =
      std::min(scene.Process.Universe.Universe_Starfold, scene.Process.Universe.Universe_Recycle);
  return static_cast<std::size_t>(std::min(visit, visits - 1));
}

void StepComets(const FrameScene& scene, const TourPlace& place) {
  if (scene.Process.RunUniverse.RunGravForce != 0) return;
  CometStep(scene, CometFold(scene, place), place.CometProf, place.SegIdx);
}

/// Stars drawn at random go to a new home. A draw that hits a flaring or waiting star is lost.
void RecycleStars(const FrameScene& scene, const TourPlace& place, const Recycling& recycling) {
  StarArrays& stars = scene.Arrays.Stars;
  const Integer trail = scene.Process.RunUniverse.RunTrail;
  const int count = RecycleCount(recycling.Quota, scene.Process.Random);
  for (int n = 0; n < count; ++n) {
    const auto j = static_cast<std::size_t>(
        DrawBelow(scene.Process.Random, static_cast<int>(stars.Star.size())));
    StarState& star = stars.Star[j];
    if (star.InFlare()) continue;
    if (trail == 1) {
      scene.Process.Screen.hDCDraw->SetPixelV(stars.Trail[j].TrailX, stars.Trail[j].TrailY, 0);
      star.StarHome = ChooseHome(scene, place, recycling.CrossFade);
      ReseedStar(scene, j);
    } else if (star.StarAge > trail && star.StarWait == 0) {
      star.StarWait = static_cast<Integer>(trail + 1);
    }
  }
}

}  // namespace

Recycling NewQuota(const FrameScene& scene, const TourPlace& place) {
  const ProcessState& process = scene.Process;
  const double everywhere = process.Universe.Universe_NewFreq;
  const auto rateOf = [&](int visit) -> double {
    const Integer entry = scene.Arrays.Folds.StarfoldProf[static_cast<std::size_t>(visit)];
    return process.Profiles[ResolveProfile(process, entry)].Starfold_NewFreq;
  };
  const double crossFade = (Cosine(place.SplineT * static_cast<double>(kPi)) + 1) * 0.5;
  const int pastApproach = place.SegIdx - process.Universe.Universe_GPCtrl;
  double quota = everywhere;
  if (scene.Kind == RunKind::SingleProfile) {
    quota = rateOf(place.VisitIdx);
  } else if (place.LeavesFormer()) {
    quota = (rateOf(place.VisitIdx - 1) - everywhere) * crossFade + everywhere;
  } else if (pastApproach > 0 && place.TourOn) {
    const double own = rateOf(place.VisitIdx);
    quota = pastApproach == 1 ? (own - everywhere) * (1 - crossFade) + everywhere : own;
  }
  return {RoundedToLimits<Long>(quota), crossFade};
}

int RecycleCount(Long quota, Rnd& random) {
  const double draw = random() * 100.0;
  return static_cast<int>(RoundHalfEven(quota * 0.01 + (draw < quota % 100 ? 1 : 0)));
}

Integer ChooseHome(const FrameScene& scene, const TourPlace& place, double crossFade) {
  const UniverseSettings& universe = scene.Process.Universe;
  Rnd& random = scene.Process.Random;
  const auto anywhere = [&] {
    return static_cast<Integer>(DrawBelow(random, universe.Universe_Starfold));
  };
  if (!place.TourOn) return anywhere();
  const Single r = random();
  if (r >= scene.Process.RunUniverse.RunNewShare) return anywhere();
  if (!place.LeavesFormer()) return place.VisitIdx;
  return crossFade <= random() ? place.VisitIdx : static_cast<Integer>(place.VisitIdx - 1);
}

void AdvanceStarHues(const ProcessState& process, StarArrays& stars) {
  for (StarState& star : stars.Star) AdvanceStarHue(process, star);
}

void FinishHueWork(const ProcessState& process, StarArrays& stars) {
  if (stars.HueWorkDue) AdvanceStarHues(process, stars);
  stars.HueWorkDue = false;
}

void StarStep(const FrameScene& scene, const TourPlace& place) {
  const Recycling recycling = NewQuota(scene, place);
  const Integer trail = scene.Process.RunUniverse.RunTrail;
  if (trail == 1) {
    StepStarsWithoutTrails(scene);
    StepComets(scene, place);
    RecycleStars(scene, place, recycling);
    DriftCometHues(scene.Process.Colours, scene.Process.Prepared, scene.Process.Profiles);
  } else {
    StepStarsWithTrails(scene, place, recycling.CrossFade);
    StepComets(scene, place);
    scene.Arrays.TrailHead = static_cast<Integer>((scene.Arrays.TrailHead + 1) % trail);
    RecycleStars(scene, place, recycling);
    DriftCometHues(scene.Process.Colours, scene.Process.Prepared, scene.Process.Profiles);
    AdvanceStarHues(scene.Process, scene.Arrays.Stars);
  }
}

}  // namespace starfolds

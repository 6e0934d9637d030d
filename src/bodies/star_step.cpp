#include "bodies/star_step.h"

#include <cmath>

#include "bodies/comets.h"
#include "bodies/seed_point.h"

namespace starfolds {
namespace {

bool InFlare(const StarArrays& stars, std::size_t i) {
  return (stars.StarNewLeft[i] | stars.StarNovaLeft[i] | stars.StarPulsarLeft[i]) != 0;
}

/// Counts a nova or pulsar down. At its end the star is re-seeded and the answer is false.
bool CountShellDown(const FrameScene& scene, std::size_t i) {
  StarArrays& stars = scene.Run.Stars;
  Integer& left = stars.StarNovaLeft[i] > 0 ? stars.StarNovaLeft[i] : stars.StarPulsarLeft[i];
  --left;
  if (left > 0) return true;
  ReseedStar(scene, i);
  return false;
}

void StepFlareWithoutTrail(const FrameScene& scene, std::size_t i) {
  StarArrays& stars = scene.Run.Stars;
  EraseFlare(scene, i);
  if (stars.StarNewLeft[i] == 0) {
    if (CountShellDown(scene, i)) MoveAndDrawShell(scene, i);
    return;
  }
  // At 0 it is a plain star from the next frame on, and its first erase falls on a stale place.
  if (--stars.StarNewLeft[i] == 0) return;
  const StarMotion& motion = scene.Process.Prepared[stars.StarProf[i]].Star;
  MoveStar(stars, i, motion);
  PlaceAndDrawNewStar(scene, i, ViewStar(stars, i, motion, scene.Run.Folds));
}

/// The loop of the common case: a plain star costs two pixels.
void StepStarsWithoutTrails(const FrameScene& scene) {
  StarArrays& stars = scene.Run.Stars;
  const PreparedArray& prepared = scene.Process.Prepared;
  const StarfoldArrays& folds = scene.Run.Folds;
  const Display& screen = scene.Process.Screen;
  Surface& surface = *screen.hDCDraw;
  const std::size_t count = stars.StarX.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (InFlare(stars, i)) [[unlikely]] {
      StepFlareWithoutTrail(scene, i);
      continue;
    }
    surface.SetPixelV(stars.TrailX[i], stars.TrailY[i], 0);
    const StarMotion& motion = prepared[stars.StarProf[i]].Star;
    MoveStar(stars, i, motion);
    const View view = ViewStar(stars, i, motion, folds);
    if (!view.InFront()) continue;
    ProjectView(screen, view, stars.TrailX[i], stars.TrailY[i]);
    surface.SetPixelV(stars.TrailX[i], stars.TrailY[i], stars.StarColor[i]);
  }
}

/// A nova or pulsar with trails; the profile of a star that is re-seeded here is drawn once more.
void StepShellWithTrail(const FrameScene& scene, std::size_t i) {
  StarArrays& stars = scene.Run.Stars;
  if (CountShellDown(scene, i)) return MoveAndDrawShell(scene, i);
  stars.StarProf[i] = PickProfile(scene.Process, scene.Run.Folds.StarfoldProf[stars.StarHome[i]]);
}

/// A star that waits for its trail to drain neither moves nor shows. True while that is so.
bool StepWaiting(const FrameScene& scene, const TourPlace& place, double crossFade, std::size_t i) {
  StarArrays& stars = scene.Run.Stars;
  if (stars.StarWait[i] == 0) return false;
  if (--stars.StarWait[i] == 0) {
    stars.StarHome[i] = ChooseHome(scene, place, crossFade);
    ReseedStar(scene, i);
  }
  return true;
}

void StepStarsWithTrails(const FrameScene& scene, const TourPlace& place, double crossFade) {
  StarArrays& stars = scene.Run.Stars;
  const PreparedArray& prepared = scene.Process.Prepared;
  const StarfoldArrays& folds = scene.Run.Folds;
  const Display& screen = scene.Process.Screen;
  Surface& surface = *screen.hDCDraw;
  const std::size_t count = stars.StarX.size();
  const auto trail = static_cast<std::size_t>(scene.Process.Universe.Universe_STrail);
  std::size_t slot = static_cast<std::size_t>(scene.Run.TrailHead);
  for (std::size_t i = 0; i < count; ++i, slot += trail) {
    ++stars.StarAge[i];
    if (InFlare(stars, i)) [[unlikely]] {
      EraseFlare(scene, i);
      if (stars.StarNewLeft[i] > 0) --stars.StarNewLeft[i];
    } else {
      surface.SetPixelV(stars.TrailX[slot], stars.TrailY[slot], 0);
    }
    if (StepWaiting(scene, place, crossFade, i)) continue;
    if (stars.StarNovaLeft[i] > 0 || stars.StarPulsarLeft[i] > 0) {
      StepShellWithTrail(scene, i);
      continue;
    }
    const StarMotion& motion = prepared[stars.StarProf[i]].Star;
    MoveStar(stars, i, motion);
    const View view = ViewStar(stars, i, motion, folds);
    if (stars.StarNewLeft[i] > 0) {
      PlaceAndDrawNewStar(scene, i, view);
    } else if (view.InFront()) {
      ProjectView(screen, view, stars.TrailX[slot], stars.TrailY[slot]);
      surface.SetPixelV(stars.TrailX[slot], stars.TrailY[slot], stars.StarColor[i]);
    }
  }
}

/// The starfold whose comets live in this frame. During the first step of a visit they stay with
/// the one just left, and in the pull-out with the one visited last.
std::size_t CometFold(const FrameScene& scene, const TourPlace& place) {
  if (scene.SingleBody != 0) return 0;
  const bool leaving = place.TourOn && place.SegIdx < 2 && place.VisitIdx > 0;
  const int visit = leaving ? place.VisitIdx - 1 : place.VisitIdx;
  const int visits =
      std::min(scene.Process.Universe.Universe_Starfold, scene.Process.Universe.Universe_Recycle);
  return static_cast<std::size_t>(std::min(visit, visits - 1));
}

void StepComets(const FrameScene& scene, const TourPlace& place) {
  if (scene.Process.Universe.Universe_GravForce != 0) return;
  CometStep(scene, CometFold(scene, place), place.VisitProf, place.SegIdx);
}

/// Stars drawn at random go to a new home. A draw that hits a flaring or waiting star is lost.
void RecycleStars(const FrameScene& scene, const TourPlace& place, const Recycling& recycling) {
  StarArrays& stars = scene.Run.Stars;
  const Integer trail = scene.Process.Universe.Universe_STrail;
  const int count = RecycleCount(recycling.Quota, scene.Process.Random);
  for (int n = 0; n < count; ++n) {
    const auto j = static_cast<std::size_t>(
        DrawBelow(scene.Process.Random, static_cast<int>(stars.StarX.size())));
    if (InFlare(stars, j)) continue;
    if (trail == 1) {
      scene.Process.Screen.hDCDraw->SetPixelV(stars.TrailX[j], stars.TrailY[j], 0);
      stars.StarHome[j] = ChooseHome(scene, place, recycling.CrossFade);
      ReseedStar(scene, j);
    } else if (stars.StarAge[j] > trail && stars.StarWait[j] == 0) {
      stars.StarWait[j] = static_cast<Integer>(trail + 1);
    }
  }
}

}  // namespace

Recycling NewQuota(const FrameScene& scene, const TourPlace& place) {
  const Saver& saver = scene.Process;
  const double everywhere = saver.Universe.Universe_NewFreq;
  const auto rateOf = [&](int visit) -> double {
    const Integer entry = scene.Run.Folds.StarfoldProf[static_cast<std::size_t>(visit)];
    return saver.Profiles[ResolveProfile(saver, entry)].Starfold_NewFreq;
  };
  const double crossFade = (std::cos(place.SplineT * static_cast<double>(kPi)) + 1) * 0.5;
  const int pastApproach = place.SegIdx - saver.Universe.Universe_GPCtrl;
  double quota = everywhere;
  if (scene.SingleBody == 1) {
    quota = rateOf(place.VisitIdx);
  } else if (place.SegIdx == 1 && place.VisitIdx >= 1) {
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
  if (r >= universe.Universe_NewPctStEx) return anywhere();
  const bool leaving =
      place.SegIdx <= universe.Universe_GPCtrl && place.SegIdx == 1 && place.VisitIdx >= 1;
  if (!leaving) return place.VisitIdx;
  return crossFade <= random() ? place.VisitIdx : static_cast<Integer>(place.VisitIdx - 1);
}

void AdvanceStarHues(Saver& saver, StarArrays& stars) {
  const std::size_t count = stars.StarHue.size();
  for (std::size_t i = 0; i < count; ++i) {
    const auto prof = static_cast<std::size_t>(stars.StarProf[i]);
    const StarMotion& motion = saver.Prepared[prof].Star;
    if (!motion.HueCycleOn) continue;
    const double sum = static_cast<double>(stars.StarHue[i]) + motion.HWheelInc;
    const Single hue = static_cast<Single>(sum >= 360 ? sum - 360 : sum);
    stars.StarHue[i] = hue;
    const std::int64_t degree = RoundHalfEven(hue);
    stars.StarColor[i] = saver.Colours.Profile[prof].HueTable[degree == 360 ? 0 : degree];
  }
}

void StarStep(const FrameScene& scene, const TourPlace& place) {
  const Recycling recycling = NewQuota(scene, place);
  const Integer trail = scene.Process.Universe.Universe_STrail;
  if (trail == 1) {
    StepStarsWithoutTrails(scene);
    StepComets(scene, place);
  } else {
    StepStarsWithTrails(scene, place, recycling.CrossFade);
    StepComets(scene, place);
    scene.Run.TrailHead = static_cast<Integer>((scene.Run.TrailHead + 1) % trail);
  }
  RecycleStars(scene, place, recycling);
  DriftCometHues(scene.Process);
  AdvanceStarHues(scene.Process, scene.Run.Stars);
}

}  // namespace starfolds

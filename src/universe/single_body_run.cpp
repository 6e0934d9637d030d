#include "universe/single_body_run.h"

#include <algorithm>

#include "bodies/comets.h"
#include "bodies/seed_star.h"
#include "bodies/star_step.h"
#include "numbers/conversions.h"
#include "universe/pacing.h"

namespace starfolds {
namespace {

constexpr Integer kNoTour = 32000;  // a tour step beyond all steps: comets always live

void EnterSettings(UniverseSettings& universe, Long stars, Integer trail, Single scale) {
  AssignRounded(universe.Universe_Stars, stars * static_cast<double>(scale));
  universe.Universe_Stars = ClampTo<Integer>(universe.Universe_Stars, 1, kMostTrailPlaces);
  universe.Universe_Starfold = 1;
  universe.Universe_STrail = ClampTo<Integer>(trail, 1, kMostTrailPlaces / universe.Universe_Stars);
  universe.Universe_NewPctStEx = 0;
}

void SeedBody(const FrameScene& scene, Integer body, bool isComposite) {
  Saver& saver = scene.Process;
  StarArrays& stars = scene.Run.Stars;
  const CompositeProfile* composite = isComposite ? &saver.Composites[body] : nullptr;
  for (std::size_t i = 0; i < stars.Star.size(); ++i) {
    stars.Star[i].StarHome = 0;
    stars.Star[i].StarProf = body;
    if (composite) {
      const int member = DrawBelow(saver.Random, composite->MemberCount());
      stars.Star[i].StarProf =
          ClampTo<Integer>(composite->CompFold_Type[member], 0, kProfileCount - 1);
    }
    SeedStar(saver, stars, scene.Run.Slots, i);
  }
}

}  // namespace

void SingleBodyRun(Saver& saver, Integer body, bool limitFrames, Integer frameLimit, Long stars,
                   Integer trail, bool isComposite, Single scale) {
  EnterSettings(saver.Universe, stars, trail, scale);
  RunArrays run(saver.Universe, 1, 0);
  PrepareProfiles(saver);
  const Integer entry = isComposite ? static_cast<Integer>(body + kFirstComposite) : body;
  const Integer visited = ResolveProfile(saver, entry);
  run.Folds.StarfoldProf[0] = entry;
  run.Folds.StarfoldRel[0] = {0, 0, saver.Prepared[visited].RunDistance};
  run.Comets.CometCount = CometRoom(saver.Profiles[visited].Starfold_CometStars);
  InitBodies(saver, run.Slots, run.Folds.StarfoldProf);

  const FrameScene scene{saver, run, Integer{isComposite ? Integer{2} : Integer{1}}};
  SeedBody(scene, body, isComposite);
  MarkHueCycling(saver);
  BuildPulsarTables(saver);
  BuildNewStarRamp(saver);

  const TourPlace place{0, visited, kNoTour, 0, false};
  Integer frames = 0;
  while (true) {
    AdvanceAngles(saver);
    StarStep(scene, place);
    StepNebulaRibbons(saver, run.Slots, run.Folds.StarfoldProf);
    if (limitFrames && ++frames >= frameLimit) return;
    if (FramePace(saver)) return;
    if (saver.NewRun) {
      saver.NewRun = false;
      return;
    }
  }
}

}  // namespace starfolds

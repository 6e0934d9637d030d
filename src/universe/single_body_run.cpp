#include "universe/single_body_run.h"

#include <algorithm>

#include "bodies/comets.h"
#include "bodies/seed_star.h"
#include "numbers/conversions.h"
#include "process/prepare_run.h"
#include "universe/pacing.h"

namespace starfolds {
namespace {

constexpr Integer kNoTour = 32000;  // a tour step beyond all steps: comets always live

/// Enters the settings of the run and prepares it, which the size of the arrays depends on.
RunArrays PrepareArrays(ProcessState& process, const SingleBodyPlan& plan) {
  UniverseSettings& universe = process.Universe;
  AssignRounded(universe.Universe_Stars, plan.Stars * static_cast<double>(plan.StarScale));
  universe.Universe_Stars = ClampTo<Integer>(universe.Universe_Stars, 1, kMostTrailPlaces);
  universe.Universe_Starfold = 1;
  universe.Universe_STrail = plan.Trail;
  PrepareRun(process);
  process.RunUniverse.RunNewShare = 0;  // re-seeded stars stay in the one body anyway
  return RunArrays(universe, process.RunUniverse.RunTrail, 1, 0);
}

void SeedBody(const FrameScene& scene, const SingleBodyPlan& plan) {
  ProcessState& process = scene.Process;
  StarArrays& stars = scene.Arrays.Stars;
  const CompositeProfile* composite = plan.IsComposite ? &process.Composites[plan.Body] : nullptr;
  for (std::size_t i = 0; i < stars.Star.size(); ++i) {
    stars.Star[i].StarHome = 0;
    stars.Star[i].StarProf = plan.Body;
    if (composite) {
      const int member = DrawBelow(process.Random, composite->MemberCount());
      stars.Star[i].StarProf =
          ClampTo<Integer>(composite->CompFold_Type[member], 0, kProfileCount - 1);
    }
    SeedStar(process, stars, scene.Arrays.Slots, i);
  }
}

}  // namespace

SingleBody::SingleBody(ProcessState& process, const SingleBodyPlan& plan)
    : process_(process),
      arrays_(PrepareArrays(process, plan)),
      scene_{process, arrays_,
             plan.IsComposite ? RunKind::SingleComposite : RunKind::SingleProfile} {
  const Integer entry =
      plan.IsComposite ? static_cast<Integer>(plan.Body + kFirstComposite) : plan.Body;
  const Integer visited = ResolveProfile(process, entry);
  arrays_.Folds.StarfoldProf[0] = entry;
  arrays_.Folds.StarfoldRel[0] = {0, 0, process.Prepared[visited].RunDistance};
  arrays_.Comets.CometCount = CometRoom(process.Profiles[visited].Starfold_CometStars);
  InitBodies(process, arrays_.Slots, arrays_.Folds.StarfoldProf);
  SeedBody(scene_, plan);
  place_ = {.CometProf = visited, .SegIdx = kNoTour};
}

void SingleBody::Step() {
  AdvanceAngles(process_.Prepared);
  StarStep(scene_, place_);
  StepNebulaRibbons(process_, arrays_.Slots, arrays_.Folds.StarfoldProf);
}

void SingleBodyRun(ProcessState& process, const SingleBodyPlan& plan) {
  SingleBody body(process, plan);
  Integer frames = 0;
  while (true) {
    body.Step();
    if (plan.FrameLimit && ++frames >= *plan.FrameLimit) return;
    if (FramePace(process)) return;
    if (process.Requests.TakeNewRun()) return;
  }
}

}  // namespace starfolds

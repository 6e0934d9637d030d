#include "bodies/comets.h"

#include <cmath>

#include "bodies/seed_point.h"
#include "bodies/styles.h"

namespace starfolds {
namespace {

constexpr Integer kFirstShedding = 3;  // the tour step from which comets live

/// Where a nucleus is in the view's axes, and the wind that blows outward from the core there.
struct NucleusView {
  double U, V, W;
  double Wind;
};

struct CometScene {
  const FrameScene& Frame;
  const Body Of;
  const StyleRoutines& Style;
  std::size_t Fold;
  Integer Prof;
  Integer SegIdx;

  CometArrays& Comets() const { return Frame.Arrays.Comets; }
  BodySlots& Slots() const { return Frame.Arrays.Slots; }
  Rnd& Random() const { return Frame.Process.Random; }
  Surface& Canvas() const { return *Frame.Process.Screen.hDCDraw; }
};

void SeedNucleus(const CometScene& scene, CometHead& head) {
  SeedPoint point;
  point.X = head.CometX;
  point.Y = head.CometY;
  point.Z = head.CometZ;
  scene.Style.SeedNucleus(point, scene.Of, scene.Slots(), scene.Fold);
  head.CometX = point.X;
  head.CometY = point.Y;
  head.CometZ = point.Z;
  head.CometSpinCos = point.SpinCos;
  head.CometSpinSin = point.SpinSin;
  head.CometLevel = point.Level;
  head.CometPhase = point.RibbonPos;
}

NucleusView ViewNucleus(const CometScene& scene, const CometHead& head) {
  const StarMotion& motion = scene.Of.Prepared.Star;
  const double c = motion.LevelCos[head.CometLevel];
  const double s = motion.LevelSin[head.CometLevel];
  const double x = head.CometX;
  const double y = head.CometY;
  const double z = head.CometZ;
  const double w = z * c + y * s;
  const double across = s * z - y * c;
  const double u = motion.AxisPlane ? across : x;
  const double v = motion.AxisPlane ? x : across;
  const double wind = scene.Of.Prepared.RunCometWind / (std::sqrt(w * w + v * v + u * u) + 1e-09);
  return {u, v, w, wind};
}

/// A star leaves the nucleus: a random direction, and the wind.
void ShedStar(const CometScene& scene, std::size_t j, const NucleusView& nucleus) {
  CometArrays& comets = scene.Comets();
  Single vx = 0, vy = 0, vz = 0;
  ScatterDirection(vx, vy, vz, scene.Of.Prepared.RunCometSpeed, scene.Random());
  comets.CometStarVX[j] = static_cast<Single>(vx + nucleus.U * nucleus.Wind);
  comets.CometStarVY[j] = static_cast<Single>(vy + nucleus.V * nucleus.Wind);
  comets.CometStarVZ[j] = static_cast<Single>(vz + nucleus.W * nucleus.Wind);
  comets.CometStarX[j] = static_cast<Single>(nucleus.U);
  comets.CometStarY[j] = static_cast<Single>(nucleus.V);
  comets.CometStarZ[j] = static_cast<Single>(nucleus.W);
  comets.CometStarHue[j] = 0;
}

/// The slots of the pool that belong to a comet.
struct SlotRange {
  std::size_t Begin, End;
};

SlotRange SlotsOf(const CometScene& scene, std::size_t comet) {
  const auto stars =
      static_cast<std::size_t>(std::max<Integer>(scene.Of.Profile.Starfold_CometStars, 0));
  return {std::min<std::size_t>(comet * stars, kCometStars),
          std::min<std::size_t>((comet + 1) * stars, kCometStars)};
}

/// One slot is drawn a frame; a busy one wastes the frame's try.
void LaunchComet(const CometScene& scene) {
  CometArrays& comets = scene.Comets();
  const auto k = static_cast<std::size_t>(DrawBelow(scene.Random(), comets.CometCount));
  const Single chance = scene.Random()();
  CometHead& head = comets.Heads[k];
  const bool free = !head.CometLive && head.CometLeft == 0;
  if (!(chance < scene.Of.Prepared.RunCometChance) || scene.SegIdx < kFirstShedding || !free)
    return;
  head.CometLive = true;
  SeedNucleus(scene, head);
  const NucleusView nucleus = ViewNucleus(scene, head);
  const SlotRange slots = SlotsOf(scene, k);
  head.CometLeft = static_cast<Integer>(slots.End - slots.Begin);
  for (std::size_t j = slots.Begin; j < slots.End; ++j) {
    comets.CometStarLive[j] = true;
    ShedStar(scene, j, nucleus);
  }
}

/// The star flies on, and shows while it is young.
void FlyStar(const CometScene& scene, std::size_t j) {
  CometArrays& comets = scene.Comets();
  comets.CometStarX[j] += comets.CometStarVX[j];
  comets.CometStarY[j] += comets.CometStarVY[j];
  comets.CometStarZ[j] += comets.CometStarVZ[j];
  const RelPlace& home = scene.Frame.Arrays.Folds.StarfoldRel[scene.Fold];
  const View view{comets.CometStarX[j] + home.X, comets.CometStarY[j] + home.Y,
                  comets.CometStarZ[j] + home.Z};
  if (!view.InFront()) return;
  ProjectView(Lens(scene.Frame.Process.Screen), view, comets.CometStarScrX[j],
              comets.CometStarScrY[j]);
  const Integer age = comets.CometStarHue[j];
  if (age < kFlareSteps) {
    scene.Canvas().SetPixelV(comets.CometStarScrX[j], comets.CometStarScrY[j],
                             scene.Frame.Process.Colours.Profile[scene.Prof].NovaRamp[age]);
    comets.CometStarHue[j] = static_cast<Integer>(age + 1);
  }
}

void StepCometStar(const CometScene& scene, CometHead& head, std::size_t j,
                   const NucleusView& nucleus) {
  CometArrays& comets = scene.Comets();
  scene.Canvas().SetPixelV(comets.CometStarScrX[j], comets.CometStarScrY[j], 0);
  const Single draw = scene.Random()();
  if (draw < scene.Of.Profile.Starfold_CometSPersist) return FlyStar(scene, j);
  if (head.CometLive) return ShedStar(scene, j, nucleus);
  comets.CometStarLive[j] = false;
  --head.CometLeft;
}

void StepComet(const CometScene& scene, std::size_t comet) {
  CometArrays& comets = scene.Comets();
  CometHead& head = comets.Heads[comet];
  scene.Style.MoveNucleus(head, scene.Of, scene.Slots(), scene.Fold);
  const NucleusView nucleus = ViewNucleus(scene, head);
  const SlotRange slots = SlotsOf(scene, comet);
  for (std::size_t j = slots.Begin; j < slots.End; ++j) {
    if (comets.CometStarLive[j]) StepCometStar(scene, head, j, nucleus);
  }
  const Single draw = scene.Random()();
  if (scene.SegIdx < kFirstShedding || scene.Of.Profile.Starfold_CometCPersist < draw) {
    head.CometLive = false;
  }
}

}  // namespace

void CometStep(const FrameScene& frame, std::size_t fold, Integer prof, Integer segIdx) {
  const CometScene scene{frame,
                         Body(frame.Process, prof),
                         RoutinesOf(frame.Process.Profiles[prof].Style()),
                         fold,
                         prof,
                         segIdx};
  LaunchComet(scene);
  for (int c = 0; c < frame.Arrays.Comets.CometCount; ++c) {
    if (frame.Arrays.Comets.Heads[c].CometLeft > 0) StepComet(scene, static_cast<std::size_t>(c));
  }
}

Integer CometRoom(Integer starsPerComet) {
  return static_cast<Integer>(std::min(kCometStars / std::max<int>(starsPerComet, 1), kMaxComets));
}

void ResetComets(ProcessState& process, CometArrays& comets, Integer visitIdx, Integer prof) {
  if (visitIdx > 0) {
    for (std::size_t j = 0; j < comets.CometStarLive.size(); ++j) {
      if (!comets.CometStarLive[j]) continue;
      process.Screen.hDCDraw->SetPixelV(comets.CometStarScrX[j], comets.CometStarScrY[j], 0);
      comets.CometStarLive[j] = false;
    }
  }
  comets.CometCount = CometRoom(process.Profiles[prof].Starfold_CometStars);
  comets.Heads.fill({});
}

}  // namespace starfolds

#include "bodies/comets.h"

#include <cmath>

#include "bodies/ifs.h"
#include "bodies/molecule.h"
#include "bodies/radial.h"
#include "bodies/ribbon.h"
#include "bodies/seed_point.h"

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
  RibbonSlot& Ribbon;
  std::size_t Fold;
  Integer Prof;
  Integer SegIdx;

  CometArrays& Comets() const { return Frame.Run.Comets; }
  Rnd& Random() const { return Frame.Process.Random; }
  Surface& Canvas() const { return *Frame.Process.Screen.hDCDraw; }
};

/// The nucleus is seeded like a star of the body; where the body's stars do not orbit, it still
/// does, as a Standard star.
void SeedNucleus(const CometScene& scene, CometHead& head) {
  SeedPoint point;
  point.X = head.CometX;
  point.Y = head.CometY;
  point.Z = head.CometZ;
  const Body& body = scene.Of;
  switch (body.Set.Style()) {
    case FoldStyle::Standard:
    case FoldStyle::Quasar:
    case FoldStyle::Graviton:
    case FoldStyle::Starwave:
      SeedRadial(point, body, body.Run.RunCometOrbit, body.Run.SpinPhase);
      break;
    case FoldStyle::IfsPoint:
    case FoldStyle::IfsWireframe:
    case FoldStyle::IfsFractal:
    case FoldStyle::UserIfs: SeedIfs(point, body, scene.Frame.Run.Slots.Ifs[scene.Fold]); break;
    case FoldStyle::Nebula:
      SeedRibbon(point, body, scene.Ribbon);
      head.CometPhase = point.RibbonPos;
      break;
    case FoldStyle::Molecule: SeedMolecule(point, body, false); break;
  }
  head.CometX = point.X;
  head.CometY = point.Y;
  head.CometZ = point.Z;
  head.CometSpinCos = point.SpinCos;
  head.CometSpinSin = point.SpinSin;
  head.CometLevel = point.Level;
}

NucleusView ViewNucleus(const CometScene& scene, const CometHead& head) {
  const StarMotion& motion = scene.Of.Run.Star;
  const double c = motion.LevelCos[head.CometLevel];
  const double s = motion.LevelSin[head.CometLevel];
  const double x = head.CometX;
  const double y = head.CometY;
  const double z = head.CometZ;
  const double w = z * c + y * s;
  const double across = s * z - y * c;
  const double u = motion.AxisPlane ? across : x;
  const double v = motion.AxisPlane ? x : across;
  const double wind = scene.Of.Run.RunCometWind / (std::sqrt(w * w + v * v + u * u) + 1e-09);
  return {u, v, w, wind};
}

/// A star leaves the nucleus: a random direction, and the wind.
void ShedStar(const CometScene& scene, std::size_t j, const NucleusView& nucleus) {
  CometArrays& comets = scene.Comets();
  Single vx = 0, vy = 0, vz = 0;
  ScatterDirection(vx, vy, vz, scene.Of.Run.RunCometSpeed, scene.Random());
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
      static_cast<std::size_t>(std::max<Integer>(scene.Of.Set.Starfold_CometStars, 0));
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
  if (!(chance < scene.Of.Run.RunCometChance) || scene.SegIdx < kFirstShedding || !free) return;
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

void MoveNucleus(const CometScene& scene, CometHead& head) {
  if (scene.Of.Set.Style() == FoldStyle::Nebula) {
    const int points = scene.Of.Set.Starfold_CP_Points;
    double phase = static_cast<double>(head.CometPhase) + scene.Of.Run.RunCometOrbit;
    if (phase >= points) phase = std::fmod(phase, points);
    head.CometPhase = static_cast<Single>(phase);
    const Point3 place = RibbonPoint(scene.Ribbon, points, head.CometPhase);
    head.CometX = place.X;
    head.CometY = place.Y;
    head.CometZ = place.Z;
    return;
  }
  const double c = head.CometSpinCos;
  const double s = head.CometSpinSin;
  const double x = head.CometX;
  const double z = head.CometZ;
  head.CometX = static_cast<Single>(x * c - s * z);
  head.CometZ = static_cast<Single>(z * c + s * x);
}

/// The star flies on, and shows while it is young.
void FlyStar(const CometScene& scene, std::size_t j) {
  CometArrays& comets = scene.Comets();
  comets.CometStarX[j] += comets.CometStarVX[j];
  comets.CometStarY[j] += comets.CometStarVY[j];
  comets.CometStarZ[j] += comets.CometStarVZ[j];
  const RelPlace& home = scene.Frame.Run.Folds.StarfoldRel[scene.Fold];
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
  if (draw < scene.Of.Set.Starfold_CometSPersist) return FlyStar(scene, j);
  if (head.CometLive) return ShedStar(scene, j, nucleus);
  comets.CometStarLive[j] = false;
  --head.CometLeft;
}

void StepComet(const CometScene& scene, std::size_t comet) {
  CometArrays& comets = scene.Comets();
  CometHead& head = comets.Heads[comet];
  MoveNucleus(scene, head);
  const NucleusView nucleus = ViewNucleus(scene, head);
  const SlotRange slots = SlotsOf(scene, comet);
  for (std::size_t j = slots.Begin; j < slots.End; ++j) {
    if (comets.CometStarLive[j]) StepCometStar(scene, head, j, nucleus);
  }
  const Single draw = scene.Random()();
  if (scene.SegIdx < kFirstShedding || scene.Of.Set.Starfold_CometCPersist < draw) {
    head.CometLive = false;
  }
}

}  // namespace

void CometStep(const FrameScene& frame, std::size_t fold, Integer prof, Integer segIdx) {
  const CometScene scene{frame, Body(frame.Process, prof), frame.Run.Slots.Ribbon[fold], fold, prof,
                         segIdx};
  LaunchComet(scene);
  for (int c = 0; c < frame.Run.Comets.CometCount; ++c) {
    if (frame.Run.Comets.Heads[c].CometLeft > 0) StepComet(scene, static_cast<std::size_t>(c));
  }
}

Integer CometRoom(Integer starsPerComet) {
  return static_cast<Integer>(std::min(kCometStars / std::max<int>(starsPerComet, 1), kMaxComets));
}

void ResetComets(Saver& saver, CometArrays& comets, Integer visitIdx, Integer prof) {
  if (visitIdx > 0) {
    for (std::size_t j = 0; j < comets.CometStarLive.size(); ++j) {
      if (!comets.CometStarLive[j]) continue;
      saver.Screen.hDCDraw->SetPixelV(comets.CometStarScrX[j], comets.CometStarScrY[j], 0);
      comets.CometStarLive[j] = false;
    }
  }
  comets.CometCount = CometRoom(saver.Profiles[prof].Starfold_CometStars);
  comets.Heads.fill({});
}

}  // namespace starfolds

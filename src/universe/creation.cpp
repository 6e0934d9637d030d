#include "universe/creation.h"

#include <algorithm>
#include <cmath>

#include "bodies/seed_star.h"
#include "bodies/star_motion.h"
#include "bodies/star_step.h"
#include "numbers/conversions.h"
#include "universe/ambient.h"
#include "universe/pacing.h"

namespace starfolds {
namespace {

enum class BirthState : Integer { Flying, Wiping, Settled };

/// What lives only as long as one creation.
struct Birth {
  std::vector<Single> BirthX, BirthY, BirthZ, BirthVX, BirthVY, BirthVZ;
  std::vector<BirthState> State;
  std::vector<Integer> BirthStep;  // frames in the state
  std::vector<Single> FoldVX, FoldVY, FoldVZ;
  Single CreationDamp = 1;  // what all speeds are multiplied by in this frame
  Integer MinFlightFrames = 0;

  Birth(std::size_t stars, std::size_t folds)
      : BirthX(stars),
        BirthY(stars),
        BirthZ(stars),
        BirthVX(stars),
        BirthVY(stars),
        BirthVZ(stars),
        State(stars, BirthState::Flying),
        BirthStep(stars),
        FoldVX(folds),
        FoldVY(folds),
        FoldVZ(folds) {}
};

/// Shares of the 66 bodies as running sums. If nobody has a share, profile 0 has it all.
struct Shares {
  std::array<Long, kBodyCount> Share{};
  std::array<Long, kBodyCount> ShareSum{};
  Long Total = 0;
  bool OnlyFirst = false;

  explicit Shares(const Saver& saver) {
    for (int k = 0; k < kBodyCount; ++k) {
      Share[k] = k < kFirstComposite ? saver.Profiles[k].UniFoldPct
                                     : saver.Composites[k - kFirstComposite].CompFoldPct;
      Total += Share[k];
      ShareSum[k] = Total;
    }
    if (Total == 0) {
      Total = 1;
      ShareSum[0] = 1;
    }
    OnlyFirst = Total == 1 && ShareSum[0] == 1;
  }

  Integer PickByShare(double draw) const {
    const double r = draw * Total;
    for (int k = 0; k < kBodyCount; ++k) {
      if (r <= ShareSum[k]) return static_cast<Integer>(k);
    }
    return 0;
  }

  /// The next body with a share from the cursor on, and the cursor behind it.
  Integer PickInTurn(int& cursor) const {
    if (OnlyFirst) return 0;
    while (Share[cursor] == 0) cursor = (cursor + 1) % kBodyCount;
    const auto found = static_cast<Integer>(cursor);
    cursor = (cursor + 1) % kBodyCount;
    return found;
  }
};

/// Every star at the core, with its own velocity of the blast.
void SeedFlight(UniverseScene& scene, Birth& birth) {
  for (std::size_t i = 0; i < birth.BirthX.size(); ++i) {
    const ExpansionVector start =
        SeedExpansionVector(scene.Process, scene.Shape, scene.TourProfile, scene.Growth.ExpandStep,
                            0, ExpansionMode::Burst);
    birth.BirthX[i] = start.X;
    birth.BirthY[i] = start.Y;
    birth.BirthZ[i] = start.Z;
    birth.BirthVX[i] = start.VX;
    birth.BirthVY[i] = start.VY;
    birth.BirthVZ[i] = start.VZ;
  }
}

/// Chooses what each starfold is, and gives it the path of one random star.
void ChooseStarfolds(UniverseScene& scene, Birth& birth) {
  Saver& saver = scene.Process;
  StarfoldArrays& folds = scene.Run.Folds;
  const UniverseSettings& universe = saver.Universe;
  const Shares shares(saver);
  int cursor = 0;
  for (std::size_t i = 0; i < folds.StarfoldProf.size(); ++i) {
    folds.StarfoldProf[i] =
        universe.Universe_GVisit ? shares.PickInTurn(cursor) : shares.PickByShare(saver.Random());
    const auto star = static_cast<std::size_t>(DrawBelow(saver.Random, universe.Universe_Stars));
    folds.StarfoldX[i] = birth.BirthX[star];
    folds.StarfoldY[i] = birth.BirthY[star];
    folds.StarfoldZ[i] = birth.BirthZ[star];
    birth.FoldVX[i] = birth.BirthVX[star];
    birth.FoldVY[i] = birth.BirthVY[star];
    birth.FoldVZ[i] = birth.BirthVZ[star];
  }
  if (!universe.Universe_Tour || universe.Universe_GVisit) return;
  const auto listed = std::min<std::size_t>(saver.Visits.Count, folds.StarfoldProf.size());
  std::copy_n(saver.Visits.Bodies.begin(), listed, folds.StarfoldProf.begin());
}

/// Starfolds ride outward; the eye stands on the -Z side of the core.
void MoveStarfolds(const UniverseScene& scene, Birth& birth) {
  StarfoldArrays& folds = scene.Run.Folds;
  const Single distance = scene.Process.Universe.Universe_DstCen;
  for (std::size_t i = 0; i < folds.StarfoldX.size(); ++i) {
    folds.StarfoldX[i] += birth.FoldVX[i];
    folds.StarfoldY[i] += birth.FoldVY[i];
    folds.StarfoldZ[i] += birth.FoldVZ[i];
    birth.FoldVX[i] *= birth.CreationDamp;
    birth.FoldVY[i] *= birth.CreationDamp;
    birth.FoldVZ[i] *= birth.CreationDamp;
    folds.StarfoldRel[i] = {folds.StarfoldX[i], folds.StarfoldY[i], folds.StarfoldZ[i] + distance};
  }
}

/// Puts a star into a random starfold.
void SettleStar(UniverseScene& scene, std::size_t i) {
  Saver& saver = scene.Process;
  StarArrays& stars = scene.Run.Stars;
  const int home = DrawBelow(saver.Random, saver.Universe.Universe_Starfold);
  stars.Star[i].StarHome = static_cast<Integer>(home);
  stars.Star[i].StarProf =
      PickProfile(saver, scene.Run.Folds.StarfoldProf[static_cast<std::size_t>(home)]);
  SeedStar(saver, stars, scene.Run.Slots, i);
}

/// One frame of the stars in creation.
class BirthFrame {
 public:
  BirthFrame(UniverseScene& scene, Birth& birth, int frame)
      : scene_(scene),
        birth_(birth),
        stars_(scene.Run.Stars),
        pen_(*scene.Process.Screen.hDCDraw),
        lens_(scene.Process.Screen),
        trail_(scene.Process.Universe.Universe_STrail),
        frame_(frame) {
    const double step = static_cast<double>(kFlareSteps) / scene.Process.Universe.Universe_ESteps;
    flightColor_ =
        scene.Process.Colours.UniverseFlare[static_cast<std::size_t>(RoundHalfEven(frame * step))];
  }

  void StepStars() {
    for (std::size_t i = 0; i < birth_.State.size(); ++i) {
      const std::size_t ring =
          i * static_cast<std::size_t>(trail_) + static_cast<std::size_t>(scene_.Run.TrailHead);
      switch (birth_.State[i]) {
        case BirthState::Flying: FlyOn(i, ring); break;
        case BirthState::Wiping: WipeOn(i, ring); break;
        case BirthState::Settled: LiveOn(i, ring); break;
      }
      birth_.BirthVX[i] *= birth_.CreationDamp;
      birth_.BirthVY[i] *= birth_.CreationDamp;
      birth_.BirthVZ[i] *= birth_.CreationDamp;
    }
  }

 private:
  void Wipe(std::size_t ring) {
    pen_.SetPixelV(stars_.Trail[ring].TrailX, stars_.Trail[ring].TrailY, 0);
  }

  void Plot(std::size_t ring, const View& view, Colour colour) {
    if (!view.InFront()) return;
    PlotView(pen_, lens_, view, stars_.Trail[ring], colour);
  }

  void FlyOn(std::size_t i, std::size_t ring) {
    const UniverseSettings& universe = scene_.Process.Universe;
    if (++birth_.BirthStep[i] > trail_) Wipe(ring);
    const Single draw = scene_.Process.Random();
    if (!(draw < universe.Universe_Persist) && frame_ >= birth_.MinFlightFrames) {
      birth_.State[i] = BirthState::Wiping;
      birth_.BirthStep[i] = 0;
      return;
    }
    birth_.BirthX[i] += birth_.BirthVX[i];
    birth_.BirthY[i] += birth_.BirthVY[i];
    birth_.BirthZ[i] += birth_.BirthVZ[i];
    const double depth = static_cast<double>(universe.Universe_DstCen) + birth_.BirthZ[i];
    Plot(ring, {birth_.BirthX[i], birth_.BirthY[i], depth}, flightColor_);
  }

  /// The star is dark until its trail is gone; then it is reborn.
  void WipeOn(std::size_t i, std::size_t ring) {
    Wipe(ring);
    if (++birth_.BirthStep[i] != trail_) return;
    birth_.State[i] = BirthState::Settled;
    SettleStar(scene_, i);
  }

  void LiveOn(std::size_t i, std::size_t ring) {
    StarState& star = stars_.Star[i];
    ++star.StarAge;
    Wipe(ring);
    const StarMotion& motion =
        scene_.Process.Prepared[static_cast<std::size_t>(star.StarProf)].Star;
    MoveStar(star, motion);
    Plot(ring, ViewStar(star, motion, scene_.Run.Folds), star.StarColor);
  }

  UniverseScene& scene_;
  Birth& birth_;
  StarArrays& stars_;
  Surface::Pen pen_;
  Lens lens_;
  Integer trail_;
  int frame_;
  Colour flightColor_ = 0;
};

void GrowAmbientStars(UniverseScene& scene, const Birth& birth) {
  AmbientArrays& ambient = scene.Run.Ambient;
  StepAmbientStars({scene.Process, ambient, scene.Shape},
                   {0, 0, -scene.Process.Universe.Universe_DstCen}, scene.Growth.ExpandTotal,
                   scene.Growth.ExpandStep, AmbientMode::Growing, scene.TourProfile);
  if (!(birth.CreationDamp > 0)) return;
  for (std::size_t i = 0; i < ambient.AmbVX.size(); ++i) {
    ambient.AmbVX[i] *= birth.CreationDamp;
    ambient.AmbVY[i] *= birth.CreationDamp;
    ambient.AmbVZ[i] *= birth.CreationDamp;
  }
}

/// Over the last quarter of the frames all speed falls away on a quarter cosine.
void RampDamping(const UniverseScene& scene, Birth& birth, int frame) {
  const UniverseSettings& universe = scene.Process.Universe;
  const double rampBegin = universe.Universe_ESteps * 0.75;
  if (!(frame > rampBegin)) return;
  const double progress = (frame - rampBegin) / (universe.Universe_ESteps * (1 - 0.75));
  birth.CreationDamp = static_cast<Single>(static_cast<double>(universe.Universe_Damping) *
                                           std::cos(progress * static_cast<double>(kHalfPi)));
}

/// One frame. False: the run must stop.
bool CreationFrame(UniverseScene& scene, Birth& birth, int frame) {
  Saver& saver = scene.Process;
  StampFrame(saver);
  MoveStarfolds(scene, birth);
  AdvanceAngles(saver);
  BirthFrame(scene, birth, frame).StepStars();
  AdvanceStarHues(saver, scene.Run.Stars);
  scene.Growth.ExpandTotal += scene.Growth.ExpandStep;
  GrowAmbientStars(scene, birth);
  scene.Growth.ExpandStep *= birth.CreationDamp;
  StepNebulaRibbons(saver, scene.Run.Slots, scene.Run.Folds.StarfoldProf);
  RampDamping(scene, birth, frame);
  scene.Run.TrailHead =
      static_cast<Integer>((scene.Run.TrailHead + 1) % saver.Universe.Universe_STrail);
  if (FramePace(saver)) return false;
  if (saver.Mode == RunMode::Preview && frame == 0) PumpOneTick(saver);
  return true;
}

void StopAmbientStars(AmbientArrays& ambient) {
  std::fill(ambient.AmbVX.begin(), ambient.AmbVX.end(), Single{0});
  std::fill(ambient.AmbVY.begin(), ambient.AmbVY.end(), Single{0});
  std::fill(ambient.AmbVZ.begin(), ambient.AmbVZ.end(), Single{0});
}

}  // namespace

void CreateUniverse(UniverseScene& scene) {
  Saver& saver = scene.Process;
  const UniverseSettings& universe = saver.Universe;
  Birth birth(scene.Run.Stars.Star.size(), scene.Run.Folds.StarfoldX.size());
  AssignRounded(birth.MinFlightFrames, universe.Universe_ESteps * 0.25);
  birth.CreationDamp = universe.Universe_Damping;

  InitBodiesAlike(saver, scene.Run.Slots, universe.Universe_Starfold, scene.TourProfile);
  SetUpExpansion(saver, scene.Shape, scene.TourProfile);
  SeedFlight(scene, birth);
  SeedAmbientStars({saver, scene.Run.Ambient, scene.Shape}, scene.TourProfile,
                   scene.Growth.ExpandStep);
  ChooseStarfolds(scene, birth);
  InitBodies(saver, scene.Run.Slots, scene.Run.Folds.StarfoldProf);

  for (int frame = 0; frame < universe.Universe_ESteps; ++frame) {
    if (!CreationFrame(scene, birth, frame)) return;
    if (saver.NewRun) break;
  }
  StopAmbientStars(scene.Run.Ambient);
  for (std::size_t i = 0; i < birth.State.size(); ++i) {
    if (birth.State[i] != BirthState::Settled) SettleStar(scene, i);
  }
}

}  // namespace starfolds

#include "universe/creation.h"

#include <algorithm>

#include "bodies/seed_star.h"
#include "bodies/star_motion.h"
#include "bodies/star_step.h"
#include "numbers/conversions.h"
#include "numbers/elementary.h"
#include "universe/ambient.h"
#include "universe/pacing.h"

namespace starfolds {
namespace {

enum class BirthState : Integer { Flying, Wiping, Settled };

/// A star in the blast, until it has settled in a starfold.
struct BirthStar {
  Single BirthX = 0, BirthY = 0, BirthZ = 0;
  Single BirthVX = 0, BirthVY = 0, BirthVZ = 0;
  BirthState State = BirthState::Flying;
  Integer BirthStep = 0;  // frames in the state
};

/// The creation velocity of a starfold; gravity has another.
struct FoldVelocity {
  Single FoldVX = 0, FoldVY = 0, FoldVZ = 0;
};

/// The state of one creation.
struct Birth {
  std::vector<BirthStar> Stars;
  std::vector<FoldVelocity> Folds;
  Single CreationDamp = 1;  // what all speeds are multiplied by in this frame
  Integer MinFlightFrames = 0;

  Birth(std::size_t stars, std::size_t folds) : Stars(stars), Folds(folds) {}
};

/// Shares of the 66 bodies as running sums. If all are 0, profile 0 has the whole.
struct Shares {
  std::array<Long, kBodyCount> Share{};
  std::array<Long, kBodyCount> ShareSum{};
  Long Total = 0;
  bool OnlyFirst = false;

  explicit Shares(const ProcessState& process) {
    for (int k = 0; k < kBodyCount; ++k) {
      Share[k] = k < kFirstComposite ? process.Profiles[k].UniFoldPct
                                     : process.Composites[k - kFirstComposite].CompFoldPct;
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
  for (BirthStar& star : birth.Stars) {
    const ExpansionVector start =
        SeedExpansionVector(scene.Process, scene.Shape, scene.TourProfile, scene.Growth.ExpandStep,
                            0, ExpansionMode::Burst);
    star.BirthX = start.X;
    star.BirthY = start.Y;
    star.BirthZ = start.Z;
    star.BirthVX = start.VX;
    star.BirthVY = start.VY;
    star.BirthVZ = start.VZ;
  }
}

/// Chooses what each starfold is, and gives it the path of one random star.
void ChooseStarfolds(UniverseScene& scene, Birth& birth) {
  ProcessState& process = scene.Process;
  StarfoldArrays& folds = scene.Arrays.Folds;
  const UniverseSettings& universe = process.Universe;
  const Shares shares(process);
  int cursor = 0;
  for (std::size_t i = 0; i < folds.StarfoldProf.size(); ++i) {
    folds.StarfoldProf[i] =
        universe.Universe_GVisit ? shares.PickInTurn(cursor) : shares.PickByShare(process.Random());
    const int pick = DrawBelow(process.Random, universe.Universe_Stars);
    const BirthStar& star = birth.Stars[static_cast<std::size_t>(pick)];
    folds.StarfoldX[i] = star.BirthX;
    folds.StarfoldY[i] = star.BirthY;
    folds.StarfoldZ[i] = star.BirthZ;
    birth.Folds[i] = {star.BirthVX, star.BirthVY, star.BirthVZ};
  }
  if (!universe.Universe_Tour || universe.Universe_GVisit) return;
  const auto listed = std::min<std::size_t>(process.Visits.Count, folds.StarfoldProf.size());
  std::copy_n(process.Visits.Bodies.begin(), listed, folds.StarfoldProf.begin());
}

/// Moves the starfolds outward; the eye is on the -Z side of the core.
void MoveStarfolds(const UniverseScene& scene, Birth& birth) {
  StarfoldArrays& folds = scene.Arrays.Folds;
  const Single distance = scene.Process.RunUniverse.RunDstCen;
  for (std::size_t i = 0; i < folds.StarfoldX.size(); ++i) {
    FoldVelocity& velocity = birth.Folds[i];
    folds.StarfoldX[i] += velocity.FoldVX;
    folds.StarfoldY[i] += velocity.FoldVY;
    folds.StarfoldZ[i] += velocity.FoldVZ;
    velocity.FoldVX *= birth.CreationDamp;
    velocity.FoldVY *= birth.CreationDamp;
    velocity.FoldVZ *= birth.CreationDamp;
    folds.StarfoldRel[i] = {folds.StarfoldX[i], folds.StarfoldY[i], folds.StarfoldZ[i] + distance};
  }
}

/// Puts a star into a random starfold.
void SettleStar(UniverseScene& scene, std::size_t i) {
  ProcessState& process = scene.Process;
  StarArrays& stars = scene.Arrays.Stars;
  const int home = DrawBelow(process.Random, process.Universe.Universe_Starfold);
  stars.Star[i].StarHome = static_cast<Integer>(home);
  stars.Star[i].StarProf =
      PickProfile(process, scene.Arrays.Folds.StarfoldProf[static_cast<std::size_t>(home)]);
  SeedStar(process, stars, scene.Arrays.Slots, i);
}

/// One frame of the stars in creation.
class BirthFrame {
 public:
  BirthFrame(UniverseScene& scene, Birth& birth, int frame)
      : scene_(scene),
        birth_(birth),
        stars_(scene.Arrays.Stars),
        pen_(*scene.Process.Screen.hDCDraw),
        lens_(scene.Process.Screen),
        trail_(scene.Process.RunUniverse.RunTrail),
        frame_(frame) {
    const double step = static_cast<double>(kFlareSteps) / scene.Process.Universe.Universe_ESteps;
    flightColor_ =
        scene.Process.Colours.UniverseFlare[static_cast<std::size_t>(RoundHalfEven(frame * step))];
  }

  void StepStars() {
    for (std::size_t i = 0; i < birth_.Stars.size(); ++i) {
      BirthStar& star = birth_.Stars[i];
      const std::size_t ring =
          i * static_cast<std::size_t>(trail_) + static_cast<std::size_t>(scene_.Arrays.TrailHead);
      switch (star.State) {
        case BirthState::Flying: FlyOn(star, ring); break;
        case BirthState::Wiping: WipeOn(star, i, ring); break;
        case BirthState::Settled: LiveOn(i, ring); break;
      }
      star.BirthVX *= birth_.CreationDamp;
      star.BirthVY *= birth_.CreationDamp;
      star.BirthVZ *= birth_.CreationDamp;
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

  void FlyOn(BirthStar& star, std::size_t ring) {
    const UniverseSettings& universe = scene_.Process.Universe;
    if (++star.BirthStep > trail_) Wipe(ring);
    const Single draw = scene_.Process.Random();
    if (!(draw < universe.Universe_Persist) && frame_ >= birth_.MinFlightFrames) {
      star.State = BirthState::Wiping;
      star.BirthStep = 0;
      return;
    }
    star.BirthX += star.BirthVX;
    star.BirthY += star.BirthVY;
    star.BirthZ += star.BirthVZ;
    const double depth = static_cast<double>(scene_.Process.RunUniverse.RunDstCen) + star.BirthZ;
    Plot(ring, {star.BirthX, star.BirthY, depth}, flightColor_);
  }

  /// The star is dark until its trail is gone; then it is reborn.
  void WipeOn(BirthStar& star, std::size_t i, std::size_t ring) {
    Wipe(ring);
    if (++star.BirthStep != trail_) return;
    star.State = BirthState::Settled;
    SettleStar(scene_, i);
  }

  void LiveOn(std::size_t i, std::size_t ring) {
    StarState& star = stars_.Star[i];
    AgeStar(star);
    Wipe(ring);
    const StarMotion& motion =
        scene_.Process.Prepared[static_cast<std::size_t>(star.StarProf)].Star;
    MoveStar(star, motion);
    Plot(ring, ViewStar(star, motion, scene_.Arrays.Folds), star.StarColor);
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
  AmbientArrays& ambient = scene.Arrays.Ambient;
  StepAmbientStars({scene.Process, ambient, scene.Shape},
                   {0, 0, -scene.Process.RunUniverse.RunDstCen}, scene.Growth.ExpandTotal,
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
  birth.CreationDamp =
      static_cast<Single>(static_cast<double>(scene.Process.RunUniverse.RunDamping) *
                          Cosine(progress * static_cast<double>(kHalfPi)));
}

/// One frame. False: the run must stop.
bool CreationFrame(UniverseScene& scene, Birth& birth, int frame) {
  ProcessState& process = scene.Process;
  StampFrame(process);
  MoveStarfolds(scene, birth);
  AdvanceAngles(process.Prepared);
  BirthFrame(scene, birth, frame).StepStars();
  AdvanceStarHues(process, scene.Arrays.Stars);
  scene.Growth.ExpandTotal += scene.Growth.ExpandStep;
  GrowAmbientStars(scene, birth);
  scene.Growth.ExpandStep *= birth.CreationDamp;
  StepNebulaRibbons(process, scene.Arrays.Slots, scene.Arrays.Folds.StarfoldProf);
  RampDamping(scene, birth, frame);
  scene.Arrays.TrailHead =
      static_cast<Integer>((scene.Arrays.TrailHead + 1) % process.RunUniverse.RunTrail);
  if (FramePaceAhead(process)) return false;
  if (process.Mode == RunMode::Preview && frame == 0) PumpOneTick(process);
  return true;
}

void StopAmbientStars(AmbientArrays& ambient) {
  std::fill(ambient.AmbVX.begin(), ambient.AmbVX.end(), Single{0});
  std::fill(ambient.AmbVY.begin(), ambient.AmbVY.end(), Single{0});
  std::fill(ambient.AmbVZ.begin(), ambient.AmbVZ.end(), Single{0});
}

}  // namespace

void CreateUniverse(UniverseScene& scene) {
  ProcessState& process = scene.Process;
  const UniverseSettings& universe = process.Universe;
  Birth birth(scene.Arrays.Stars.Star.size(), scene.Arrays.Folds.StarfoldX.size());
  AssignRounded(birth.MinFlightFrames, universe.Universe_ESteps * 0.25);
  birth.CreationDamp = process.RunUniverse.RunDamping;

  FinishHueWork(process, scene.Arrays.Stars);
  InitBodiesAlike(process, scene.Arrays.Slots, universe.Universe_Starfold, scene.TourProfile);
  SetUpExpansion(process, scene.Shape, scene.TourProfile);
  SeedFlight(scene, birth);
  SeedAmbientStars({process, scene.Arrays.Ambient, scene.Shape}, scene.TourProfile,
                   scene.Growth.ExpandStep);
  ChooseStarfolds(scene, birth);
  InitBodies(process, scene.Arrays.Slots, scene.Arrays.Folds.StarfoldProf);

  for (int frame = 0; frame < universe.Universe_ESteps; ++frame) {
    if (!CreationFrame(scene, birth, frame)) return;
    if (process.Requests.NewRun()) break;
  }
  StopAmbientStars(scene.Arrays.Ambient);
  for (std::size_t i = 0; i < birth.Stars.size(); ++i) {
    if (birth.Stars[i].State != BirthState::Settled) SettleStar(scene, i);
  }
}

}  // namespace starfolds

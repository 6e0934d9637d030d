// The arrays of a run, grouped by who reads them. They are sized once when a run begins and belong
// to it: nothing of them survives. A star, a starfold, an ambient star and a comet star is one
// index into the parallel arrays of its group. What is read together in the star loop lies
// together.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "bodies/body_slots.h"
#include "numbers/words.h"
#include "platform/surface.h"
#include "prepared/prepared.h"

namespace starfolds {

/// The kinds of flare. A new star becomes a plain one at the end; a nova and a pulsar are
/// re-seeded.
enum class FlareKind : Integer { None, NewStar, Nova, Pulsar };

/// What the star loop reads and writes of a star in every frame: one cache line.
struct alignas(64) StarState {
  // Place in the body's frame, of which Y is the axis; X and Z turn together.
  Single StarX = 0, StarZ = 0;
  Single StarSpinCos = 1, StarSpinSin = 0;
  Single StarY = 0;
  Single StarHue = 0;  // degrees
  Colour StarColor = 0;
  Integer StarProf = 0, StarHome = 0, StarLevel = 0;
  FlareKind StarFlare = FlareKind::None;
  Integer StarFlareLeft = 0;  // frames left of the flare; 0: the star is plain
  Integer StarWait = 0;       // frames until a star that waits for its trail is re-seeded
  Single StarVX = 0, StarVY = 0, StarVZ = 0;  // per frame; StarVY is a wave star's phase
  Long StarAge = 0;                           // frames since it was seeded
  Long StarFrame = 0;                         // the `BodyFrame` of a settled star; 0: it has none

  bool InFlare() const { return StarFlareLeft != 0; }
};
static_assert(sizeof(StarState) == 64);

/// What only a star in flare needs.
struct FlareState {
  Integer StarFlareFrames = 0;
  Single StarFlareExt = 0;
  Long StarFlareX = 0, StarFlareY = 0;                 // a new star's last plot, on the screen
  Single StarFlareZ = 0;                               // and its depth
  Single StarViewX = 0, StarViewY = 0, StarViewZ = 0;  // a nova's or pulsar's last, to the eye
};

/// A pixel that a star has drawn.
struct TrailPlace {
  Long TrailX = 0, TrailY = 0;
};

/// Per star; the trails hold `trail` places per star, as a ring that all stars share the head of.
struct StarArrays {
  std::vector<StarState> Star;
  std::vector<FlareState> Flare;
  std::vector<TrailPlace> Trail;
  /// The last frame left its hue work to the next one (only without trails).
  bool HueWorkDue = false;

  StarArrays(std::size_t stars, std::size_t trail)
      : Star(stars), Flare(stars), Trail(stars * trail) {}
};

/// The position of a starfold relative to the eye, updated every frame. The values are Singles,
/// kept as doubles because that is how every star of it reads them.
struct RelPlace {
  double X = 0, Y = 0, Z = 0;  // `StarfoldRelX`, `StarfoldRelY`, `StarfoldRelZ`

  RelPlace() = default;
  RelPlace(Single x, Single y, Single z) : X(x), Y(y), Z(z) {}
};

/// One level of a profile, for one frame: all that its stars share, in a cache line.
struct alignas(64) BodyFrame {
  double TiltCos = 1, TiltSin = 0;
  const StarMotion* Motion = nullptr;
  const Colour* HueTable = nullptr;  // nullptr if the hues do not cycle
  Single HWheelInc = 0;
  bool AxisPlane = false;
};
static_assert(sizeof(BodyFrame) == 64);

/// Per starfold.
struct StarfoldArrays {
  std::vector<Integer> StarfoldProf;  // 0 to 49 a profile, 50 and up a composite
  std::vector<Single> StarfoldX, StarfoldY, StarfoldZ;
  std::vector<Single> StarfoldVX, StarfoldVY, StarfoldVZ;  // from gravity
  std::vector<RelPlace> StarfoldRel;

  explicit StarfoldArrays(std::size_t folds)
      : StarfoldProf(folds),
        StarfoldX(folds),
        StarfoldY(folds),
        StarfoldZ(folds),
        StarfoldVX(folds),
        StarfoldVY(folds),
        StarfoldVZ(folds),
        StarfoldRel(folds) {}
};

/// Per ambient star.
struct AmbientArrays {
  std::vector<Single> AmbX, AmbY, AmbZ, AmbVX, AmbVY, AmbVZ;
  std::vector<Long> AmbScrX, AmbScrY;  // its last plot
  std::vector<Single> AmbDepth;
  std::vector<Integer> AmbLeft;     // frames left of its flash
  std::vector<Single> AmbColorAge;  // in steps of the universe's flare table
  std::vector<Colour> AmbRamp;      // grey by frame of the flash

  AmbientArrays(std::size_t stars, std::size_t frames)
      : AmbX(stars),
        AmbY(stars),
        AmbZ(stars),
        AmbVX(stars),
        AmbVY(stars),
        AmbVZ(stars),
        AmbScrX(stars),
        AmbScrY(stars),
        AmbDepth(stars),
        AmbLeft(stars),
        AmbColorAge(stars),
        AmbRamp(frames + 1) {}
};

inline constexpr int kCometStars = 2500;
inline constexpr int kMaxComets = 100;

/// A comet's nucleus: it is not drawn and sheds stars.
struct CometHead {
  bool CometLive = false;  // it still sheds
  Integer CometLeft = 0;   // stars of it that are alive; 0: the slot is free
  Integer CometLevel = 0;
  Single CometX = 0, CometY = 0, CometZ = 0;
  Single CometSpinCos = 1, CometSpinSin = 0;
  Single CometPhase = 0;  // place on the ribbon of a Nebula
};

/// The comets of the visited starfold: a pool of stars that all of them share.
struct CometArrays {
  std::vector<Single> CometStarX, CometStarY, CometStarZ, CometStarVX, CometStarVY, CometStarVZ;
  std::vector<Long> CometStarScrX, CometStarScrY;
  std::vector<Integer> CometStarHue;  // age in frames
  std::vector<char> CometStarLive;
  std::array<CometHead, kMaxComets + 1> Heads;
  Integer CometCount = 0;  // comets that the pool has room for

  CometArrays()
      : CometStarX(kCometStars),
        CometStarY(kCometStars),
        CometStarZ(kCometStars),
        CometStarVX(kCometStars),
        CometStarVY(kCometStars),
        CometStarVZ(kCometStars),
        CometStarScrX(kCometStars),
        CometStarScrY(kCometStars),
        CometStarHue(kCometStars),
        CometStarLive(kCometStars) {}
};

/// The `BodyFrame`s by profile and level, from index 1 on; 0 is not used.
using BodyFrames = std::array<BodyFrame, kProfileCount * kMaxLevels + 1>;

constexpr std::size_t FrameIndex(std::size_t profile, std::size_t level) {
  return profile * kMaxLevels + level + 1;
}

/// Everything a run owns.
struct RunArrays {
  StarArrays Stars;
  BodyFrames Frames;
  StarfoldArrays Folds;
  AmbientArrays Ambient;
  CometArrays Comets;
  BodySlots Slots;
  Integer TrailHead = 0;  // the ring place that all stars overwrite this frame

  /// Sized by the clamped settings of the run and `trail` places per star; a run of a single body
  /// has no ambient stars.
  RunArrays(const UniverseSettings& universe, Integer trail, Integer folds, Integer ambientStars)
      : Stars(static_cast<std::size_t>(universe.Universe_Stars), static_cast<std::size_t>(trail)),
        Folds(static_cast<std::size_t>(folds)),
        Ambient(static_cast<std::size_t>(ambientStars),
                ambientStars > 0 ? static_cast<std::size_t>(universe.Universe_AmFrames) : 0) {}
};

}  // namespace starfolds

// The arrays of a run, grouped by who reads them. They are sized once when a run begins and belong
// to it: nothing of them survives. A star, a starfold, an ambient star and a comet star is one
// index into the parallel arrays of its group.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "bodies/body_slots.h"
#include "numbers/words.h"
#include "platform/surface.h"

namespace starfolds {

/// Per star; the trails hold `trail` places per star, as a ring that all stars share the head of.
struct StarArrays {
  // Read and written every frame.
  std::vector<Single> StarX, StarY, StarZ;     // place in the body's frame; Y is its axis
  std::vector<Single> StarVX, StarVY, StarVZ;  // per frame; StarVY is a wave star's phase
  std::vector<Single> StarSpinCos, StarSpinSin;
  std::vector<Colour> StarColor;
  std::vector<Single> StarHue;  // degrees
  std::vector<Integer> StarProf, StarHome, StarLevel;
  std::vector<Integer> StarNewLeft, StarNovaLeft, StarPulsarLeft;  // at most one is above 0
  std::vector<Integer> StarWait;  // frames until a star that waits for its trail is re-seeded
  std::vector<Long> StarAge;      // frames since it was seeded
  std::vector<Long> TrailX, TrailY;

  // Read by stars in flare.
  std::vector<Integer> StarFlareFrames;
  std::vector<Single> StarFlareExt;
  std::vector<Long> StarFlareX, StarFlareY;             // a new star's last plot, on the screen
  std::vector<Single> StarFlareZ;                       // and its depth
  std::vector<Single> StarViewX, StarViewY, StarViewZ;  // a nova's or pulsar's last, to the eye

  StarArrays(std::size_t stars, std::size_t trail)
      : StarX(stars),
        StarY(stars),
        StarZ(stars),
        StarVX(stars),
        StarVY(stars),
        StarVZ(stars),
        StarSpinCos(stars),
        StarSpinSin(stars),
        StarColor(stars),
        StarHue(stars),
        StarProf(stars),
        StarHome(stars),
        StarLevel(stars),
        StarNewLeft(stars),
        StarNovaLeft(stars),
        StarPulsarLeft(stars),
        StarWait(stars),
        StarAge(stars),
        TrailX(stars * trail),
        TrailY(stars * trail),
        StarFlareFrames(stars),
        StarFlareExt(stars),
        StarFlareX(stars),
        StarFlareY(stars),
        StarFlareZ(stars),
        StarViewX(stars),
        StarViewY(stars),
        StarViewZ(stars) {}
};

/// Per starfold.
struct StarfoldArrays {
  std::vector<Integer> StarfoldProf;  // 0 to 49 a profile, 50 and up a composite
  std::vector<Single> StarfoldX, StarfoldY, StarfoldZ;
  std::vector<Single> StarfoldVX, StarfoldVY, StarfoldVZ;        // from gravity
  std::vector<Single> StarfoldRelX, StarfoldRelY, StarfoldRelZ;  // to the eye, anew every frame

  explicit StarfoldArrays(std::size_t folds)
      : StarfoldProf(folds),
        StarfoldX(folds),
        StarfoldY(folds),
        StarfoldZ(folds),
        StarfoldVX(folds),
        StarfoldVY(folds),
        StarfoldVZ(folds),
        StarfoldRelX(folds),
        StarfoldRelY(folds),
        StarfoldRelZ(folds) {}
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

/// Everything a run owns.
struct RunArrays {
  StarArrays Stars;
  StarfoldArrays Folds;
  AmbientArrays Ambient;
  CometArrays Comets;
  BodySlots Slots;
  Integer TrailHead = 0;  // the ring place that all stars overwrite this frame

  /// Sized by the clamped settings of the run.
  RunArrays(const UniverseSettings& universe, Integer folds, Integer ambientStars)
      : Stars(static_cast<std::size_t>(universe.Universe_Stars),
              static_cast<std::size_t>(universe.Universe_STrail)),
        Folds(static_cast<std::size_t>(folds)),
        Ambient(static_cast<std::size_t>(ambientStars),
                static_cast<std::size_t>(universe.Universe_AmFrames)) {}
};

}  // namespace starfolds

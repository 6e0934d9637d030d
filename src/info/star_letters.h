// Stars that fly together to form letters, and burst to form the next ones.
#pragma once

#include <cstdint>
#include <vector>

#include "numbers/rnd.h"
#include "numbers/words.h"
#include "platform/surface.h"

namespace starfolds {

/// A place on the surface, in pixels.
struct LetterPoint {
  Long X = 0;
  Long Y = 0;
};

/// Plots as the effect does: a star wipes its last pixel and writes its next one, and nothing else
/// touches the surface, which stays as large as it is meanwhile. A few stars never take part: they
/// drift through the sky.
class StarLetters {
 public:
  StarLetters(Surface& surface, int stars, std::uint64_t seed);

  /// All stars burst from where they are, at first in the middle; then each makes for a place of
  /// its own among `points`. Stars that find none fly on.
  void Form(const std::vector<LetterPoint>& points);

  /// One frame.
  void Step();

  /// How many stars stand within a pixel of where they belong.
  int Settled() const;

 private:
  struct Star {
    Single X = 0;
    Single Y = 0;
    Single VX = 0;
    Single VY = 0;
    Single HomeX = 0;
    Single HomeY = 0;
    Long PixelX = -1;
    Long PixelY = -1;
    int Flare = 0;  // frames left of a new star
    bool HasHome = false;
    bool Drifts = false;
  };

  void Burst(Star& star);
  void SetAdrift(Star& star);
  void Move(Star& star) const;
  void Plot(Star& star, Surface::Pen& pen);
  void PlotFlare(const Star& star, Colour colour, Surface::Pen& pen) const;
  Single Centre(int size) const { return static_cast<Single>(size) / 2; }

  Surface& surface_;
  Rnd random_;
  std::vector<Star> stars_;
  int frame_ = 0;  // since the burst
  int hue_ = 0;
};

}  // namespace starfolds

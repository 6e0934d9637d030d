// Stars that fly together to form letters, then burst and form the next ones.
#pragma once

#include <cstdint>
#include <vector>

#include "numbers/rnd.h"
#include "numbers/words.h"
#include "platform/surface.h"

namespace starfolds {

/// A position on the surface, in pixels.
struct LetterPoint {
  Long X = 0;
  Long Y = 0;
};

/// Plots like the effect: a star erases its last pixel and plots its next one. Nothing else may
/// draw on the surface, and it must keep its size. A few stars are not part of the letters and
/// drift across the picture.
class StarLetters {
 public:
  StarLetters(Surface& surface, int stars, std::uint64_t seed);

  /// All stars burst from where they are, at first in the centre; then each flies to one of
  /// `points`. Stars without a point fly on.
  void Form(const std::vector<LetterPoint>& points);

  /// Advances by one frame.
  void Step();

  /// The number of stars within a pixel of their point.
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
    int Flare = 0;  // frames left of its new-star flare
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
  int frame_ = 0;  // number since the burst
  int hue_ = 0;
};

}  // namespace starfolds

#include "info/star_letters.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "colour/tables.h"
#include "numbers/conversions.h"

namespace starfolds {
namespace {

constexpr int kBurstFrames = 40;   // before the stars fly to their points
constexpr Single kBurstSpeed = 9;  // pixels per frame, of the fastest star
constexpr Single kBurstDamping = 0.97F;
constexpr Single kPull = 0.01F;  // share of the distance, per frame
constexpr Single kDamping = 0.86F;

constexpr Single kFlareChance = 0.0008F;
constexpr int kFlareFrames = 14;

// The hue wheel of the letters: `HueToRgb`.
constexpr int kBase = 95;
constexpr int kStrength = 80;
constexpr int kHues = 360;
constexpr int kHuesAcross = 220;  // hues from the left edge to the right edge

constexpr std::size_t kDriftEvery = 24;  // one of so many stars drifts
constexpr Single kDriftSpeed = 0.35F;
constexpr Colour kDriftColour = 0x00806850;

/// A position that leaves the surface at one edge re-enters at the opposite one.
Single Wrapped(Single place, int size) {
  if (place < 0) return place + static_cast<Single>(size);
  if (place >= static_cast<Single>(size)) return place - static_cast<Single>(size);
  return place;
}

}  // namespace

StarLetters::StarLetters(Surface& surface, int stars, std::uint64_t seed)
    : surface_(surface), random_(seed), stars_(static_cast<std::size_t>(std::max(stars, 0))) {
  for (std::size_t i = 0; i < stars_.size(); ++i) {
    Star& star = stars_[i];
    star.X = Centre(surface.Width());
    star.Y = Centre(surface.Height());
    if (i % kDriftEvery == 0) SetAdrift(star);
  }
}

void StarLetters::SetAdrift(Star& star) {
  star.Drifts = true;
  star.X = random_() * static_cast<Single>(surface_.Width());
  star.Y = random_() * static_cast<Single>(surface_.Height());
  star.VX = (random_() - 0.5F) * kDriftSpeed;
  star.VY = (random_() - 0.5F) * kDriftSpeed;
}

void StarLetters::Form(const std::vector<LetterPoint>& points) {
  frame_ = 0;
  // Each star takes one of the remaining points; if there are more points than stars, the points
  // left out are distributed evenly.
  std::vector<LetterPoint> places = points;
  for (Star& star : stars_) {
    if (star.Drifts) continue;
    Burst(star);
    star.HasHome = !places.empty();
    if (!star.HasHome) continue;
    const auto choice = static_cast<std::size_t>(random_() * static_cast<Single>(places.size()));
    star.HomeX = static_cast<Single>(places[choice].X);
    star.HomeY = static_cast<Single>(places[choice].Y);
    places[choice] = places.back();
    places.pop_back();
  }
}

void StarLetters::Burst(Star& star) {
  const Single angle = random_() * 2 * std::numbers::pi_v<Single>;
  const Single speed = random_() * kBurstSpeed;
  star.VX = speed * std::cos(angle);
  star.VY = speed * std::sin(angle);
}

void StarLetters::Move(Star& star) const {
  if (star.Drifts) {
    star.X = Wrapped(star.X, surface_.Width());
    star.Y = Wrapped(star.Y, surface_.Height());
  } else if (frame_ <= kBurstFrames) {
    star.VX *= kBurstDamping;
    star.VY *= kBurstDamping;
  } else if (star.HasHome) {
    star.VX = (star.VX + (star.HomeX - star.X) * kPull) * kDamping;
    star.VY = (star.VY + (star.HomeY - star.Y) * kPull) * kDamping;
  }
  star.X += star.VX;
  star.Y += star.VY;
}

void StarLetters::Step() {
  ++frame_;
  hue_ = (hue_ + 1) % kHues;
  Surface::Pen pen(surface_);
  for (Star& star : stars_) {
    const Single draw = random_();
    if (star.Flare > 0) {
      PlotFlare(star, 0, pen);
      --star.Flare;
    } else if (draw < kFlareChance) {
      star.Flare = kFlareFrames;
    }
    pen.SetPixelV(star.PixelX, star.PixelY, 0);
    Move(star);
  }
  for (Star& star : stars_) Plot(star, pen);
}

void StarLetters::Plot(Star& star, Surface::Pen& pen) {
  star.PixelX = RoundedToLimits<Long>(star.X);
  star.PixelY = RoundedToLimits<Long>(star.Y);
  const int across = static_cast<int>(static_cast<std::int64_t>(star.PixelX) * kHuesAcross /
                                      std::max(surface_.Width(), 1));
  const int hue = ((across + hue_) % kHues + kHues) % kHues;
  const Colour colour =
      star.Drifts ? kDriftColour : HueToRgb(hue, kBase, kStrength, kStrength, kStrength);
  pen.SetPixelV(star.PixelX, star.PixelY, colour);
  if (star.Flare > 0) PlotFlare(star, PackRgb(255, 255, 255), pen);
}

/// The cross of a new star, which shrinks as it fades.
void StarLetters::PlotFlare(const Star& star, Colour colour, Surface::Pen& pen) const {
  const Long extent = 1 + star.Flare / 6;
  for (Long i = 1; i <= extent; ++i) {
    pen.SetPixelV(star.PixelX - i, star.PixelY, colour);
    pen.SetPixelV(star.PixelX + i, star.PixelY, colour);
    pen.SetPixelV(star.PixelX, star.PixelY - i, colour);
    pen.SetPixelV(star.PixelX, star.PixelY + i, colour);
  }
}

int StarLetters::Settled() const {
  const auto near = [](const Star& star) {
    return star.HasHome && std::abs(star.X - star.HomeX) < 1 && std::abs(star.Y - star.HomeY) < 1;
  };
  return static_cast<int>(std::count_if(stars_.begin(), stars_.end(), near));
}

}  // namespace starfolds

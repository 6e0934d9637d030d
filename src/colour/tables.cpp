#include "colour/tables.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "numbers/conversions.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

Colour Grey(double level) {
  const int rounded = RoundedToLimits<Integer>(level);
  return PackRgb(rounded, rounded, rounded);
}

int FloorToInt(double value) { return static_cast<int>(FloorToWhole(value)); }

int WrapHue(std::int64_t hue) { return static_cast<int>(WrapIndex(hue, 360)); }

/// The six sectors of the hue circle: which channel is full, which one rises or falls, and which
/// one rests at the base. `full`, `rising` and `falling` make a channel from its strength.
template <class Full, class Rising, class Falling>
Colour HueSector(int hue, int base, Full full, Rising rising, Falling falling, int red, int green,
                 int blue) {
  if (hue < 60) return PackRgb(full(red), rising(green), base);
  if (hue < 120) return PackRgb(falling(red), full(green), base);
  if (hue < 180) return PackRgb(base, full(green), rising(blue));
  if (hue < 240) return PackRgb(base, falling(green), full(blue));
  if (hue < 300) return PackRgb(rising(red), base, full(blue));
  if (hue < 360) return PackRgb(full(red), base, falling(blue));
  return 0;
}

/// The distance of a star from the rim of its body, as a share of the body's radius. Infinite for a
/// body of radius 0, whose nested levels end at the core.
double RimDistance(const PreparedProfile& run, const SeededStar& star) {
  if (run.RunMaxRadius == 0) return std::numeric_limits<double>::infinity();
  const double square = star.X * star.X + star.Y * star.Y + star.Z * star.Z;
  return std::abs(1 - std::sqrt(std::abs(square)) / run.RunMaxRadius);
}

/// Hue by `Starfold_ColorComp`, in degrees and not yet within the circle.
double SeedHue(const StarfoldProfile& profile, const PreparedProfile& run, const SeededStar& star,
               Rnd& random) {
  const double wheel = run.HueWheel;
  const double distance = RimDistance(run, star);
  switch (profile.Starfold_ColorComp) {
    case 0: return star.RotationStep * static_cast<double>(run.RunColorTenth) * 10 + wheel;
    case 1:
      return std::sqrt(star.RotationStep * static_cast<double>(run.RunColorTenth) * 1000) + wheel;
    case 2: return distance * run.RunColorTenth + wheel;
    case 3: return distance * distance * run.RunColorTenth + wheel;
    case 5: return star.Span * static_cast<double>(run.RunColorThousandth) * 360 + wheel;
    case 6:
      return wheel + star.HueOffset + random() * static_cast<double>(run.RunColorThousandth) * 10;
    default: return wheel;
  }
}

}  // namespace

Colour HueToRgb(int hue, int base, int red, int green, int blue) {
  const double t = (hue % 60) * 0.016666666;
  const auto full = [&](int x) { return base + 2 * x; };
  const auto rising = [&](int x) { return FloorToInt(2 * t * x + base); };
  const auto falling = [&](int x) { return FloorToInt(2 * (1 - t) * x + base); };
  return HueSector(hue, base, full, rising, falling, red, green, blue);
}

Colour FlareHue(int hue) { return HueToRgb(WrapHue(hue), 55, 100, 100, 100); }

Colour ScaleColor(Colour colour, Single factor) {
  const auto scaled = [&](int channel) {
    return static_cast<int>(RoundedToLimits<Integer>(channel * static_cast<double>(factor)));
  };
  return PackRgb(scaled(RedOf(colour)), scaled(GreenOf(colour)), scaled(BlueOf(colour)));
}

void BuildHueWheel(std::array<Colour, 361>& table, const StarfoldProfile& profile) {
  const int base = RoundedToLimits<Integer>(profile.Starfold_HueBase * (255.0 / 100));
  const int blend = ClampTo<int>(profile.Starfold_HueBlend, 1, 60);
  const Single c = static_cast<Single>((255 - base) * 0.01);
  const Single perDegree = static_cast<Single>(1.0 / blend);
  for (int hue = 0; hue < 360; ++hue) {
    // The ramp restarts every `blend` degrees inside its fixed sector: the saw-tooth is intended.
    const Single t = static_cast<Single>(hue % blend) * perDegree;
    const auto full = [&](int x) { return FloorToInt(x * static_cast<double>(c) + base); };
    const auto rising = [&](int x) { return FloorToInt(static_cast<double>(t) * c * x + base); };
    const auto falling = [&](int x) {
      return FloorToInt((1 - static_cast<double>(t)) * c * x + base);
    };
    table[hue] = HueSector(hue, base, full, rising, falling, profile.Starfold_HueRed,
                           profile.Starfold_HueGrn, profile.Starfold_HueBlu);
  }
  table[360] = table[0];
}

void BuildFlareTable(FlareTable& table, int startHue, int endHue) {
  const Colour start = FlareHue(startHue);
  for (int i = 0; i < 8; ++i) {
    const double f = i / 7.0;
    const auto fade = [&](int channel) {
      return static_cast<int>(RoundHalfEven(255 - (255 - channel) * f));
    };
    table[i] = PackRgb(fade(RedOf(start)), fade(GreenOf(start)), fade(BlueOf(start)));
  }
  Single dimming = 1;
  for (int i = 8; i < 72; ++i) {
    const double hue = (i - 8) / 64.0 * (endHue - startHue) + startHue;
    dimming = static_cast<Single>(((120 - i) + 8) / 120.0);
    table[i] = ScaleColor(FlareHue(static_cast<int>(RoundHalfEven(hue))), dimming);
  }
  const Colour end = FlareHue(endHue);
  for (int i = 72; i < kFlareSteps; ++i) {
    table[i] = ScaleColor(end, static_cast<Single>((80 - i) / 9.0 * dimming));
  }
}

void BuildHueWheels(ColourTables& tables, const ProfileArray& profiles) {
  for (int p = 0; p < kProfileCount; ++p) {
    BuildHueWheel(tables.Profile[p].HueTable, profiles[p]);
  }
}

void BuildFlareTables(ColourTables& tables, const ProfileArray& profiles, int universeStart,
                      int universeEnd) {
  BuildFlareTable(tables.UniverseFlare, universeStart, universeEnd);
  for (int p = 0; p < kProfileCount; ++p) {
    const StarfoldProfile& profile = profiles[p];
    BuildFlareTable(tables.Profile[p].NovaRamp, profile.Starfold_HWC_Start,
                    profile.Starfold_HWC_End);
  }
}

void BuildNewStarRamp(ColourTables& tables, ProfileArray& profiles) {
  for (int p = 0; p < kProfileCount; ++p) {
    StarfoldProfile& profile = profiles[p];
    auto& ramp = tables.Profile[p].NewColors;
    ramp.fill(0);
    profile.Starfold_NewFrames = ClampTo<Integer>(profile.Starfold_NewFrames, 0, 99);
    const int frames = profile.Starfold_NewFrames;
    if (frames == 0) continue;
    const int rise = frames / 4;
    for (int j = 0; j < rise; ++j) {
      const double x = (j + 1) * static_cast<double>(kHalfPi) / (rise + 1);
      ramp[frames - j] = Grey(Sine(x) * 175 + 80);
    }
    for (int i = rise; i <= frames; ++i) {
      const double x = (i - rise) * static_cast<double>(kHalfPi) / (frames - rise);
      ramp[frames - i] = Grey(Cosine(x) * 175 + 80);
    }
  }
}

void BuildPulsarTables(ColourTables& tables, ProfileArray& profiles) {
  constexpr double threeQuarters = 4.71238911151886;  // the sine runs from -1 up and back
  for (int p = 0; p < kProfileCount; ++p) {
    StarfoldProfile& profile = profiles[p];
    ProfileColours& colours = tables.Profile[p];
    colours.PulsarColors.fill(0);
    colours.PulsarExtents.fill(0);
    profile.Starfold_PulsarFrames = ClampTo<Integer>(profile.Starfold_PulsarFrames, 0, 99);
    const int frames = profile.Starfold_PulsarFrames;
    if (frames == 0) continue;
    const int hueStart = profile.Starfold_HWC_Start;
    const int hueEnd = profile.Starfold_HWC_End;
    const double extentSpan = profile.Starfold_PulsarMaxExt - profile.Starfold_PulsarMinExt;
    const double extentSum = profile.Starfold_PulsarMinExt + profile.Starfold_PulsarMaxExt;
    const double step = static_cast<double>(kTwoPi) / frames;
    const auto fadeInEnd = RoundHalfEven(frames * 0.25 - 1);
    const auto fadeOutBegin = RoundHalfEven(frames * 0.75 + 1);
    double s = 0;
    for (int k = 0; k < frames; ++k) {
      const double wave = Sine(k * static_cast<double>(kTwoPi) / frames + threeQuarters);
      const double hue = std::abs(hueStart - hueEnd) * 0.5 * wave + (hueStart + hueEnd) * 0.5;
      const Colour full = FlareHue(static_cast<int>(RoundHalfEven(hue)));
      if (k < fadeInEnd) {
        s += step;
        colours.PulsarColors[k] = ScaleColor(full, static_cast<Single>(Sine(s)));
      } else if (k >= fadeOutBegin) {
        colours.PulsarColors[k] = ScaleColor(full, static_cast<Single>(Sine(s)));
        s -= step;
      } else {
        colours.PulsarColors[k] = full;
      }
      colours.PulsarExtents[k] =
          static_cast<Single>((extentSpan * 0.5 * wave + extentSum * 0.5) * 0.001);
    }
  }
}

void DriftCometHues(ColourTables& tables, PreparedArray& prepared, const ProfileArray& profiles) {
  for (int p = 0; p < kProfileCount; ++p) {
    PreparedProfile& run = prepared[p];
    run.RunHwcAcc += profiles[p].Starfold_HWC_Inc;
    if (!(run.RunHwcAcc > 1)) continue;
    run.RunHwcAcc = 0;
    ++run.RunHwcStart;
    ++run.RunHwcEnd;
    if (run.RunHwcStart > 1080 && run.RunHwcEnd > 1080) {
      run.RunHwcStart -= 1080;
      run.RunHwcEnd -= 1080;
    }
    BuildFlareTable(tables.Profile[p].NovaRamp, run.RunHwcStart, run.RunHwcEnd);
  }
}

StarTint SeedColor(const StarfoldProfile& profile, const PreparedProfile& run,
                   const ProfileColours& colours, const SeededStar& star, Rnd& random) {
  if (profile.Starfold_ColorComp == 4) return {star.Former.StarHue, 0};
  const double hue = SeedHue(profile, run, star, random);
  const Long whole = RoundedOr(RoundedOr(Long{0}, star.Former.StarHue), hue);
  const int wrapped = WrapHue(whole);
  return {static_cast<Single>(wrapped), colours.HueTable[wrapped]};
}

}  // namespace starfolds

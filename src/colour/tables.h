// The colour tables and the only colour arithmetic of the system. No colour is computed per pixel:
// a star carries a hue and a colour word, and the frame loop looks colours up.
#pragma once

#include <array>
#include <cmath>

#include "numbers/rnd.h"
#include "platform/surface.h"
#include "prepared/prepared.h"
#include "settings/records.h"

namespace starfolds {

inline constexpr int kFlareSteps = 80;
inline constexpr int kMaxFlareFrames = 100;

/// A fade from white through a hue range into the dark; step 80 is black.
using FlareTable = std::array<Colour, kFlareSteps + 1>;

/// The tables of one profile.
struct ProfileColours {
  std::array<Colour, 361> HueTable{};  // by hue in degrees; 360 is 0 again
  FlareTable NovaRamp{};
  std::array<Colour, kMaxFlareFrames> NewColors{};     // grey by frames left of a new star
  std::array<Colour, kMaxFlareFrames> PulsarColors{};  // by step of the pulsar's cycle
  std::array<Single, kMaxFlareFrames> PulsarExtents{};
};

struct ColourTables {
  std::array<ProfileColours, kProfileCount> Profile;
  FlareTable UniverseFlare{};
};

/// The row of `HueTable` for a hue of 0 to 360 degrees.
inline std::size_t RoundHue(Single hue) {
  return static_cast<std::size_t>(static_cast<unsigned>(std::lrint(hue)));
}

/// The hue circle: `hue` in degrees, 0 to 359, beyond it black; channels run from `base` to `base`
/// + 2 * strength.
Colour HueToRgb(int hue, int base, int red, int green, int blue);

/// The hue circle at the strengths of the flare tables, channels 55 to 255, any hue (mod 360).
Colour FlareHue(int hue);

/// Each channel times `factor`, rounded.
Colour ScaleColor(Colour colour, Single factor);

/// The star colours of one profile by hue.
void BuildHueWheel(std::array<Colour, 361>& table, const StarfoldProfile& profile);

void BuildFlareTable(FlareTable& table, int startHue, int endHue);

/// The hue table of each profile.
void BuildHueWheels(ColourTables& tables, const ProfileArray& profiles);
/// `UniverseFlare` between the two hues (degrees), and each profile's `NovaRamp` between its comet
/// hues.
void BuildFlareTables(ColourTables& tables, const ProfileArray& profiles, int universeStart,
                      int universeEnd);
/// Clamps `Starfold_NewFrames` in the records to 0..99.
void BuildNewStarRamp(ColourTables& tables, ProfileArray& profiles);
/// Clamps `Starfold_PulsarFrames` in the records to 0..99.
void BuildPulsarTables(ColourTables& tables, ProfileArray& profiles);
/// Moves each profile's comet hues by one frame, `Starfold_HWC_Inc` degrees.
void DriftCometHues(ColourTables& tables, PreparedArray& prepared, const ProfileArray& profiles);

/// The hue and the colour of a star.
struct StarTint {
  Single StarHue;  // degrees
  Colour StarColor;
};

/// What the colour rules (`Starfold_ColorComp`) read of a newly seeded star.
struct SeededStar {
  double X = 0, Y = 0, Z = 0;  // in the body's own frame
  Single RotationStep = 0;     // radians per frame
  Single Span = 0;             // place along a ribbon, 0 to 1
  int HueOffset = 0;           // degrees, from the generator
  StarTint Former{};           // a black star keeps its hue, and one whose hue does not fit
};

/// The hue and the colour of a newly seeded star of a profile. Rule 6 draws a random number.
StarTint SeedColor(const StarfoldProfile& profile, const PreparedProfile& run,
                   const ProfileColours& colours, const SeededStar& star, Rnd& random);

}  // namespace starfolds

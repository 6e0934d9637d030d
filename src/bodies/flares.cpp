#include "bodies/flares.h"

#include "bodies/plotters.h"
#include "bodies/seed_star.h"

namespace starfolds {
namespace {

StarState& StateOf(const FrameScene& scene, std::size_t i) { return scene.Arrays.Stars.Star[i]; }
FlareState& FlareOf(const FrameScene& scene, std::size_t i) { return scene.Arrays.Stars.Flare[i]; }

const ProfileColours& ColoursOf(const FrameScene& scene, const StarState& star) {
  return scene.Process.Colours.Profile[static_cast<std::size_t>(star.StarProf)];
}

const PreparedProfile& PreparedOf(const FrameScene& scene, const StarState& star) {
  return scene.Process.Prepared[static_cast<std::size_t>(star.StarProf)];
}

View ViewOf(const FrameScene& scene, const StarState& star) {
  return ViewStar(star, PreparedOf(scene, star).Star, scene.Arrays.Folds);
}

void NoteView(FlareState& flare, const View& view) {
  flare.StarViewX = static_cast<Single>(view.X);
  flare.StarViewY = static_cast<Single>(view.Y);
  flare.StarViewZ = static_cast<Single>(view.Depth);
}

Colour NewStarColour(const FrameScene& scene, const StarState& star) {
  return ColoursOf(scene, star).NewColors[static_cast<std::size_t>(star.StarFlareLeft)];
}

Colour NovaColour(const FrameScene& scene, const StarState& star, const FlareState& flare) {
  return ColoursOf(scene, star).NovaRamp[NovaRow(flare.StarFlareFrames, star.StarFlareLeft)];
}

/// Draws, or in black erases, what the star shows as from the arrays.
void DrawNewStar(const FrameScene& scene, std::size_t i, Colour colour) {
  const FlareState& flare = FlareOf(scene, i);
  if (!(flare.StarFlareZ > kNearDepth)) return;
  PlotNew(scene.Process.Screen, flare.StarFlareX, flare.StarFlareY, flare.StarFlareZ,
          StateOf(scene, i).StarFlareLeft, flare.StarFlareFrames, flare.StarFlareExt, colour);
}

void DrawNova(const FrameScene& scene, std::size_t i, Colour colour) {
  const FlareState& flare = FlareOf(scene, i);
  if (!(flare.StarViewZ > kNearDepth)) return;
  PlotNova(scene.Process.Screen, flare.StarViewX, flare.StarViewY, flare.StarViewZ,
           StateOf(scene, i).StarFlareLeft, flare.StarFlareFrames, flare.StarFlareExt, colour);
}

enum class Ink { Colour, Black };

void DrawPulsar(const FrameScene& scene, std::size_t i, Ink ink) {
  const FlareState& flare = FlareOf(scene, i);
  if (!(flare.StarViewZ > kNearDepth)) return;
  const StarState& star = StateOf(scene, i);
  const StarfoldProfile& profile = scene.Process.Profiles[static_cast<std::size_t>(star.StarProf)];
  const int phase = star.StarFlareLeft % std::max<int>(profile.Starfold_PulsarFrames, 1);
  const ProfileColours& colours = ColoursOf(scene, star);
  PlotPulsar(scene.Process.Screen, flare.StarViewX, flare.StarViewY, flare.StarViewZ,
             colours.PulsarExtents[phase], profile.Starfold_PulsarShape,
             PreparedOf(scene, star).RunPulsarDepth,
             ink == Ink::Black ? 0 : colours.PulsarColors[phase]);
}

void BeginPulsar(const FrameScene& scene, std::size_t i, const StarfoldProfile& profile) {
  StarState& star = StateOf(scene, i);
  star.StarFlare = FlareKind::Pulsar;
  star.StarFlareLeft = ProductOr(0, profile.Starfold_PulsarCycles, profile.Starfold_PulsarFrames);
  FlareOf(scene, i).StarFlareFrames = profile.Starfold_PulsarFrames;
  NoteView(FlareOf(scene, i), ViewOf(scene, star));
}

void BeginNova(const FrameScene& scene, std::size_t i, const StarfoldProfile& profile) {
  StarState& star = StateOf(scene, i);
  FlareState& flare = FlareOf(scene, i);
  star.StarFlare = FlareKind::Nova;
  star.StarFlareLeft = flare.StarFlareFrames = profile.Starfold_NovaFrames;
  flare.StarFlareExt = PreparedOf(scene, star).RunNovaExt;
  NoteView(flare, ViewOf(scene, star));
  if (star.InFlare()) DrawNova(scene, i, NovaColour(scene, star, flare));
}

void BeginNewStar(const FrameScene& scene, std::size_t i, const StarfoldProfile& profile) {
  StarState& star = StateOf(scene, i);
  FlareState& flare = FlareOf(scene, i);
  star.StarFlare = FlareKind::NewStar;
  star.StarFlareLeft = flare.StarFlareFrames = profile.Starfold_NewFrames;
  flare.StarFlareExt = PreparedOf(scene, star).RunNewExt;
  PlaceAndDrawNewStar(scene, i, ViewOf(scene, star));
}

}  // namespace

int NovaRow(Integer frames, Integer left) {
  constexpr int longestProduct = 32767 / kFlareSteps;
  const int age = std::min(frames - left, longestProduct);
  return static_cast<int>(RoundHalfEven(age * kFlareSteps / static_cast<double>(frames)));
}

void EraseFlare(const FrameScene& scene, std::size_t i) {
  const StarState& star = StateOf(scene, i);
  if (star.StarFlare == FlareKind::NewStar) return DrawNewStar(scene, i, 0);
  if (star.StarFlare == FlareKind::Nova) return DrawNova(scene, i, 0);
  DrawPulsar(scene, i, Ink::Black);
}

void MoveAndDrawFlare(const FrameScene& scene, std::size_t i) {
  StarState& star = StateOf(scene, i);
  FlareState& flare = FlareOf(scene, i);
  MoveStar(star, PreparedOf(scene, star).Star);
  NoteView(flare, ViewOf(scene, star));
  if (star.StarFlare == FlareKind::Nova) return DrawNova(scene, i, NovaColour(scene, star, flare));
  DrawPulsar(scene, i, Ink::Colour);
}

void PlaceAndDrawNewStar(const FrameScene& scene, std::size_t i, const View& view) {
  const StarState& star = StateOf(scene, i);
  FlareState& flare = FlareOf(scene, i);
  flare.StarFlareZ = static_cast<Single>(view.Depth);
  if (!view.InFront()) return;
  ProjectView(Lens(scene.Process.Screen), view, flare.StarFlareX, flare.StarFlareY);
  if (star.InFlare()) DrawNewStar(scene, i, NewStarColour(scene, star));
}

void ReseedStar(const FrameScene& scene, std::size_t i) {
  ProcessState& process = scene.Process;
  StarState& star = StateOf(scene, i);
  const Integer entry = scene.Arrays.Folds.StarfoldProf[static_cast<std::size_t>(star.StarHome)];
  star.StarProf = scene.Kind == RunKind::SingleProfile ? entry : PickProfile(process, entry);
  SeedStar(process, scene.Arrays.Stars, scene.Arrays.Slots, i);

  const StarfoldProfile& profile = process.Profiles[static_cast<std::size_t>(star.StarProf)];
  const PreparedProfile& run = PreparedOf(scene, star);
  const Single roll = process.Random();
  if (roll < run.RunPulsarChance) return BeginPulsar(scene, i, profile);
  if (roll < static_cast<double>(run.RunNovaChance) + run.RunPulsarChance) {
    return BeginNova(scene, i, profile);
  }
  BeginNewStar(scene, i, profile);
}

}  // namespace starfolds

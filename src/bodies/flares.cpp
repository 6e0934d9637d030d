#include "bodies/flares.h"

#include "bodies/plotters.h"
#include "bodies/seed_star.h"

namespace starfolds {
namespace {

const ProfileColours& ColoursOf(const FrameScene& scene, std::size_t i) {
  return scene.Process.Colours.Profile[scene.Run.Stars.StarProf[i]];
}

const StarMotion& MotionOfStar(const FrameScene& scene, std::size_t i) {
  return scene.Process.Prepared[scene.Run.Stars.StarProf[i]].Star;
}

View ViewOf(const FrameScene& scene, std::size_t i) {
  return ViewStar(scene.Run.Stars, i, MotionOfStar(scene, i), scene.Run.Folds);
}

void NoteView(StarArrays& stars, std::size_t i, const View& view) {
  stars.StarViewX[i] = static_cast<Single>(view.X);
  stars.StarViewY[i] = static_cast<Single>(view.Y);
  stars.StarViewZ[i] = static_cast<Single>(view.Depth);
}

void BeginPulsar(const FrameScene& scene, std::size_t i, const StarfoldProfile& profile) {
  StarArrays& stars = scene.Run.Stars;
  stars.StarPulsarLeft[i] = ProductOr(stars.StarPulsarLeft[i], profile.Starfold_PulsarCycles,
                                      profile.Starfold_PulsarFrames);
  stars.StarFlareFrames[i] = profile.Starfold_PulsarFrames;
  NoteView(stars, i, ViewOf(scene, i));
}

void BeginNova(const FrameScene& scene, std::size_t i, const StarfoldProfile& profile) {
  StarArrays& stars = scene.Run.Stars;
  stars.StarNovaLeft[i] = stars.StarFlareFrames[i] = profile.Starfold_NovaFrames;
  stars.StarFlareExt[i] = scene.Process.Prepared[stars.StarProf[i]].RunNovaExt;
  NoteView(stars, i, ViewOf(scene, i));
  if (stars.StarNovaLeft[i] > 0) DrawNova(scene, i, NovaColour(scene, i));
}

void BeginNewStar(const FrameScene& scene, std::size_t i, const StarfoldProfile& profile) {
  StarArrays& stars = scene.Run.Stars;
  stars.StarNewLeft[i] = stars.StarFlareFrames[i] = profile.Starfold_NewFrames;
  stars.StarFlareExt[i] = scene.Process.Prepared[stars.StarProf[i]].RunNewExt;
  PlaceAndDrawNewStar(scene, i, ViewOf(scene, i));
}

}  // namespace

int NovaRow(Integer frames, Integer left) {
  constexpr int longestProduct = 32767 / kFlareSteps;
  const int age = std::min(frames - left, longestProduct);
  return static_cast<int>(RoundHalfEven(age * kFlareSteps / static_cast<double>(frames)));
}

Colour NewStarColour(const FrameScene& scene, std::size_t i) {
  return ColoursOf(scene, i).NewColors[scene.Run.Stars.StarNewLeft[i]];
}

Colour NovaColour(const FrameScene& scene, std::size_t i) {
  const StarArrays& stars = scene.Run.Stars;
  return ColoursOf(scene, i).NovaRamp[NovaRow(stars.StarFlareFrames[i], stars.StarNovaLeft[i])];
}

void DrawNewStar(const FrameScene& scene, std::size_t i, Colour colour) {
  const StarArrays& stars = scene.Run.Stars;
  if (!(stars.StarFlareZ[i] > kNearDepth)) return;
  PlotNew(scene.Process.Screen, stars.StarFlareX[i], stars.StarFlareY[i], stars.StarFlareZ[i],
          stars.StarNewLeft[i], stars.StarFlareFrames[i], stars.StarFlareExt[i], colour);
}

void DrawNova(const FrameScene& scene, std::size_t i, Colour colour) {
  const StarArrays& stars = scene.Run.Stars;
  if (!(stars.StarViewZ[i] > kNearDepth)) return;
  PlotNova(scene.Process.Screen, stars.StarViewX[i], stars.StarViewY[i], stars.StarViewZ[i],
           stars.StarNovaLeft[i], stars.StarFlareFrames[i], stars.StarFlareExt[i], colour);
}

void DrawPulsar(const FrameScene& scene, std::size_t i, bool erase) {
  const StarArrays& stars = scene.Run.Stars;
  if (!(stars.StarViewZ[i] > kNearDepth)) return;
  const int prof = stars.StarProf[i];
  const StarfoldProfile& profile = scene.Process.Profiles[prof];
  const int phase = stars.StarPulsarLeft[i] % std::max<int>(profile.Starfold_PulsarFrames, 1);
  const ProfileColours& colours = ColoursOf(scene, i);
  PlotPulsar(scene.Process.Screen, stars.StarViewX[i], stars.StarViewY[i], stars.StarViewZ[i],
             colours.PulsarExtents[phase], profile.Starfold_PulsarShape,
             scene.Process.Prepared[prof].RunPulsarDepth, erase ? 0 : colours.PulsarColors[phase]);
}

void EraseFlare(const FrameScene& scene, std::size_t i) {
  const StarArrays& stars = scene.Run.Stars;
  if (stars.StarNewLeft[i] > 0) return DrawNewStar(scene, i, 0);
  if (stars.StarNovaLeft[i] > 0) return DrawNova(scene, i, 0);
  DrawPulsar(scene, i, true);
}

void MoveAndDrawShell(const FrameScene& scene, std::size_t i) {
  StarArrays& stars = scene.Run.Stars;
  MoveStar(stars, i, MotionOfStar(scene, i));
  NoteView(stars, i, ViewOf(scene, i));
  if (stars.StarNovaLeft[i] > 0) return DrawNova(scene, i, NovaColour(scene, i));
  DrawPulsar(scene, i, false);
}

void PlaceAndDrawNewStar(const FrameScene& scene, std::size_t i, const View& view) {
  StarArrays& stars = scene.Run.Stars;
  stars.StarFlareZ[i] = static_cast<Single>(view.Depth);
  if (!view.InFront()) return;
  ProjectView(scene.Process.Screen, view, stars.StarFlareX[i], stars.StarFlareY[i]);
  if (stars.StarNewLeft[i] > 0) DrawNewStar(scene, i, NewStarColour(scene, i));
}

void ReseedStar(const FrameScene& scene, std::size_t i) {
  Saver& saver = scene.Process;
  StarArrays& stars = scene.Run.Stars;
  const Integer entry = scene.Run.Folds.StarfoldProf[stars.StarHome[i]];
  stars.StarProf[i] = scene.SingleBody == 1 ? entry : PickProfile(saver, entry);
  SeedStar(saver, stars, scene.Run.Slots, i);

  const StarfoldProfile& profile = saver.Profiles[stars.StarProf[i]];
  const PreparedProfile& run = saver.Prepared[stars.StarProf[i]];
  const Single roll = saver.Random();
  if (roll < run.RunPulsarChance) return BeginPulsar(scene, i, profile);
  if (roll < static_cast<double>(run.RunNovaChance) + run.RunPulsarChance) {
    return BeginNova(scene, i, profile);
  }
  BeginNewStar(scene, i, profile);
}

}  // namespace starfolds

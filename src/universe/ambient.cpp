#include "universe/ambient.h"

#include "bodies/plotters.h"
#include "bodies/star_motion.h"
#include "numbers/conversions.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

/// Takes the old image off the screen and ages the star.
void EraseAmbientStar(const AmbientScene& scene, std::size_t i) {
  AmbientArrays& stars = scene.Stars;
  const UniverseSettings& universe = scene.Process.Universe;
  const Display& screen = scene.Process.Screen;
  if (stars.AmbLeft[i] == 0) {
    screen.hDCDraw->SetPixelV(stars.AmbScrX[i], stars.AmbScrY[i], 0);
    stars.AmbColorAge[i] += universe.Universe_AmCAge;
    return;
  }
  if (stars.AmbDepth[i] > kNearDepth) {
    PlotNew(screen, stars.AmbScrX[i], stars.AmbScrY[i], stars.AmbDepth[i], stars.AmbLeft[i],
            universe.Universe_AmFrames, scene.Process.RunUniverse.RunAmMaxExt, 0);
  }
  --stars.AmbLeft[i];
}

void StoreVector(AmbientArrays& stars, std::size_t i, const ExpansionVector& vector) {
  stars.AmbX[i] = vector.X;
  stars.AmbY[i] = vector.Y;
  stars.AmbZ[i] = vector.Z;
  stars.AmbVX[i] = vector.VX;
  stars.AmbVY[i] = vector.VY;
  stars.AmbVZ[i] = vector.VZ;
}

void MoveAmbientStar(AmbientArrays& stars, std::size_t i) {
  stars.AmbX[i] += stars.AmbVX[i];
  stars.AmbY[i] += stars.AmbVY[i];
  stars.AmbZ[i] += stars.AmbVZ[i];
}

void DrawAmbientStar(const AmbientScene& scene, std::size_t i, const TourPoint& eye) {
  AmbientArrays& stars = scene.Stars;
  const UniverseSettings& universe = scene.Process.Universe;
  const Display& screen = scene.Process.Screen;
  stars.AmbDepth[i] = static_cast<Single>(static_cast<double>(stars.AmbZ[i]) - eye.Z);
  const View view{static_cast<double>(stars.AmbX[i]) - eye.X,
                  static_cast<double>(stars.AmbY[i]) - eye.Y, stars.AmbDepth[i]};
  if (!view.InFront()) return;
  ProjectView(Lens(screen), view, stars.AmbScrX[i], stars.AmbScrY[i]);
  if (stars.AmbLeft[i] > 0) {
    const int frame = universe.Universe_AmFrames - stars.AmbLeft[i];
    PlotNew(screen, stars.AmbScrX[i], stars.AmbScrY[i], stars.AmbDepth[i], stars.AmbLeft[i],
            universe.Universe_AmFrames, scene.Process.RunUniverse.RunAmMaxExt,
            stars.AmbRamp[static_cast<std::size_t>(frame)]);
  } else if (stars.AmbColorAge[i] < kFlareSteps) {
    const auto step = static_cast<std::size_t>(RoundHalfEven(stars.AmbColorAge[i]));
    screen.hDCDraw->SetPixelV(stars.AmbScrX[i], stars.AmbScrY[i],
                              scene.Process.Colours.UniverseFlare[step]);
  }
}

}  // namespace

void BuildAmbRamp(AmbientArrays& ambient) {
  const std::size_t frames = ambient.AmbRamp.size() - 1;
  ambient.AmbRamp[0] = 0xFFFFFF;
  for (std::size_t i = 0; i < frames; ++i) {
    const double quarter = static_cast<double>(kPi) / 2 * static_cast<double>(i);
    const double level = Cosine(quarter / static_cast<double>(frames)) * 167 + 88;
    const int grey = RoundedToLimits<Integer>(level);
    ambient.AmbRamp[i + 1] = PackRgb(grey, grey, grey);
  }
}

void SeedAmbientStars(const AmbientScene& scene, Integer prof, Single expandStep) {
  for (std::size_t i = 0; i < scene.Stars.AmbX.size(); ++i) {
    StoreVector(
        scene.Stars, i,
        SeedExpansionVector(scene.Process, scene.Shape, prof, expandStep, 0, ExpansionMode::Burst));
    scene.Stars.AmbLeft[i] = 0;
    scene.Stars.AmbColorAge[i] = 0;
  }
}

void StepAmbientStars(const AmbientScene& scene, const TourPoint& eye, Single radius, Single speed,
                      AmbientMode mode, Integer prof) {
  AmbientArrays& stars = scene.Stars;
  const UniverseSettings& universe = scene.Process.Universe;
  const bool growing = mode == AmbientMode::Growing;
  const Single ratio = growing && radius > 0 ? speed / radius : Single{0};
  const ExpansionMode rebirth = growing ? ExpansionMode::Growing : ExpansionMode::Finished;
  for (std::size_t i = 0; i < stars.AmbX.size(); ++i) {
    EraseAmbientStar(scene, i);
    const Single draw = scene.Process.Random();
    if (stars.AmbLeft[i] > 0 || draw < universe.Universe_AmPers) {
      if (growing) MoveAmbientStar(stars, i);
      DrawAmbientStar(scene, i, eye);
      continue;
    }
    StoreVector(stars, i,
                SeedExpansionVector(scene.Process, scene.Shape, prof, radius, ratio, rebirth));
    stars.AmbLeft[i] = universe.Universe_AmFrames;
    stars.AmbColorAge[i] = 0;
  }
}

}  // namespace starfolds

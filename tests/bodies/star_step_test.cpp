#include "bodies/star_step.h"

#include <gtest/gtest.h>

#include <set>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

using scenes::BodyStage;

/// Re-seeding, flares of all kinds and comets, as many as there can be.
void Busy(SettingsRecords& settings) {
  for (StarfoldProfile& profile : settings.Profiles) {
    profile.Starfold_NewFreq = 3000;
    profile.Starfold_NovaFreq = 2500;
    profile.Starfold_PulsarFreq = 2500;
    profile.Starfold_CometFreq = 9999;
  }
}

std::set<std::pair<Long, Long>> LitPlaces(const Surface& surface) {
  std::set<std::pair<Long, Long>> places;
  for (Long y = 0; y < surface.Height(); ++y) {
    for (Long x = 0; x < surface.Width(); ++x) {
      if (surface.Pixel(x, y) != 0) places.insert({x, y});
    }
  }
  return places;
}

TEST(StarStepTest, NothingStaysOnTheScreenButTheStarsThatAreThere) {
  for (const Integer trail : {Integer{1}, Integer{5}}) {
    for (Integer shape = 0; shape <= 4; ++shape) {
      BodyStage stage(320, 200, 300, trail, [&](SettingsRecords& settings) {
        Busy(settings);
        settings.Profiles[0].Starfold_PulsarShape = shape;
      });
      for (int frame = 0; frame < 150; ++frame) stage.Step();
      stage.Process->Profiles[0].Starfold_NewFreq = 0;
      stage.Process->Profiles[0].Starfold_CometCPersist = 0.1F;
      PreparedProfile& run = stage.Process->Prepared[0];
      run.RunCometChance = run.RunNovaChance = run.RunPulsarChance = 0;
      for (int frame = 0; frame < 500; ++frame) stage.Step();
      std::set<std::pair<Long, Long>> lit = LitPlaces(stage.Canvas);
      for (const TrailPlace& place : stage.Run->Stars.Trail)
        lit.erase({place.TrailX, place.TrailY});
      EXPECT_EQ(lit.size(), 0U) << "trail " << trail << " shape " << shape;
    }
  }
}

}  // namespace
}  // namespace starfolds

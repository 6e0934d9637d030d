// Runs the star step or the minimal loop for callgrind to count (bench/instructions.sh).
#include <cstdlib>
#include <string_view>

#include "minimal_loop.h"
#include "scenes/scenes.h"

namespace {

constexpr int kFrames = 100;

starfolds::scenes::BodyStage PlainBody(starfolds::Integer stars) {
  return {1920, 1080, stars, 1, [](starfolds::SettingsRecords& settings) {
            settings.Universe.Universe_NewFreq = 0;
            for (starfolds::StarfoldProfile& profile : settings.Profiles) {
              profile.Starfold_NewFreq = 0;
              profile.Starfold_CometFreq = 0;
            }
          }};
}

}  // namespace

/// The functions that callgrind counts, with C linkage so that it finds their names.
extern "C" void CountedMinimalLoop(starfolds::MinimalLoop& minimal) {
  for (int i = 0; i < kFrames; ++i) minimal.Step();
}

extern "C" void CountedStep(starfolds::scenes::BodyStage& stage) {
  for (int i = 0; i < kFrames; ++i) StarStep(stage.Frame(), {0, 0, 32000, 0, false});
}

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  auto stage = PlainBody(static_cast<starfolds::Integer>(std::atoi(argv[2])));
  stage.Step();  // until every star has settled
  if (std::string_view(argv[1]) == "minimal") {
    starfolds::MinimalLoop minimal(stage);
    auto* volatile counted = &CountedMinimalLoop;  // prevents inlining
    counted(minimal);
  } else {
    auto* volatile counted = &CountedStep;
    counted(stage);
  }
}

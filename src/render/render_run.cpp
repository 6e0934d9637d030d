#include "render/render_run.h"

#include "colour/saver.h"
#include "numbers/conversions.h"
#include "render/progress.h"
#include "render/recording_surface.h"
#include "render/standard_streams.h"
#include "settings/storage.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

void RunBody(Saver& saver, Integer body, bool isComposite) {
  // The recording surface counts the frames and ends the run.
  SingleBodyRun(saver, {.Body = body,
                        .IsComposite = isComposite,
                        .Stars = ClampTo<Long>(saver.Universe.Universe_Stars, 10, 30000),
                        .Trail = ClampTo<Integer>(saver.Universe.Universe_STrail, 1, 999)});
}

void RunEffect(Saver& saver, const RenderOptions& options) {
  if (options.Profile) {
    RunBody(saver, *options.Profile, false);
  } else if (options.Composite) {
    RunBody(saver, *options.Composite, true);
  } else {
    UniverseRun(saver);
  }
}

Fault FinishAll(const FrameSinks& sinks) {
  for (const auto& sink : sinks) {
    if (Fault fault = sink->Finish()) return fault;
  }
  return std::nullopt;
}

}  // namespace

Fault Render(const RenderOptions& options, SettingsRecords& records) {
  const FrameSinks sinks = MakeSinks(options);
  CountedPump pump;
  MemoryDesktop desktop;
  const auto saver = std::make_unique<Saver>();
  MemoryTree tree;
  SaveSettings(tree, records);
  saver->Tree = &tree;
  saver->Events = &pump;
  saver->Desktop = &desktop;

  RecordingSurface surface(static_cast<Integer>(options.Width),
                           static_cast<Integer>(options.Height), options.Plan, sinks,
                           saver->StopRun);
  Progress progress(options.Plan.Frames, ErrorIsTerminal());
  surface.OnFrame = [&](FrameNumber frame) { progress.Show(frame); };
  SetupDisplay(*saver, surface, options.Seed);
  ReadUniverseSettings(*saver, false);
  RunEffect(*saver, options);
  progress.End();
  return surface.Trouble() ? surface.Trouble() : FinishAll(sinks);
}

}  // namespace starfolds

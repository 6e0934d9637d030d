#include "render/render_run.h"

#include "numbers/conversions.h"
#include "process/process_state.h"
#include "render/progress.h"
#include "render/recording_surface.h"
#include "render/standard_streams.h"
#include "render/universes.h"
#include "settings/stored_records.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

void RunBody(ProcessState& process, Integer body, bool isComposite) {
  // The recording surface counts the frames and stops the run.
  SingleBodyRun(process, {.Body = body,
                          .IsComposite = isComposite,
                          .Stars = ClampTo<Long>(process.Universe.Universe_Stars, 10, 30000),
                          .Trail = ClampTo<Integer>(process.Universe.Universe_STrail, 1, 999)});
}

void RunEffect(ProcessState& process, const RenderOptions& options) {
  if (options.Profile) {
    RunBody(process, *options.Profile, false);
  } else if (options.Composite) {
    RunBody(process, *options.Composite, true);
  } else {
    UniverseRun(process);
  }
}

Fault FinishAll(const FrameSinks& sinks) {
  for (const auto& sink : sinks) {
    if (Fault fault = sink->Finish()) return fault;
  }
  return std::nullopt;
}

}  // namespace

Fault RenderOneRun(const RenderOptions& options, SettingsRecords& records,
                   const std::string& title) {
  const FrameSinks sinks = MakeSinks(options);
  CountedPump pump;
  MemoryDesktop desktop;
  const auto process = std::make_unique<ProcessState>();
  MemoryTree tree;
  SaveSettings(tree, records);
  process->Tree = &tree;
  process->Events = &pump;
  process->Desktop = &desktop;

  RecordingSurface surface(static_cast<Integer>(options.Width),
                           static_cast<Integer>(options.Height), options.Plan, sinks,
                           process->Requests);
  Progress progress(options.Plan.Frames, ErrorIsTerminal(), title);
  surface.OnFrame = [&](FrameNumber frame) { progress.Show(frame); };
  ReadAdvancedSettings(*process);
  SetupDisplay(*process, surface, options.Seed.value_or(1));
  ReadUniverseSettings(*process, false);
  RunEffect(*process, options);
  progress.End();
  return surface.Trouble() ? surface.Trouble() : FinishAll(sinks);
}

Fault Render(const RenderOptions& options, SettingsRecords& records) {
  return options.Universes ? RenderUniverses(options, records) : RenderOneRun(options, records, "");
}

}  // namespace starfolds

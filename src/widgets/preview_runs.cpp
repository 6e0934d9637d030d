#include "widgets/preview_runs.h"

#include "numbers/conversions.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

constexpr Integer kHighestHue = 999;

/// The set-up that all previews share. Values may come from a user who is still typing; a run needs
/// them within their ranges.
void SetUpPreview(ProcessState& process, Surface& surface, bool fixedView,
                  const BodyPreview& preview, std::uint64_t seed) {
  ReadAdvancedSettings(process);
  if (!fixedView) process.Screen.FocalLength = process.Advanced.FocalLength;
  SetupPreviewSurface(process, surface, fixedView, 1, seed);
  for (StarfoldProfile& profile : process.Profiles) ClampProfile(profile);
  for (CompositeProfile& composite : process.Composites) ClampComposite(composite);
  BuildFlareTables(process.Colours, process.Profiles,
                   ClampTo<Integer>(preview.HueStart, 0, kHighestHue),
                   ClampTo<Integer>(preview.HueEnd, 0, kHighestHue));
  BuildHueWheels(process.Colours, process.Profiles);
}

void RunOneBody(ProcessState& process, Surface& surface, bool fixedView, const BodyPreview& preview,
                std::uint64_t seed) {
  const int bodies = preview.IsComposite ? kCompositeCount : kProfileCount;
  if (preview.Body < 0 || preview.Body >= bodies) return;
  const RecordsKept kept(process);
  SetUpPreview(process, surface, fixedView, preview, seed);
  SingleBodyRun(process, {.Body = preview.Body,
                          .IsComposite = preview.IsComposite,
                          .Stars = ClampTo<Long>(preview.Stars, 10, 30000),
                          .Trail = static_cast<Integer>(ClampTo<Long>(preview.Trail, 1, 999))});
  process.Screen.hDCDraw = nullptr;
}

}  // namespace

struct RecordsKept::Records {
  ProfileArray Profiles;
  CompositeArray Composites;
};

RecordsKept::RecordsKept(ProcessState& process)
    : process_(process), records_(new Records{process.Profiles, process.Composites}) {}

RecordsKept::~RecordsKept() {
  process_.Profiles = records_->Profiles;
  process_.Composites = records_->Composites;
}

void PreviewUniverse(ProcessState& process, Surface& surface,
                     const UniverseSettings& universeOnDialog, std::uint64_t seed) {
  const RecordsKept kept(process);
  SetUpPreview(process, surface, false, PreviewIn(universeOnDialog, 0, false), seed);
  process.Universe = universeOnDialog;
  process.Visits = ParseVisitList(universeOnDialog.Universe_GS_Idx);
  UniverseRun(process);
  process.Screen.hDCDraw = nullptr;
}

BodyPreview PreviewIn(const UniverseSettings& universe, int body, bool isComposite) {
  return {RoundedToLimits<Integer>(body), isComposite,
          universe.Universe_Stars,        universe.Universe_STrail,
          universe.Universe_HW_Start,     universe.Universe_HW_End};
}

void PreviewBody(ProcessState& process, Surface& surface, const BodyPreview& preview,
                 std::uint64_t seed) {
  RunOneBody(process, surface, false, preview, seed);
}

void PreviewEditedBody(ProcessState& process, Surface& surface, const BodyPreview& preview,
                       std::uint64_t seed) {
  RunOneBody(process, surface, true, preview, seed);
}

PreviewEnd PreviewSwitch::Start(const std::function<void()>& run) {
  if (on_ || process_.Requests.QuitApp()) return PreviewEnd::Refused;
  on_ = true;
  stopped_ = closing_ = false;
  process_.Requests.BeginRun();
  run();
  on_ = false;
  if (stopped_ && !closing_) process_.Requests.TakeBackStop();
  process_.Requests.AskNewRun();  // a run of another host restarts with the edited settings
  return closing_ ? PreviewEnd::Close : PreviewEnd::Stopped;
}

/// The pull-out and the last frame of a universe check `StopRun` only.
void PreviewSwitch::Stop() {
  if (!on_) return;
  stopped_ = true;
  process_.Requests.AskNewRun();
  process_.Requests.AskStop();
}

bool PreviewSwitch::DelaysClose() {
  if (!on_) return false;
  closing_ = true;
  process_.Requests.AskStop();
  return true;
}

}  // namespace starfolds

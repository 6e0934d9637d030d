#include "hosting/preview_runs.h"

#include "numbers/conversions.h"
#include "settings/storage.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

constexpr Integer kHighestHue = 999;

/// What all kinds of preview do first. The records may be of a user who is still typing; a run
/// needs them within their ranges.
void SetUpPreview(Saver& saver, Surface& surface, bool fixedView, const BodyPreview& preview,
                  std::uint64_t seed) {
  if (!fixedView) saver.Screen.FocalLength = LoadAdvancedFromRegistry(*saver.Tree).FocalLength;
  SetupPreviewSurface(saver, surface, fixedView, 1, seed);
  for (StarfoldProfile& profile : saver.Profiles) ClampProfile(profile);
  for (CompositeProfile& composite : saver.Composites) ClampComposite(composite);
  BuildFlareTables(saver.Colours, saver.Profiles,
                   ClampTo<Integer>(preview.HueStart, 0, kHighestHue),
                   ClampTo<Integer>(preview.HueEnd, 0, kHighestHue));
  BuildHueWheels(saver.Colours, saver.Profiles);
}

void RunOneBody(Saver& saver, Surface& surface, bool fixedView, const BodyPreview& preview,
                std::uint64_t seed) {
  const int bodies = preview.IsComposite ? kCompositeCount : kProfileCount;
  if (preview.Body < 0 || preview.Body >= bodies) return;
  const RecordsKept kept(saver);
  SetUpPreview(saver, surface, fixedView, preview, seed);
  SingleBodyRun(saver, {.Body = preview.Body,
                        .IsComposite = preview.IsComposite,
                        .Stars = ClampTo<Long>(preview.Stars, 10, 30000),
                        .Trail = static_cast<Integer>(ClampTo<Long>(preview.Trail, 1, 999))});
  saver.Screen.hDCDraw = nullptr;
}

}  // namespace

struct RecordsKept::Records {
  ProfileArray Profiles;
  CompositeArray Composites;
};

RecordsKept::RecordsKept(Saver& saver)
    : saver_(saver), records_(new Records{saver.Profiles, saver.Composites}) {}

RecordsKept::~RecordsKept() {
  saver_.Profiles = records_->Profiles;
  saver_.Composites = records_->Composites;
}

void PreviewUniverse(Saver& saver, Surface& surface, const UniverseSettings& universeOnDialog,
                     std::uint64_t seed) {
  const RecordsKept kept(saver);
  SetUpPreview(saver, surface, false, PreviewIn(universeOnDialog, 0, false), seed);
  saver.Universe = universeOnDialog;
  saver.Visits = ParseVisitList(universeOnDialog.Universe_GS_Idx);
  UniverseRun(saver);
  saver.Screen.hDCDraw = nullptr;
}

BodyPreview PreviewIn(const UniverseSettings& universe, int body, bool isComposite) {
  return {RoundedToLimits<Integer>(body), isComposite,
          universe.Universe_Stars,        universe.Universe_STrail,
          universe.Universe_HW_Start,     universe.Universe_HW_End};
}

void PreviewBody(Saver& saver, Surface& surface, const BodyPreview& preview, std::uint64_t seed) {
  RunOneBody(saver, surface, false, preview, seed);
}

void PreviewEditedBody(Saver& saver, Surface& surface, const BodyPreview& preview,
                       std::uint64_t seed) {
  RunOneBody(saver, surface, true, preview, seed);
}

PreviewEnd PreviewSwitch::Start(const std::function<void()>& run) {
  if (on_ || saver_.QuitApp) return PreviewEnd::Refused;
  on_ = true;
  stopped_ = closing_ = false;
  saver_.StopRun = false;
  saver_.NewRun = false;
  run();
  on_ = false;
  if (stopped_ && !closing_ && !saver_.QuitApp) saver_.StopRun = false;
  saver_.NewRun = true;  // a run of another host takes notice of what was edited
  return closing_ ? PreviewEnd::Close : PreviewEnd::Stopped;
}

/// A universe that is pulling out, or shows its last frame, looks at `StopRun` alone.
void PreviewSwitch::Stop() {
  if (!on_) return;
  stopped_ = true;
  saver_.NewRun = true;
  saver_.StopRun = true;
}

bool PreviewSwitch::DelaysClose() {
  if (!on_) return false;
  closing_ = true;
  saver_.StopRun = true;
  return true;
}

}  // namespace starfolds

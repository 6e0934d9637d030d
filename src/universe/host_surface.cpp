#include "universe/host_surface.h"

#include "numbers/conversions.h"
#include "settings/first_run.h"
#include "settings/stored_records.h"

namespace starfolds {
namespace {

void MeasureSurface(ProcessState& process, Surface& target, double zoom) {
  Display& screen = process.Screen;
  screen.hDCDraw = &target;
  screen.SurfaceWidth = RoundedToLimits<Integer>(target.Width());
  screen.SurfaceHeight = RoundedToLimits<Integer>(target.Height());
  AssignRounded(screen.CenterX, screen.SurfaceWidth * 0.5);
  AssignRounded(screen.CenterY, screen.SurfaceHeight * 0.5);
  screen.FocalPixels =
      static_cast<Single>((screen.CenterX + screen.CenterY) * 0.5 * screen.FocalLength * zoom);
}

}  // namespace

const AdvancedSettings& ReadAdvancedSettings(ProcessState& process) {
  process.Advanced = LoadAdvancedFromRegistry(*process.Tree);
  return process.Advanced;
}

void SetupDisplay(ProcessState& process, Surface& target, std::uint64_t seed) {
  process.Screen.FocalLength = process.Advanced.FocalLength;
  process.Screen.FrameDelayMs = process.Advanced.Adv_TimeDelay;
  MeasureSurface(process, target, 1);
  process.Random.Seed(seed);
}

void SetupPreviewSurface(ProcessState& process, Surface& target, bool fixedView, Single zoom,
                         std::uint64_t seed) {
  ResetSurface(target);
  if (fixedView) {
    process.Screen.FocalLength = 1;
    process.Screen.FrameDelayMs = 32;
  }
  MeasureSurface(process, target, zoom);
  process.Random.Seed(seed);
}

void ResetSurface(Surface& target) { target.Clear(); }

void EnsureBodies(ProcessState& process) {
  process.HasBodies = EnsureFactoryProfiles(*process.Tree);
}

void ReadUniverseSettings(ProcessState& process, bool smallPreview) {
  SettingsRecords records;
  bool isWhole = false;
  if (process.HasBodies) {
    TreeBulk look = TreeBulk::Look(*process.Tree);
    records = LoadSettings(*process.Tree);
    isWhole = look.Commit();
  }
  if (!isWhole) records = SettingsToShow(*process.Tree);
  TakeUniverseSettings(process, records, smallPreview);
}

void TakeUniverseSettings(ProcessState& process, const SettingsRecords& records,
                          bool smallPreview) {
  process.Universe = records.Universe;
  process.Profiles = records.Profiles;
  process.Composites = records.Composites;
  process.Visits = ParseVisitList(process.Universe.Universe_GS_Idx);
  if (smallPreview) {
    AssignRounded(process.Universe.Universe_Stars, process.Universe.Universe_Stars * 0.65);
    AssignRounded(process.Universe.Universe_AmStar, process.Universe.Universe_AmStar * 0.5);
  }
  for (StarfoldProfile& profile : process.Profiles) ClampProfile(profile);
  for (CompositeProfile& composite : process.Composites) ClampComposite(composite);
  BuildFlareTables(process.Colours, process.Profiles, process.Universe.Universe_HW_Start,
                   process.Universe.Universe_HW_End);
  BuildHueWheels(process.Colours, process.Profiles);
}

}  // namespace starfolds

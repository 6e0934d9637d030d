#include "universe/host_surface.h"

#include "numbers/conversions.h"
#include "settings/first_run.h"
#include "settings/storage.h"

namespace starfolds {
namespace {

void MeasureSurface(Saver& saver, Surface& target, double zoom) {
  Display& screen = saver.Screen;
  screen.hDCDraw = &target;
  screen.SurfaceWidth = RoundedToLimits<Integer>(target.Width());
  screen.SurfaceHeight = RoundedToLimits<Integer>(target.Height());
  AssignRounded(screen.CenterX, screen.SurfaceWidth * 0.5);
  AssignRounded(screen.CenterY, screen.SurfaceHeight * 0.5);
  screen.FocalPixels =
      static_cast<Single>((screen.CenterX + screen.CenterY) * 0.5 * screen.FocalLength * zoom);
}

}  // namespace

void SetupDisplay(Saver& saver, Surface& target, std::uint64_t seed) {
  saver.Advanced = LoadAdvancedFromRegistry(*saver.Tree);
  saver.Screen.FocalLength = saver.Advanced.FocalLength;
  saver.Screen.FrameDelayMs = saver.Advanced.Adv_TimeDelay;
  MeasureSurface(saver, target, 1);
  saver.Random.Seed(seed);
}

void SetupPreviewSurface(Saver& saver, Surface& target, bool fixedView, Single zoom,
                         std::uint64_t seed) {
  ResetSurface(target);
  if (fixedView) {
    saver.Screen.FocalLength = 1;
    saver.Screen.FrameDelayMs = 32;
  }
  MeasureSurface(saver, target, zoom);
  saver.Random.Seed(seed);
}

void ResetSurface(Surface& target) { target.Clear(); }

void EnsureBodies(Saver& saver) { saver.HasBodies = EnsureFactoryProfiles(*saver.Tree); }

void ReadUniverseSettings(Saver& saver, bool smallPreview) {
  SettingsRecords records;
  bool isWhole = false;
  if (saver.HasBodies) {
    TreeBulk look = TreeBulk::Look(*saver.Tree);
    records = LoadSettings(*saver.Tree);
    isWhole = look.Commit();
  }
  if (!isWhole) records = SettingsToShow(*saver.Tree);
  TakeUniverseSettings(saver, records, smallPreview);
}

void TakeUniverseSettings(Saver& saver, const SettingsRecords& records, bool smallPreview) {
  saver.Universe = records.Universe;
  saver.Profiles = records.Profiles;
  saver.Composites = records.Composites;
  saver.Visits = ParseVisitList(saver.Universe.Universe_GS_Idx);
  if (smallPreview) {
    AssignRounded(saver.Universe.Universe_Stars, saver.Universe.Universe_Stars * 0.65);
    AssignRounded(saver.Universe.Universe_AmStar, saver.Universe.Universe_AmStar * 0.5);
  }
  for (StarfoldProfile& profile : saver.Profiles) ClampProfile(profile);
  for (CompositeProfile& composite : saver.Composites) ClampComposite(composite);
  BuildFlareTables(saver.Colours, saver.Profiles, saver.Universe.Universe_HW_Start,
                   saver.Universe.Universe_HW_End);
  BuildHueWheels(saver.Colours, saver.Profiles);
}

}  // namespace starfolds

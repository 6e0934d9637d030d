#include "widgets/body_stage.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "numbers/conversions.h"
#include "settings/styles.h"
#include "universe/host_surface.h"

namespace starfolds {
namespace {

constexpr std::uint64_t kSeed = 41;
constexpr Integer kHighestHue = 999;

// The canvas on which a body is measured.
constexpr Integer kCanvasWidth = 1280;
constexpr Integer kCanvasHeight = 960;
constexpr Single kZoom = 0.5F;  // leaves room for bodies that extend far beyond the usual
constexpr Long kMeasuredStars = 1500;

constexpr double kFilled = 0.9;     // share of the picture that the body fills
constexpr double kOutliers = 0.02;  // share of the pixels that is ignored at each of the four edges
constexpr Single kNearest = 300'000;  // maximum of `FocalPixels`, for a body of a single pixel

constexpr int kWarmUpFrames = 40;
constexpr int kLongWarmUpFrames = 160;

/// The middle and length of the interval that contains all but the outliers.
std::pair<double, double> Stretch(std::vector<int> places) {
  const auto outliers = static_cast<std::size_t>(static_cast<double>(places.size()) * kOutliers);
  std::sort(places.begin(), places.end());
  const int low = places[outliers];
  const int high = places[places.size() - 1 - outliers];
  return {(low + high + 1) / 2.0, high - low + 1};
}

struct LitPlaces {
  std::vector<int> Columns, Rows;
};

LitPlaces LitPlacesOf(const Surface& surface) {
  LitPlaces lit;
  std::vector<Colour> row(static_cast<std::size_t>(surface.Width()));
  for (int y = 0; y < surface.Height(); ++y) {
    surface.CopyRow(0, y, row);
    for (int x = 0; x < surface.Width(); ++x) {
      if (row[static_cast<std::size_t>(x)] == 0) continue;
      lit.Columns.push_back(x);
      lit.Rows.push_back(y);
    }
  }
  return lit;
}

}  // namespace

ShownBody ShownBody::Of(std::span<const StarfoldProfile> members) {
  ShownBody shown;
  const std::size_t count = std::min<std::size_t>(members.size(), kMaxMembers);
  std::ranges::copy(members.first(count), shown.Profiles.begin());
  if (count == 1) return shown;
  CompositeProfile& composite = shown.Composite.emplace();
  composite.CompFold_Count = static_cast<Integer>(count);
  for (std::size_t i = 0; i < count; ++i) composite.CompFold_Type[i] = static_cast<Integer>(i);
  return shown;
}

void ShownBody::TakeUniverse(const UniverseSettings& universe) {
  Stars = universe.Universe_Stars;
  Trail = universe.Universe_STrail;
  HueStart = universe.Universe_HW_Start;
  HueEnd = universe.Universe_HW_End;
}

BodyStage::BodyStage() {
  process_->Events = &clock_;
  process_->Desktop = &desktop_;
  process_->Tree = &tree_;
}

void BodyStage::Take(const ShownBody& body) {
  process_->Profiles = body.Profiles;
  process_->Composites[0] = body.Composite.value_or(CompositeProfile());
  for (StarfoldProfile& profile : process_->Profiles) ClampProfile(profile);
  ClampComposite(process_->Composites[0]);
  std::ranges::transform(process_->Profiles, renewed_.begin(), &StarfoldProfile::Starfold_NewFreq);
  BuildFlareTables(process_->Colours, process_->Profiles,
                   ClampTo<Integer>(body.HueStart, 0, kHighestHue),
                   ClampTo<Integer>(body.HueEnd, 0, kHighestHue));
  BuildHueWheels(process_->Colours, process_->Profiles);
  process_->Screen.FocalLength = ClampTo<Single>(body.FocalLength, 0.01F, 10);
  plan_ = {.Body = 0,
           .IsComposite = body.Composite.has_value(),
           .Stars = ClampTo<Long>(body.Stars, 10, 30000),
           .Trail = static_cast<Integer>(ClampTo<Long>(body.Trail, 1, 999))};
}

int BodyStage::WarmUpFrames() const {
  const FoldStyle style = process_->Profiles[0].Style();
  const bool isLong = !plan_.IsComposite && FactsOf(style).RunMotion != Motion::Rotate;
  return isLong ? kLongWarmUpFrames : kWarmUpFrames;
}

BodyCamera BodyStage::FittedCamera(Integer width, Integer height) {
  BodyCamera camera{(kCanvasWidth + kCanvasHeight) * 0.25F * kZoom, kCanvasWidth / 2,
                    kCanvasHeight / 2};
  MemorySurface canvas(kCanvasWidth, kCanvasHeight);
  const auto body = Begin(canvas, camera, kMeasuredStars);
  for (int frame = 0; frame < WarmUpFrames(); ++frame) body->Step();
  const LitPlaces lit = LitPlacesOf(canvas);
  if (!lit.Columns.empty()) {
    const auto [middleX, bodyWidth] = Stretch(lit.Columns);
    const auto [middleY, bodyHeight] = Stretch(lit.Rows);
    const double wanted = kFilled * std::min(width / bodyWidth, height / bodyHeight);
    const double scale = std::min(wanted, double{kNearest / camera.FocalPixels});
    camera.FocalPixels = static_cast<Single>(camera.FocalPixels * scale);
    camera.CenterX = RoundedToLimits<Integer>(width / 2.0 + (camera.CenterX - middleX) * scale);
    camera.CenterY = RoundedToLimits<Integer>(height / 2.0 + (camera.CenterY - middleY) * scale);
  }
  return camera;
}

std::unique_ptr<SingleBody> BodyStage::Begin(Surface& surface, std::optional<BodyCamera> camera,
                                             std::optional<Long> stars) {
  SetupPreviewSurface(*process_, surface, false, 1, kSeed);
  if (camera) {
    Display& screen = process_->Screen;
    screen.FocalPixels = camera->FocalPixels;
    screen.CenterX = camera->CenterX;
    screen.CenterY = camera->CenterY;
  }
  SingleBodyPlan plan = plan_;
  if (stars) plan.Stars = *stars;
  // As many stars in a hundred are renewed as in the run, whatever their number.
  const double share = static_cast<double>(plan.Stars) / static_cast<double>(plan_.Stars);
  for (std::size_t i = 0; i < renewed_.size(); ++i) {
    AssignRounded(process_->Profiles[i].Starfold_NewFreq, renewed_[i] * share);
  }
  return std::make_unique<SingleBody>(*process_, plan);
}

}  // namespace starfolds

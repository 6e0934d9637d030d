#include "widgets/samples.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>
#include <vector>

#include "bodies/radial.h"
#include "colour/tables.h"
#include "desktop/qimage_of_surface.h"
#include "numbers/conversions.h"
#include "widgets/body_stage.h"

namespace starfolds {
namespace {

constexpr std::uint64_t kShapeSeed = 41;

QSize DevicePixels(SampleSize size) {
  return (QSizeF(size.Size) * size.Ratio).toSize().expandedTo({1, 1});
}

QImage EmptyPicture(SampleSize size) {
  QImage picture(DevicePixels(size), QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(size.Ratio);
  picture.fill(Qt::transparent);
  return picture;
}

// --- Bodies ---

constexpr double kStarsPerPixel = 0.12;
constexpr Long kMostStars = 6000;

/// One star is one physical pixel, in the colour that it has in the run.
QImage PictureOf(BodyStage& stage, const ShownBody& body, SampleSize size, SampleView view) {
  const QSize pixels = DevicePixels(size);
  const auto width = RoundedToLimits<Integer>(pixels.width());
  const auto height = RoundedToLimits<Integer>(pixels.height());
  stage.Take(body);
  std::optional<BodyCamera> camera;
  if (view == SampleView::Fitted) camera = stage.FittedCamera(width, height);
  const double stars = kStarsPerPixel * width * height;
  MemorySurface canvas(width, height);
  const auto run =
      stage.Begin(canvas, camera, ClampTo<Long>(RoundedToLimits<Long>(stars), 10, kMostStars));
  for (int frame = 0; frame < stage.WarmUpFrames(); ++frame) run->Step();
  QImage picture = ImageOf(canvas);
  picture.setDevicePixelRatio(size.Ratio);
  return picture;
}

constexpr int kTileColumns = 3;
constexpr int kTileRows = 2;
constexpr int kRandomStride = 17;  // coprime to the number of profiles

/// The first profiles in order, or some from the whole list.
QImage Collage(const ProfileArray& profiles, bool atRandom, SampleSize size) {
  BodyStage stage;
  QImage picture = EmptyPicture(size);
  picture.fill(Qt::black);
  QPainter painter(&picture);
  const QSize tile(size.Size.width() / kTileColumns, size.Size.height() / kTileRows);
  for (int i = 0; i < kTileColumns * kTileRows; ++i) {
    const int chosen = atRandom ? (i + 1) * kRandomStride % kProfileCount : i;
    const QPoint corner(i % kTileColumns * tile.width(), i / kTileColumns * tile.height());
    const ShownBody body = ShownBody::Of({&profiles[static_cast<std::size_t>(chosen)], 1});
    painter.drawImage(corner, PictureOf(stage, body, {tile, size.Ratio}, SampleView::Fitted));
  }
  return picture;
}

// --- Shapes ---

/// The range of height to width in which bodies are drawn in proportion.
constexpr double kFlattest = 0.12;
constexpr double kTallest = 2;
constexpr double kMargin = 4;  // logical pixels
constexpr int kCurveSteps = 240;
constexpr int kShapeStars = 700;

/// One quarter of a section, as heights from the core to the rim, at a radius of 1.
std::vector<double> CurveOf(const ShapeSetting& setting) {
  std::vector<double> heights;
  for (int i = 0; i <= kCurveSteps; ++i) {
    const double r = static_cast<double>(i) / kCurveSteps;
    heights.push_back(std::abs(ShapeProfile(RoundedToLimits<Integer>(setting.Shape), r, 1, 1)));
  }
  return heights;
}

/// The curve, mirrored on both axes.
QPainterPath OutlineOf(const std::vector<double>& heights) {
  QPolygonF quarter;
  for (int i = 0; i <= kCurveSteps; ++i) {
    quarter << QPointF(static_cast<double>(i) / kCurveSteps, heights[static_cast<std::size_t>(i)]);
  }
  QPolygonF outline;
  const auto add = [&](double right, double up, bool outward) {
    for (qsizetype i = 0; i < quarter.size(); ++i) {
      const QPointF& point = quarter[outward ? i : quarter.size() - 1 - i];
      outline << QPointF(point.x() * right, point.y() * up);
    }
  };
  add(1, 1, true);
  add(1, -1, false);
  add(-1, -1, true);
  add(-1, 1, false);
  QPainterPath path;
  path.addPolygon(outline);
  path.closeSubpath();
  return path;
}

/// Stars distributed as the generator does it, in the plane of the section.
QList<QPointF> StarsOf(const ShapeSetting& setting) {
  Rnd random;
  random.Seed(kShapeSeed);
  QList<QPointF> stars;
  for (int i = 0; i < kShapeStars; ++i) {
    const double r = std::pow(random(), setting.RadiusExp);
    const double height = ShapeHeight(RoundedToLimits<Integer>(setting.Shape), r, 1, 1, random);
    const double lift = std::pow(random(), setting.HeightExp);
    const double side = Sign(random() - 0.5);
    stars << QPointF(r * side, lift * height);
  }
  return stars;
}

/// Maps a section of radius and maximum height 1 to the middle of the picture.
QTransform PlaceShape(double heightToWidth, QSize size) {
  const double width = size.width() - 2 * kMargin;
  const double height = size.height() - 2 * kMargin;
  const double drawn = std::clamp(heightToWidth, kFlattest, kTallest);
  const double radius = std::max(1.0, std::min(width / 2, height / 2 / drawn));
  QTransform place = QTransform::fromTranslate(size.width() / 2.0, size.height() / 2.0);
  place.scale(radius, radius * drawn);
  return place;
}

// --- Hues ---

constexpr double kRingHole = 0.5;  // share of the ring's radius
constexpr double kStripFrom = 2;   // width to height from which the wheel is drawn as a strip
constexpr double kDegreesPerRadian = 180 / std::numbers::pi;

/// Outlines a wheel, whose colours may be those of the window behind it.
void DrawEdge(QImage& picture, const QPainterPath& edge) {
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(128, 128, 128, 160));
  painter.drawPath(edge);
}

/// Fills a strip with the colours `colourAt` of 0 (left) to below 1 (right).
template <class ColourAt>
void DrawStrip(QImage& picture, ColourAt colourAt) {
  for (int x = 0; x < picture.width(); ++x) {
    const QRgb rgb = ScreenWord(colourAt((x + 0.5) / picture.width()));
    for (int y = 0; y < picture.height(); ++y) picture.setPixel(x, y, rgb);
  }
  QPainterPath edge;
  edge.addRect(QRectF(QPointF(0.5, 0.5), picture.deviceIndependentSize() - QSizeF(1, 1)));
  DrawEdge(picture, edge);
}

/// The position on a ring, from 0 (top) to below 1, clockwise.
double PlaceOnRing(double right, double down) {
  const double turn = std::atan2(right, -down) * kDegreesPerRadian / 360;
  return turn < 0 ? turn + 1 : turn;
}

/// Draws an antialiased ring.
template <class ColourAt>
void DrawRing(QImage& picture, ColourAt colourAt) {
  const double pen = picture.devicePixelRatio();
  const double radius = std::min(picture.width(), picture.height()) / 2.0 - pen;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double right = x + 0.5 - picture.width() / 2.0;
      const double down = y + 0.5 - picture.height() / 2.0;
      const double distance = std::hypot(right, down);
      const double cover =
          std::clamp(std::min(radius - distance, distance - radius * kRingHole) + 0.5, 0.0, 1.0);
      if (cover <= 0) continue;
      QColor color(ScreenWord(colourAt(PlaceOnRing(right, down))));
      color.setAlphaF(static_cast<float>(cover));
      picture.setPixelColor(x, y, color);
    }
  }
  const QSizeF size = picture.deviceIndependentSize();
  const QPointF middle(size.width() / 2, size.height() / 2);
  QPainterPath edge;
  edge.addEllipse(middle, radius / pen, radius / pen);
  edge.addEllipse(middle, radius / pen * kRingHole, radius / pen * kRingHole);
  DrawEdge(picture, edge);
}

}  // namespace

QImage ProfileSample(const ProfileArray& profiles, int position, SampleSize size) {
  if (position < kCycleRandomly) {
    return SampleOfBody(profiles[static_cast<std::size_t>(std::max(position, 0))], size,
                        SampleView::Fitted);
  }
  return Collage(profiles, position == kCycleRandomly, size);
}

QImage SampleOfBody(std::span<const StarfoldProfile> members, SampleSize size, SampleView view) {
  BodyStage stage;
  return PictureOf(stage, ShownBody::Of(members), size, view);
}

QImage ShapeSample(const ShapeSetting& setting, SampleSize size, const QPalette& palette) {
  QImage picture = EmptyPicture(size);
  picture.fill(palette.color(QPalette::Base));
  const std::vector<double> heights = CurveOf(setting);
  const double highest = *std::max_element(heights.begin(), heights.end());
  QTransform place = PlaceShape(highest * setting.Ratio, size.Size);
  if (highest > 0) place.scale(1, 1 / highest);

  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor axis = palette.color(QPalette::Text);
  axis.setAlphaF(0.25F);
  painter.setPen(axis);
  const QPointF middle(size.Size.width() / 2.0, size.Size.height() / 2.0);
  painter.drawLine(QPointF(0, middle.y()), QPointF(size.Size.width(), middle.y()));
  painter.drawLine(QPointF(middle.x(), 0), QPointF(middle.x(), size.Size.height()));

  const QColor accent = palette.color(QPalette::Highlight);
  QColor inside = accent;
  inside.setAlphaF(0.18F);
  const QPainterPath outline = place.map(OutlineOf(heights));
  painter.fillPath(outline, inside);
  painter.setPen(Qt::NoPen);
  QColor star = palette.color(QPalette::Text);
  star.setAlphaF(0.7F);
  painter.setBrush(star);
  for (const QPointF& point : StarsOf(setting)) {
    painter.drawEllipse(place.map(point), 0.6, 0.6);
  }
  painter.strokePath(outline, QPen(accent, 1.5));
  return picture;
}

QImage HueWheelSample(int hueStart, int hueEnd, SampleSize size) {
  FlareTable table{};
  BuildFlareTable(table, hueStart, hueEnd);
  QImage picture = EmptyPicture(size);
  DrawStrip(picture,
            [&](double place) { return table[static_cast<std::size_t>(place * kFlareSteps)]; });
  return picture;
}

QImage PixHueSample(const StarfoldProfile& profile, SampleSize size) {
  std::array<Colour, 361> wheel{};
  BuildHueWheel(wheel, profile);
  const auto colourAt = [&](double place) { return wheel[static_cast<std::size_t>(place * 360)]; };
  QImage picture = EmptyPicture(size);
  if (size.Size.width() >= kStripFrom * size.Size.height()) {
    DrawStrip(picture, colourAt);
  } else {
    DrawRing(picture, colourAt);
  }
  return picture;
}

}  // namespace starfolds

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
#include "numbers/conversions.h"
#include "platform/desktop_services.h"
#include "process/process_state.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "widgets/picture_box.h"

namespace starfolds {
namespace {

constexpr std::uint64_t kSeed = 41;

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

constexpr Integer kFrames = 40;
constexpr double kStarsPerPixel = 0.12;
constexpr Long kMostStars = 6000;
constexpr Integer kCanvasWidth = 1280;
constexpr Integer kCanvasHeight = 960;
constexpr Single kZoom = 0.5F;      // leaves room for bodies that extend far beyond the usual
constexpr double kCloseUp = 1.5;    // canvas pixels per picture pixel, in a second run
constexpr double kFilled = 0.9;     // share of the picture that the body fills
constexpr double kOutliers = 0.02;  // share of the pixels that is ignored at each of the four edges
constexpr double kGlow = 0.4;       // share of a star's light on each adjacent pixel

struct LitPixel {
  int X, Y;
  Colour Light;
};

std::vector<LitPixel> LitPixels(const Surface& surface) {
  std::vector<LitPixel> lit;
  std::vector<Colour> row(static_cast<std::size_t>(surface.Width()));
  for (int y = 0; y < surface.Height(); ++y) {
    surface.CopyRow(0, y, row);
    for (int x = 0; x < surface.Width(); ++x) {
      const Colour light = row[static_cast<std::size_t>(x)];
      if (light != 0) lit.push_back({x, y, light});
    }
  }
  return lit;
}

/// The mapping from canvas pixels to picture pixels.
struct Framing {
  double MiddleX = 0, MiddleY = 0;  // canvas position of the picture's centre
  double Scale = 1;
};

/// The middle and length of the interval that contains all but the outliers.
std::pair<double, double> Stretch(std::vector<int> places) {
  const auto outliers = static_cast<std::size_t>(static_cast<double>(places.size()) * kOutliers);
  std::sort(places.begin(), places.end());
  const int low = places[outliers];
  const int high = places[places.size() - 1 - outliers];
  return {(low + high + 1) / 2.0, high - low + 1};
}

/// The mapping for which the body fills the picture.
Framing FramingOf(const std::vector<LitPixel>& lit, QSize picture) {
  if (lit.empty()) return {};
  std::vector<int> columns;
  std::vector<int> rows;
  for (const LitPixel& pixel : lit) {
    columns.push_back(pixel.X);
    rows.push_back(pixel.Y);
  }
  const auto [middleX, width] = Stretch(std::move(columns));
  const auto [middleY, height] = Stretch(std::move(rows));
  return {middleX, middleY, kFilled * std::min(picture.width() / width, picture.height() / height)};
}

/// Each star lights the adjacent pixels as well, so that a still is as bright as the moving body.
QImage StillOf(const std::vector<LitPixel>& lit, const Framing& framing, QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::black);
  const auto add = [&](int x, int y, Colour light, double share) {
    if (!picture.valid(x, y)) return;
    QRgb& pixel = reinterpret_cast<QRgb*>(picture.scanLine(y))[x];
    const QRgb more = ScreenWord(light);
    const auto sum = [share](int a, int b) {
      return std::min(a + static_cast<int>(b * share), 255);
    };
    pixel = qRgb(sum(qRed(pixel), qRed(more)), sum(qGreen(pixel), qGreen(more)),
                 sum(qBlue(pixel), qBlue(more)));
  };
  for (const LitPixel& pixel : lit) {
    const auto place = [&](double at, double middle, int length) {
      return static_cast<int>(std::floor((at + 0.5 - middle) * framing.Scale + length * 0.5));
    };
    const int x = place(pixel.X, framing.MiddleX, size.width());
    const int y = place(pixel.Y, framing.MiddleY, size.height());
    add(x, y, pixel.Light, 1);
    add(x - 1, y, pixel.Light, kGlow);
    add(x + 1, y, pixel.Light, kGlow);
    add(x, y - 1, pixel.Light, kGlow);
    add(x, y + 1, pixel.Light, kGlow);
  }
  return picture;
}

/// Has its own process state, so that a picture changes nothing of the dialog's. Runs one profile,
/// as number 0, on a large canvas and cuts the part with the body out: the extent of the body is
/// known only after it is drawn.
class BodyStudio {
 public:
  BodyStudio() {
    process_->Events = &clock_;
    process_->Desktop = &desktop_;
    process_->Tree = &tree_;
  }

  QImage Picture(const StarfoldProfile& profile, SampleSize size) {
    StarfoldProfile& shown = process_->Profiles[0];
    shown = profile;
    ClampProfile(shown);
    ProfileColours& colours = process_->Colours.Profile[0];
    BuildHueWheel(colours.HueTable, shown);
    BuildFlareTable(colours.NovaRamp, shown.Starfold_HWC_Start, shown.Starfold_HWC_End);
    const QSize pixels = DevicePixels(size);
    const double stars = kStarsPerPixel * pixels.width() * pixels.height();

    std::vector<LitPixel> lit = Shoot(kZoom, stars);
    Framing framing = FramingOf(lit, pixels);
    if (framing.Scale > 1) {  // too coarse: runs again with a larger zoom
      lit = Shoot(static_cast<Single>(kZoom * framing.Scale * kCloseUp), stars);
      framing = FramingOf(lit, pixels);
    }
    QImage picture = StillOf(lit, framing, pixels);
    picture.setDevicePixelRatio(size.Ratio);
    return picture;
  }

 private:
  std::vector<LitPixel> Shoot(Single zoom, double stars) {
    SetupPreviewSurface(*process_, canvas_, true, zoom, kSeed);
    SingleBodyRun(*process_, {.Stars = ClampTo<Long>(RoundedToLimits<Long>(stars), 10, kMostStars),
                              .FrameLimit = kFrames});
    return LitPixels(canvas_);
  }

  std::unique_ptr<ProcessState> process_ = std::make_unique<ProcessState>();
  MemorySurface canvas_{kCanvasWidth, kCanvasHeight};
  CountedPump clock_;
  MemoryDesktop desktop_;
  MemoryTree tree_;
};

constexpr int kTileColumns = 3;
constexpr int kTileRows = 2;
constexpr int kRandomStride = 17;  // coprime to the number of profiles

/// The first profiles in order, or some from the whole list.
QImage Collage(BodyStudio& studio, const ProfileArray& profiles, bool atRandom, SampleSize size) {
  QImage picture = EmptyPicture(size);
  picture.fill(Qt::black);
  QPainter painter(&picture);
  const QSize tile(size.Size.width() / kTileColumns, size.Size.height() / kTileRows);
  for (int i = 0; i < kTileColumns * kTileRows; ++i) {
    const int chosen = atRandom ? (i + 1) * kRandomStride % kProfileCount : i;
    const QPoint corner(i % kTileColumns * tile.width(), i / kTileColumns * tile.height());
    painter.drawImage(
        corner, studio.Picture(profiles[static_cast<std::size_t>(chosen)], {tile, size.Ratio}));
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
  random.Seed(kSeed);
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
  BodyStudio studio;
  if (position < kCycleRandomly) {
    return studio.Picture(profiles[static_cast<std::size_t>(std::max(position, 0))], size);
  }
  return Collage(studio, profiles, position == kCycleRandomly, size);
}

QImage BodySample(const StarfoldProfile& body, SampleSize size) {
  return BodyStudio().Picture(body, size);
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

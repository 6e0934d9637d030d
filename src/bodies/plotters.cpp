#include "bodies/plotters.h"

#include <span>

#include "numbers/conversions.h"
#include "numbers/elementary.h"

namespace starfolds {
namespace {

/// Flares whose unit is no longer than this cannot reach a second pixel.
constexpr double kLeastUnit = 0.0078125;

/// The rings of pixels that the flares are made of. `Core` is the centre; a half ring lacks its
/// upper pixel.
enum class Shape { Core, Axis, HalfAxis, Square, Pair };

struct Ring {
  Shape Kind;
  int A = 0;  // multiples of the unit
  int B = 0;
};

constexpr Ring kCore{Shape::Core};
constexpr Ring Axis(int m) { return {Shape::Axis, m}; }
constexpr Ring HalfAxis(int m) { return {Shape::HalfAxis, m}; }
constexpr Ring Square(int m) { return {Shape::Square, m}; }
constexpr Ring Pair(int a, int b) { return {Shape::Pair, a, b}; }

/// Two slices, `Offset` of the shape's depth before and behind the centre.
struct Layer {
  double Offset;
  std::span<const Ring> Rings;
};

struct FlareShape {
  std::span<const Ring> Centre;
  std::span<const Layer> Layers;
};

constexpr Ring kNovaCentre[] = {Axis(16),   Square(16),  Square(7),   HalfAxis(11),
                                Square(11), Pair(2, 24), Pair(24, 2), Axis(32)};
constexpr Ring kNovaInner[] = {Pair(3, 10), Pair(10, 3), Pair(7, 5), Pair(5, 7), Axis(24)};
constexpr Ring kNovaOuter[] = {Axis(2), Pair(3, 5), Pair(5, 3)};
constexpr Layer kNovaLayers[] = {{0.5, kNovaInner}, {1.0, kNovaOuter}};

constexpr Ring kCoreOnly[] = {kCore};

constexpr Ring kAxesCentre[] = {Axis(8), HalfAxis(12), HalfAxis(20), Axis(32)};
constexpr Ring kAxesInner[] = {kCore, Axis(8)};
constexpr Layer kAxesLayers[] = {
    {0.25, kAxesInner}, {0.5, kCoreOnly}, {0.75, kCoreOnly}, {1.0, kCoreOnly}};

constexpr Ring kStarCentre[] = {Axis(8), HalfAxis(12), HalfAxis(18), Axis(32)};
constexpr Ring kStar1[] = {kCore, Axis(8), Square(8)};
constexpr Ring kStar2[] = {kCore, Axis(12), Square(12)};
constexpr Ring kStar3[] = {kCore, Square(18)};
constexpr Layer kStarLayers[] = {{0.25, kStar1}, {0.5, kStar2}, {0.75, kStar3}, {1.0, kCoreOnly}};

constexpr Ring kSphereCentre[] = {Axis(32), Pair(12, 29), Square(23), Pair(29, 12)};
constexpr Ring kSphere1[] = {Pair(14, 28), Square(23), Pair(28, 14)};
constexpr Ring kSphere2[] = {Pair(11, 16), Pair(16, 11)};
constexpr Layer kSphereLayers[] = {{0.333, kSphere1}, {0.667, kSphere2}, {1.0, kCoreOnly}};

constexpr Ring kFineCentre[] = {Axis(32), Pair(10, 30), Pair(19, 26), Pair(26, 19), Pair(30, 10)};
constexpr Ring kFine1[] = {Pair(11, 30), Pair(21, 27), Pair(27, 21), Pair(30, 11)};
constexpr Ring kFine2[] = {Pair(11, 23), Square(20), Pair(23, 11)};
constexpr Ring kFine3[] = {Pair(7, 12), Pair(12, 7)};
constexpr Layer kFineLayers[] = {{0.25, kFine1}, {0.5, kFine2}, {0.75, kFine3}, {1.0, kCoreOnly}};

constexpr FlareShape kNova{kNovaCentre, kNovaLayers};
constexpr FlareShape kPulsarShapes[] = {
    kNova,
    {kAxesCentre, kAxesLayers},
    {kStarCentre, kStarLayers},
    {kSphereCentre, kSphereLayers},
    {kFineCentre, kFineLayers},
};

/// Draws rings about one centre. Places far off the screen are clamped to the limits of a Long,
/// where nothing shows.
class FlarePen {
 public:
  FlarePen(Surface& surface, double x, double y, double unit, Colour colour)
      : surface_(surface),
        x_(RoundedToLimits<Long>(x)),
        y_(RoundedToLimits<Long>(y)),
        unit_(unit),
        colour_(colour) {}

  void Draw(std::span<const Ring> rings) {
    for (const Ring& ring : rings) Draw(ring);
  }

  void Draw(const Ring& ring) {
    const std::int64_t a = RoundedToLimits<Long>(unit_ * ring.A);
    switch (ring.Kind) {
      case Shape::Core: return Dot(0, 0);
      case Shape::Axis: Dot(0, -a); [[fallthrough]];
      case Shape::HalfAxis:
        Dot(-a, 0);
        Dot(a, 0);
        return Dot(0, a);
      case Shape::Square: return Corners(a, a);
      case Shape::Pair: return Corners(a, RoundedToLimits<Long>(unit_ * ring.B));
    }
  }

 private:
  void Corners(std::int64_t a, std::int64_t b) {
    Dot(-a, -b);
    Dot(a, -b);
    Dot(-a, b);
    Dot(a, b);
  }

  void Dot(std::int64_t dx, std::int64_t dy) {
    const std::int64_t x = x_ + dx;
    const std::int64_t y = y_ + dy;
    if (!Fits<Long>(x) || !Fits<Long>(y)) return;
    surface_.SetPixelV(static_cast<Long>(x), static_cast<Long>(y), colour_);
  }

  Surface& surface_;
  std::int64_t x_, y_;
  double unit_;
  Colour colour_;
};

/// A flare to the eye, of which each slice is projected on its own.
struct Flare {
  const Display& Screen;
  double ViewX, ViewY;
  double Extent;  // the unit at focal length and depth 1
  Colour Tint;

  double UnitAt(double depth) const { return Screen.FocalLength / depth * Extent; }

  void DrawSlice(double depth, std::span<const Ring> rings) const {
    const double f = Screen.FocalPixels / depth;
    FlarePen pen(*Screen.hDCDraw, ViewX * f + Screen.CenterX, ViewY * f + Screen.CenterY,
                 UnitAt(depth), Tint);
    pen.Draw(rings);
  }

  void Draw(double depth, const FlareShape& shape, double spread) const {
    DrawSlice(depth, kCoreOnly);
    if (!(UnitAt(depth) > kLeastUnit)) return;
    DrawSlice(depth, shape.Centre);
    for (const Layer& layer : shape.Layers) {
      DrawSlice(depth + spread * layer.Offset, layer.Rings);
      const double near = depth - spread * layer.Offset;
      if (near > kNearDepth) DrawSlice(near, layer.Rings);
    }
  }
};

}  // namespace

void PlotNew(const Display& screen, Long x, Long y, Single depth, Integer left, Integer frames,
             Single extent, Colour colour) {
  const double unit = static_cast<double>(screen.FocalLength) / depth * extent * left / frames;
  FlarePen pen(*screen.hDCDraw, x, y, unit, colour);
  pen.Draw(kCore);
  const std::int64_t size = RoundHalfEven(unit * 32);
  if (size < 1) return;
  pen.Draw(Axis(32));
  if (size < 2) return;
  pen.Draw(Axis(16));
  if (size < 4) return;
  pen.Draw(Square(8));
  pen.Draw(Square(12));
  if (size < 8) return;
  pen.Draw(Axis(1));
  pen.Draw(Axis(4));
}

void PlotNova(const Display& screen, Single viewX, Single viewY, Single depth, Integer left,
              Integer frames, Single extent, Colour colour) {
  const double growth = Power(frames - left + 1, 0.637499988079071);
  const Flare flare{screen, viewX, viewY, extent * growth, colour};
  flare.Draw(depth, kNova, extent * 0.2);
}

void PlotPulsar(const Display& screen, Single viewX, Single viewY, Single depth, Single extent,
                Integer shape, Single pulsarDepth, Colour colour) {
  const Flare flare{screen, viewX, viewY, extent, colour};
  if (shape < 0 || static_cast<std::size_t>(shape) >= std::size(kPulsarShapes)) {
    return flare.DrawSlice(depth, kCoreOnly);
  }
  flare.Draw(depth, kPulsarShapes[shape], static_cast<double>(pulsarDepth) * extent);
}

}  // namespace starfolds

#include "desktop/screen_image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "desktop/journal_surface.h"

namespace starfolds {
namespace {

constexpr std::uint32_t kUntouched = 0xDEADBEEF;

/// A picture with lines longer than its width, to see that nothing is written beside it.
struct Picture {
  Picture(int width, int height)
      : Width(width), Height(height), Line(width + 3), Words(Line * height, kUntouched) {}

  ScreenImage Image() { return {Words.data(), Line * 4, Width, Height}; }
  std::uint32_t At(int x, int y) const { return Words[static_cast<std::size_t>(y * Line + x)]; }

  int Width;
  int Height;
  int Line;
  std::vector<std::uint32_t> Words;
};

/// Over and under a factor's line, and a picture that is as large as the scaled surface, larger or
/// smaller by `Excess` physical pixels. `Origin` is the place of the surface in it.
struct Case {
  const char* Name;
  int Over;
  int Under;
  int Excess;
  int Origin = 0;
};

constexpr int kWidth = 37;
constexpr int kHeight = 23;

class ScreenImageAt : public testing::TestWithParam<Case> {
 protected:
  ScreenImageAt() {
    Scale.Columns.Measure(kWidth, Factor(), Target.Width, GetParam().Origin);
    Scale.Rows.Measure(kHeight, Factor(), Target.Height, GetParam().Origin);
  }

  double Factor() const { return static_cast<double>(GetParam().Over) / GetParam().Under; }
  int Physical(int logical) const {
    return logical * GetParam().Over / GetParam().Under + GetParam().Excess;
  }
  int Logical(int physical) const {
    return (2 * physical + 1) * GetParam().Under / (2 * GetParam().Over) - GetParam().Origin;
  }

  void Scatter(int count) {
    for (int i = 0; i < count; ++i) {
      Canvas.SetPixelV(static_cast<Long>(Random() % kWidth), static_cast<Long>(Random() % kHeight),
                       Random() & 0xFFFFFFU);
    }
  }

  void ExpectCanvas() const {
    for (int y = 0; y < Target.Height; ++y) {
      for (int x = 0; x < Target.Line; ++x) {
        const std::uint32_t expected =
            x < Target.Width ? ScreenWord(Canvas.Pixel(Logical(x), Logical(y))) : kUntouched;
        ASSERT_EQ(Target.At(x, y), expected) << x << ", " << y;
      }
    }
  }

  std::mt19937 Random{3};
  JournalSurface Canvas{kWidth, kHeight};
  Picture Target{Physical(kWidth), Physical(kHeight)};
  PixelScale Scale;
};

TEST_P(ScreenImageAt, ShowsTheCanvasAndThenItsChanges) {
  Scatter(300);
  Target.Image().PaintAll(Scale, Canvas);
  ExpectCanvas();
  Canvas.Present();
  for (int frame = 0; frame < 3; ++frame) {
    Scatter(40);
    Target.Image().PaintPlaces(Scale, Canvas, Canvas.Journal());
    ExpectCanvas();
    Canvas.Present();
  }
}

INSTANTIATE_TEST_SUITE_P(Scales, ScreenImageAt,
                         testing::Values(Case{"Plain", 1, 1, 0}, Case{"PlainInLarger", 1, 1, 9},
                                         Case{"FiveQuarters", 5, 4, 0},
                                         Case{"ThreeHalvesInSmaller", 3, 2, -9},
                                         Case{"DoubleInSmaller", 2, 1, -5},
                                         Case{"PlainCutAtAllSides", 1, 1, -8, -4},
                                         Case{"ThreeHalvesInTheMiddle", 3, 2, 12, 4}),
                         [](const auto& scale) { return scale.param.Name; });

TEST(ScreenImage, IsBlackWhereTheSurfaceIsEmpty) {
  const JournalSurface nothing(0, 0);
  Picture target(5, 4);
  PixelScale scale;
  scale.Columns.Measure(0, 1, target.Width);
  scale.Rows.Measure(0, 1, target.Height);
  target.Image().PaintAll(scale, nothing);
  EXPECT_EQ(std::count(target.Words.begin(), target.Words.end(), 0xFF000000U), 5 * 4);
}

}  // namespace
}  // namespace starfolds

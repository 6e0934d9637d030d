#include "bodies/plotters.h"

#include <gtest/gtest.h>

#include <set>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

using Places = std::set<std::pair<int, int>>;

/// A wide screen with its centre at (200, 150) and focal length 1.
class Plotters : public ::testing::Test {
 protected:
  Plotters() : stage_(400, 300) {}

  Display& Screen() { return stage_.Process->Screen; }

  /// The lit pixels relative to the screen's centre.
  Places Lit() const {
    Places places;
    for (Long y = 0; y < 300; ++y) {
      for (Long x = 0; x < 400; ++x) {
        if (stage_.Canvas.Pixel(x, y) != 0) places.insert({x - 200, y - 150});
      }
    }
    return places;
  }

  scenes::Stage stage_;
};

TEST_F(Plotters, UnknownShapesAndFlaresWithoutSizeAreOnePixel) {
  for (const Integer shape : {Integer{-1}, Integer{5}, Integer{3}}) {
    stage_.Canvas.Clear();
    PlotPulsar(Screen(), 0, 0, 1, shape == 3 ? 0.0F : 2.0F, shape, 1, 1);
    EXPECT_EQ(Lit(), (Places{{0, 0}})) << shape;
  }
  PlotPulsar(Screen(), 0, 0, 1, 2, 4, 1, 1);
  EXPECT_GT(Lit().size(), 1U) << "the last shape there is";
}

TEST_F(Plotters, PlacesBeyondAnyNumberDoNotHarm) {
  const Single huge = 3e38F;
  for (const Single view : {-huge, -1.0F, 0.0F, huge}) {
    PlotNova(Screen(), view, -view, 0.00010001F, 1, 32767, huge, 1);
    PlotPulsar(Screen(), view, view, 0.00010001F, huge, 0, huge, 1);
    PlotNew(Screen(), 2147483647, -2147483647 - 1, 0.00010001F, 99, 1, huge, 1);
  }
}

}  // namespace
}  // namespace starfolds

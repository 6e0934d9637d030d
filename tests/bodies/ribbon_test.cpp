#include "bodies/ribbon.h"

#include "one_body.h"

namespace starfolds {
namespace {

constexpr double kRadius = 3;

class Ribbon : public OneBody {
 protected:
  Ribbon() : OneBody(FoldStyle::Nebula) {
    Set().Starfold_Radius = 300;
    Set().Starfold_GHW_Ratio = 0.5F;
    Set().Starfold_Rotation = 0;
    Set().Starfold_CP_Points = 8;
  }

  RibbonSlot& Slot() { return Slots.Ribbon[0]; }
  Point3 At(double place) { return RibbonPoint(Slot(), Set().Starfold_CP_Points, place); }
};

TEST_F(Ribbon, ALoopClosesAndAnOpenRibbonDoesNot) {
  for (const Integer points : {1, 3, 20}) {
    Set().Starfold_CP_Points = points;
    for (const Integer closed : {0, 1}) {
      Set().Starfold_CP_Close = closed;
      SetUpSlots();
      constexpr double step = 1e-3;
      // No coordinate of the curve moves faster than its points lie apart.
      const double nearby = 2 * kRadius * std::sqrt(3) * step;
      for (int i = 1; i < points; ++i) {
        EXPECT_LE(Distance(At(i - step), At(i)), nearby) << "knot " << i << " of " << points;
      }
      EXPECT_EQ(Distance(At(points - step), At(0)) <= nearby, closed != 0) << points;
      ExpectPoint(At(0.25 - points), At(0.25));
      ExpectPoint(At(0.25 + points), At(0.25));
    }
  }
}

}  // namespace
}  // namespace starfolds

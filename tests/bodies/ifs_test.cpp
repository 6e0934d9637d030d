#include "bodies/ifs.h"

#include <algorithm>
#include <complex>
#include <numbers>

#include "one_body.h"

namespace starfolds {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

class Ifs : public OneBody {
 protected:
  explicit Ifs(FoldStyle style = FoldStyle::IfsFractal) : OneBody(style) {}

  /// Builds a figure of radius 1. Its heights are those of the ratio 1, whatever the ratio is.
  std::vector<Point3> UnitFigure(Integer vertices, Single ratio) {
    Set().Starfold_RadSegs = vertices;
    Set().Starfold_GHW_Ratio = ratio;
    Set().Starfold_Radius = 100;
    SetUpSlots();
    const auto& built = Slots.Ifs[0].IfsVertex;
    std::vector<Point3> figure(built.begin(), built.begin() + vertices);
    for (Point3& vertex : figure) vertex.Y /= ratio;
    return figure;
  }
};

TEST_F(Ifs, FiguresAreCentredOnTheBodyAndNoVertexIsThereTwice) {
  struct Case {
    Integer Vertices;
    Point3 First;
    double Nearest, Farthest;  // of the distances of two vertices
  };
  const double root2 = std::sqrt(2);
  for (const Case& c : {
           Case{6, {0, 1, 0}, root2, 2},                              // an octahedron
           Case{7, {0, 1, 0}, 1, 2},                                  // with its centre
           Case{8, {1, -0.5F, 1}, 1, 3},                              // a box
           Case{9, {-0.6F, 1, -0.36F}, 1.2, std::hypot(1.25, 2.25)},  // a prism with stays
           Case{10, {0, -1, 0}, std::sqrt(1.25), std::sqrt(8)},  // two squares between two tips
       }) {
    for (const Single ratio : {0.3F, 1.0F, 2.5F}) {
      const std::vector<Point3> figure = UnitFigure(c.Vertices, ratio);
      SCOPED_TRACE(c.Vertices);
      ExpectPoint(figure[0], c.First);
      Point3 sum;
      double nearest = 9;
      double farthest = 0;
      for (std::size_t i = 0; i < figure.size(); ++i) {
        sum = {sum.X + figure[i].X, sum.Y + figure[i].Y, sum.Z + figure[i].Z};
        for (std::size_t j = 0; j < i; ++j) {
          nearest = std::min(nearest, Distance(figure[i], figure[j]));
          farthest = std::max(farthest, Distance(figure[i], figure[j]));
        }
      }
      ExpectPoint(sum, {});
      EXPECT_NEAR(nearest, c.Nearest, 1e-5);
      EXPECT_NEAR(farthest, c.Farthest, 1e-5);
    }
  }
}

class IfsRecords : public Ifs {
 protected:
  IfsRecords() : Ifs(FoldStyle::UserIfs) {
    Set().Starfold_Radius = 1000;  // a record's unit of 100 is 1
  }

  void Record(std::size_t i, const IfsPoint& record) {
    Set().IFS.Points[i] = record;
    Set().Starfold_IFS_Points = std::max(Set().Starfold_IFS_Points, static_cast<Integer>(i + 1));
  }
};

TEST_F(IfsRecords, ARecordDrawsThePointInAndTurnsItInThePlaneOfItsAxis) {
  struct Case {
    Integer Axis, Angle;
    std::size_t From, To;  // the coordinates that it turns
  };
  for (const Case& c : {Case{0, 37, 1, 2}, Case{1, 37, 0, 2}, Case{2, 250, 0, 1}, Case{1, 0, 0, 2},
                        Case{2, -37, 0, 1}, Case{3, 37, 0, 0}}) {
    Record(0, {100, 200, 300, 25, c.Axis, c.Angle, 1});
    SetUpSlots();
    Slots.Ifs[0].IfsPoint = {9, -2, 7};
    // Three quarters of the offset from (1, 2, 3) are left.
    std::array<double, 3> d{6, -3, 3};
    if (c.Angle > 0 && c.Axis < 3) {
      const auto turned = std::complex(d[c.From], d[c.To]) * std::polar(1.0, c.Angle * kDegree);
      d[c.From] = turned.real();
      d[c.To] = turned.imag();
    }
    SCOPED_TRACE(testing::Message() << "axis " << c.Axis << ", angle " << c.Angle);
    ExpectPoint(PlaceOf(Seed()), {static_cast<Single>(1 + d[0]), static_cast<Single>(2 + d[1]),
                                  static_cast<Single>(3 + d[2])});
  }
}

TEST_F(IfsRecords, WeightsThatAreAllZeroMoveNothing) {
  Record(0, {100, 0, 0, 50, 0, 90, 0});
  SetUpSlots();
  Slots.Ifs[0].IfsPoint = {1, 2, 3};
  ExpectPoint(PlaceOf(Seed()), {1, 2, 3}, 0);
}

}  // namespace
}  // namespace starfolds

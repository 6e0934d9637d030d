#include "bodies/ifs.h"

#include <algorithm>
#include <complex>
#include <numbers>

#include "bodies/star_motion.h"
#include "one_body.h"

namespace starfolds {
namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kRadius = 4;

class Ifs : public OneBody {
 protected:
  Ifs() : OneBody(FoldStyle::IfsFractal) { Set().Starfold_Radius = 400; }

  void Style(FoldStyle style) { Set().Starfold_FoldStyle = static_cast<Integer>(style); }
  const std::array<Point3, kMaxVertices>& Vertices() const { return Slots.Ifs[0].IfsVertex; }

  /// Builds a figure of radius 1. Its heights are those of the ratio 1, whatever the ratio is.
  std::vector<Point3> UnitFigure(Integer vertices, Single ratio) {
    Set().Starfold_RadSegs = vertices;
    Set().Starfold_GHW_Ratio = ratio;
    Set().Starfold_Radius = 100;
    SetUpSlots();
    std::vector<Point3> figure(Vertices().begin(), Vertices().begin() + vertices);
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

TEST_F(Ifs, SmallCountsArePyramidsOnTheirTips) {
  for (Integer n = 2; n <= 5; ++n) {
    const std::vector<Point3> figure = UnitFigure(n, 0.3F);
    ExpectPoint(figure[0], {0, -1, 0});
    for (int i = 1; i < n; ++i) {
      const auto corner = std::polar(1.0, 2 * std::numbers::pi * (i - 1) / (n - 1));
      ExpectPoint(figure[static_cast<std::size_t>(i)],
                  {static_cast<Single>(corner.real()), 0.5F, static_cast<Single>(corner.imag())});
    }
  }
}

TEST_F(Ifs, AFreshPointIsFollowedByItsSmallerTurnedImages) {
  Style(FoldStyle::IfsPoint);
  Set().Starfold_Profile = 3;  // conical: the height is the rest of the radius
  Set().Starfold_GHW_Ratio = 0.5F;
  Set().Starfold_RadiusExp = 2;
  Set().Starfold_HeightExp = 3;
  Set().Starfold_RadFill = 50;
  Set().Starfold_RadBands = 90;
  Set().Starfold_RadSegs = 4;
  SetUpSlots();
  for (const Single radius : {0.5F, 0.75F}) {
    Draws({radius, 0.75F, 0.5F, 0.375F});  // the radius, the upper side, the height, the turn
    const Point3 fresh = PlaceOf(Seed());
    ASSERT_EQ(Random().ScriptedDrawsLeft(), 0U);
    const double r = kRadius * radius * radius;
    const auto place = std::polar(r, 2 * std::numbers::pi * 0.375);
    const double height = (kRadius - r) * 0.5 * 0.125;
    ExpectPoint(fresh, {static_cast<Single>(place.real()), static_cast<Single>(height),
                        static_cast<Single>(place.imag())});
    Draws({0.9F});
    for (int image = 1; image < 4; ++image) {
      const double scale = std::pow(0.5, image);
      const auto turned = place * std::polar(scale, image * 90 * kDegree);
      ExpectPoint(PlaceOf(Seed()),
                  {static_cast<Single>(turned.real()), static_cast<Single>(height * scale),
                   static_cast<Single>(turned.imag())});
    }
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 1U) << "images are not drawn";
  }
}

/// The place a fraction `f` of the way from one point to another.
Point3 Between(const Point3& from, const Point3& to, Single f) {
  return {from.X + (to.X - from.X) * f, from.Y + (to.Y - from.Y) * f, from.Z + (to.Z - from.Z) * f};
}

TEST_F(Ifs, AFractalStarGoesOnTowardADrawnVertexFromWhereTheLastOneLies) {
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 30;
  SetUpSlots();
  Point3 place = Vertices()[0];
  Draws({0.3F, 0.6F, 0.1F, 0.9F});
  for (const std::size_t vertex : {1, 2, 0, 3}) {
    place = Between(place, Vertices()[vertex], 0.3F);
    ExpectPoint(PlaceOf(Seed()), place);
  }
}

TEST_F(Ifs, AWireframeStarLiesOnTheLineThroughTheLastTwoIterates) {
  Style(FoldStyle::IfsWireframe);
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 30;
  Set().Starfold_RadBands = 2;
  SetUpSlots();
  const auto& v = Vertices();
  const Point3 before = Between(v[1], v[2], 0.3F);
  const Point3 after = Between(before, v[3], 0.3F);
  for (const Single t : {0.0F, 0.5F, 0.875F}) {
    Draws({0.3F, 0.6F, 0.9F, t});
    ExpectPoint(PlaceOf(Seed()), Between(before, after, 2 * t));
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  }
  Set().Starfold_RadBands = 0;  // without iterations it shoots from the origin
  Draws({0.3F, 0.25F});
  ExpectPoint(PlaceOf(Seed()), Between({}, v[1], 0.5F));
}

class IfsRecords : public Ifs {
 protected:
  IfsRecords() {
    Style(FoldStyle::UserIfs);
    Set().Starfold_Radius = 1000;  // a record's unit of 100 is 1
  }

  void Record(std::size_t i, const IfsPoint& record) {
    Set().IFS.Points[i] = record;
    Set().Starfold_IFS_Points = std::max(Set().Starfold_IFS_Points, static_cast<Integer>(i + 1));
  }
};

TEST_F(IfsRecords, RecordsAreDrawnByTheirWeights) {
  const std::array<Integer, 4> weights{5, 0, 3, 12};
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const auto place = static_cast<Integer>((i + 1) * 100);
    Record(i, {place, 0, 0, 100, 0, 0, weights[i]});
  }
  SetUpSlots();
  constexpr int stars = 20000;
  std::array<int, 4> hits{};
  for (int i = 0; i < stars; ++i) ++hits.at(static_cast<std::size_t>(std::lround(Seed().X)) - 1);
  for (std::size_t i = 0; i < hits.size(); ++i) {
    const double share = weights[i] / 20.0;
    EXPECT_NEAR(hits[i], stars * share, FiveSigma(stars, share)) << i;
  }
}

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

TEST_F(Ifs, AStarComesInWhereTheTurningBodyStands) {
  Set().Starfold_Rotation = 10000;  // 0.08 radians a frame: more than a turn in 100 frames
  Set().Starfold_RadSegs = 8;       // none of them on the axis
  Set().Starfold_RadFill = 45;
  Set().Starfold_RadBands = 2;
  Set().IFS.Points[0] = {300, 200, 100, 30, 1, 20, 1};
  Set().Starfold_IFS_Points = 1;
  Set().Atom.Atoms[0].Atom_LocX = 300;
  Set().Starfold_Atoms = 1;
  for (const FoldStyle style : {FoldStyle::IfsPoint, FoldStyle::IfsWireframe, FoldStyle::IfsFractal,
                                FoldStyle::UserIfs, FoldStyle::Molecule}) {
    Style(style);
    SetUpSlots();
    const BodySlots before = Slots;
    Random().Seed(11);
    const SeedPoint early = Seed();
    ASSERT_GT(Length(early.X, 0, early.Z), 0.1) << "off the axis";
    StarState carried;
    carried.StarX = early.X;
    carried.StarZ = early.Z;
    carried.StarSpinCos = early.SpinCos;
    carried.StarSpinSin = early.SpinSin;
    Slots = before;
    for (int frame = 0; frame < 100; ++frame) {
      AdvanceAngles(Process().Prepared);
      RotateStar(carried);
    }
    Random().Seed(11);
    ExpectPoint(PlaceOf(Seed()), {carried.StarX, early.Y, carried.StarZ}, 1e-3);
    EXPECT_NEAR(early.RotationStep, 0.08, 1e-6) << "the step that colours see";
  }
}

}  // namespace
}  // namespace starfolds

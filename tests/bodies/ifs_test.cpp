#include "bodies/ifs.h"

#include <algorithm>
#include <complex>
#include <map>
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

  /// Builds a figure and takes its vertices in units of the radius; heights in those of the radius
  /// times the ratio, so that one geometry holds for all ratios.
  std::vector<Point3> UnitFigure(Integer vertices, Single ratio) {
    Set().Starfold_RadSegs = vertices;
    Set().Starfold_GHW_Ratio = ratio;
    SetUpSlots();
    std::vector<Point3> figure;
    for (int i = 0; i < kMaxVertices; ++i) {
      const Point3& v = Vertices()[static_cast<std::size_t>(i)];
      if (i >= vertices) {
        EXPECT_EQ(Length(v), 0) << "beyond the count of " << vertices;
        continue;
      }
      figure.push_back({static_cast<Single>(v.X / kRadius),
                        static_cast<Single>(v.Y / (kRadius * static_cast<double>(ratio))),
                        static_cast<Single>(v.Z / kRadius)});
    }
    return figure;
  }

  int NearestVertex(const Point3& place, int count) {
    const auto end = Vertices().begin() + count;
    return static_cast<int>(std::min_element(Vertices().begin(), end,
                                             [&](const Point3& a, const Point3& b) {
                                               return Distance(a, place) < Distance(b, place);
                                             }) -
                            Vertices().begin());
  }
};

std::vector<double> SortedDistances(const std::vector<Point3>& points) {
  std::vector<double> distances;
  for (std::size_t i = 0; i < points.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) distances.push_back(Distance(points[i], points[j]));
  }
  std::sort(distances.begin(), distances.end());
  return distances;
}

constexpr std::array<Single, 3> kRatios{0.3F, 1.0F, 2.5F};

TEST_F(Ifs, OneVertexIsTheOrigin) {
  ExpectPoint(UnitFigure(1, 1).front(), {}, 0);
  for (int i = 0; i < 20; ++i) ExpectPoint(PlaceOf(Seed()), {}, 0);
}

TEST_F(Ifs, SmallCountsArePyramidsOnTheirTips) {
  for (const Single ratio : kRatios) {
    for (Integer n = 2; n <= 5; ++n) {
      const std::vector<Point3> figure = UnitFigure(n, ratio);
      ExpectPoint(figure[0], {0, -1, 0});
      const int base = n - 1;
      for (int i = 1; i <= base; ++i) {
        const std::complex<double> corner(figure[static_cast<std::size_t>(i)].X,
                                          figure[static_cast<std::size_t>(i)].Z);
        const auto regular = std::polar(1.0, 2 * std::numbers::pi * (i - 1) / base);
        EXPECT_NEAR(std::abs(corner - regular), 0, 1e-6) << int{n} << " " << i;
        EXPECT_NEAR(figure[static_cast<std::size_t>(i)].Y, 0.5, 1e-6);
      }
    }
  }
}

TEST_F(Ifs, SixAndSevenVerticesAreAnOctahedron) {
  for (const Single ratio : kRatios) {
    std::vector<Point3> figure = UnitFigure(6, ratio);
    ExpectPoint(figure[0], {0, 1, 0});
    const std::vector<double> distances = SortedDistances(figure);
    for (std::size_t i = 0; i < 12; ++i) EXPECT_NEAR(distances[i], std::sqrt(2), 1e-6) << "edge";
    for (std::size_t i = 12; i < 15; ++i) EXPECT_NEAR(distances[i], 2, 1e-6) << "diagonal";
    figure.push_back({});
    const std::vector<Point3> withCentre = UnitFigure(7, ratio);
    for (std::size_t i = 0; i < 7; ++i) ExpectPoint(withCentre[i], figure[i], 1e-6);
  }
}

TEST_F(Ifs, EightVerticesAreTheCornersOfABox) {
  for (const Single ratio : kRatios) {
    const std::vector<Point3> figure = UnitFigure(8, ratio);
    ExpectPoint(figure[0], {1, -0.5, 1});
    for (const Point3& corner : figure) {
      ExpectPoint({std::abs(corner.X), std::abs(corner.Y), std::abs(corner.Z)}, {1, 0.5, 1}, 1e-6);
    }
    EXPECT_NEAR(SortedDistances(figure).front(), 1, 1e-6) << "no corner twice";
  }
}

TEST_F(Ifs, NineVerticesAreAPrismWithStays) {
  for (const Single ratio : kRatios) {
    const std::vector<Point3> figure = UnitFigure(9, ratio);
    // An isosceles triangle of base 1.2 and height 1.08, its centroid on the axis.
    EXPECT_NEAR(Distance(figure[0], figure[1]), 1.2, 1e-6);
    EXPECT_NEAR(Distance(figure[0], figure[2]), std::hypot(0.6, 1.08), 1e-6);
    EXPECT_NEAR(Distance(figure[1], figure[2]), std::hypot(0.6, 1.08), 1e-6);
    EXPECT_NEAR(figure[0].X + figure[1].X + figure[2].X, 0, 1e-6);
    EXPECT_NEAR(figure[0].Z + figure[1].Z + figure[2].Z, 0, 1e-6);
    EXPECT_GT(figure[2].Z, 0);
    EXPECT_LT(figure[0].X, 0);
    for (std::size_t i = 0; i < 3; ++i) {
      const Point3& top = figure[i];
      EXPECT_NEAR(top.Y, 1, 1e-6);
      ExpectPoint(figure[i + 3], {top.X, -top.Y, top.Z}, 1e-6);
    }
    // A stay lies beyond the side across from each corner: 25/12 of the corner, mirrored.
    const std::array<std::size_t, 3> across{1, 0, 2};
    for (std::size_t i = 0; i < 3; ++i) {
      const Point3& corner = figure[across[i]];
      ExpectPoint(figure[6 + i], {-corner.X * 25 / 12, 0, -corner.Z * 25 / 12});
    }
  }
}

TEST_F(Ifs, TenVerticesAreASquareAndATurnedSquareBetweenTwoTips) {
  for (const Single ratio : kRatios) {
    const std::vector<Point3> figure = UnitFigure(10, ratio);
    ExpectPoint(figure.front(), {0, -1, 0});
    ExpectPoint(figure.back(), {0, 1, 0});
    for (std::size_t i = 1; i <= 8; ++i) {
      const bool lower = i <= 4;
      EXPECT_NEAR(figure[i].Y, lower ? -0.5 : 0.5, 1e-6);
      EXPECT_NEAR(std::hypot(figure[i].X, figure[i].Z), lower ? std::sqrt(2) : 1, 1e-6);
      // Corners of a square: the fourth powers of the directions agree.
      const auto fourth = std::pow(std::complex<double>(figure[i].X, figure[i].Z), 4);
      EXPECT_NEAR(fourth.real(), lower ? -4 : 1, 1e-5) << i;
      EXPECT_NEAR(fourth.imag(), 0, 1e-5) << i;
    }
    EXPECT_NEAR(SortedDistances(figure).front(), std::sqrt(1.25), 1e-6) << "no corner twice";
  }
}

/// The place that four draws give a fresh point of a cone of the fixture's radius.
Point3 FreshOnCone(const StarfoldProfile& set, double radius, double side, double lift,
                   double turn) {
  const double r = kRadius * std::pow(radius, set.Starfold_RadiusExp);
  const auto place = std::polar(r, 2 * std::numbers::pi * turn);
  const double height = (kRadius - r) * static_cast<double>(set.Starfold_GHW_Ratio);
  const double y = height * std::pow(lift, set.Starfold_HeightExp) * (side < 0.5 ? -1 : 1);
  return {static_cast<Single>(place.real()), static_cast<Single>(y),
          static_cast<Single>(place.imag())};
}

class IfsSpiral : public Ifs {
 protected:
  IfsSpiral() {
    Style(FoldStyle::IfsPoint);
    Set().Starfold_Profile = 3;  // conical: the height is the rest of the radius
    Set().Starfold_GHW_Ratio = 0.5F;
    Set().Starfold_RadiusExp = 2;
    Set().Starfold_HeightExp = 3;
    Set().Starfold_RadFill = 50;
    Set().Starfold_RadBands = 90;
  }
};

TEST_F(IfsSpiral, SettingUpDrawsOneSeedPointAndKeepsTheStep) {
  Set().Starfold_RadSegs = 4;
  Draws({0.5F, 0.25F, 0.5F, 0.125F});
  SetUpSlots();
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  ExpectPoint(Vertices()[0], FreshOnCone(Set(), 0.5, 0.25, 0.5, 0.125));
  ExpectPoint(Slots.Ifs[0].IfsPoint, Vertices()[0], 0);
  EXPECT_EQ(Slots.Ifs[0].IfsStep, 0);
}

TEST_F(IfsSpiral, AFreshPointIsFollowedByItsSmallerTurnedImages) {
  Set().Starfold_RadSegs = 4;
  SetUpSlots();
  for (const double radius : {0.5, 0.75}) {
    Draws({static_cast<Single>(radius), 0.75F, 0.5F, 0.375F});
    const Point3 fresh = PlaceOf(Seed());
    ASSERT_EQ(Random().ScriptedDrawsLeft(), 0U);
    ExpectPoint(fresh, FreshOnCone(Set(), radius, 0.75, 0.5, 0.375));
    Draws({0.9F});
    for (int image = 1; image < 4; ++image) {
      const double scale = std::pow(0.5, image);
      const auto turned =
          std::complex<double>(fresh.X, fresh.Z) * std::polar(scale, image * 90 * kDegree);
      ExpectPoint(PlaceOf(Seed()),
                  {static_cast<Single>(turned.real()), static_cast<Single>(fresh.Y * scale),
                   static_cast<Single>(turned.imag())});
    }
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 1U) << "images are not drawn";
  }
}

TEST_F(IfsSpiral, ACycleOfOneMakesEveryPointFresh) {
  Set().Starfold_RadSegs = 1;
  SetUpSlots();
  for (const Single radius : {0.2F, 0.6F, 0.9F}) {
    Draws({radius, 0.75F, 0.5F, 0.375F});
    ExpectPoint(PlaceOf(Seed()), FreshOnCone(Set(), radius, 0.75, 0.5, 0.375));
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  }
}

/// Barycentric coordinates in a tetrahedron, by Cramer's rule.
std::array<double, 4> Barycentric(const Point3& p, const std::array<Point3, kMaxVertices>& v) {
  const auto volume = [](const Point3& a, const Point3& b, const Point3& c, const Point3& d) {
    const double u[3] = {b.X - double{a.X}, b.Y - double{a.Y}, b.Z - double{a.Z}};
    const double w[3] = {c.X - double{a.X}, c.Y - double{a.Y}, c.Z - double{a.Z}};
    const double t[3] = {d.X - double{a.X}, d.Y - double{a.Y}, d.Z - double{a.Z}};
    return u[0] * (w[1] * t[2] - w[2] * t[1]) - u[1] * (w[0] * t[2] - w[2] * t[0]) +
           u[2] * (w[0] * t[1] - w[1] * t[0]);
  };
  const double whole = volume(v[0], v[1], v[2], v[3]);
  return {volume(p, v[1], v[2], v[3]) / whole, volume(v[0], p, v[2], v[3]) / whole,
          volume(v[0], v[1], p, v[3]) / whole, volume(v[0], v[1], v[2], p) / whole};
}

TEST_F(Ifs, HalfWayToFourVerticesIsASierpinskiTetrahedron) {
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 50;
  SetUpSlots();
  constexpr int cells = 64;
  constexpr int samples = 400 * cells;
  std::array<int, cells> hits{};
  for (int i = 0; i < samples; ++i) {
    // Three iterations between two samples, so that their cells are drawn independently.
    Seed();
    Seed();
    std::array<double, 4> place = Barycentric(PlaceOf(Seed()), Vertices());
    std::size_t cell = 0;
    for (int depth = 0; depth < 3; ++depth) {
      const auto corner = std::max_element(place.begin(), place.end());
      const auto copy = static_cast<std::size_t>(corner - place.begin());
      for (double& share : place) share *= 2;
      place[copy] -= 1;
      cell = cell * 4 + copy;
      for (const double share : place) ASSERT_GE(share, -1e-4) << "in the gap of level " << depth;
    }
    ++hits[cell];
  }
  for (const int count : hits) {
    EXPECT_NEAR(count, samples / double{cells}, FiveSigma(samples, 1.0 / cells));
  }
}

TEST_F(Ifs, TheWholeWayShowsTheVerticesAlone) {
  for (const Integer n : {Integer{2}, Integer{7}, Integer{10}}) {
    Set().Starfold_RadSegs = n;
    Set().Starfold_RadFill = 100;
    SetUpSlots();
    constexpr int stars = 10000;
    std::map<int, int> hits;
    for (int i = 0; i < stars; ++i) {
      const Point3 place = PlaceOf(Seed());
      const int nearest = NearestVertex(place, n);
      ASSERT_LE(Distance(place, Vertices()[static_cast<std::size_t>(nearest)]), 1e-5);
      ++hits[nearest];
    }
    EXPECT_EQ(hits.size(), static_cast<std::size_t>(n));
    for (const auto& [vertex, count] : hits) {
      EXPECT_NEAR(count, 1.0 * stars / n, FiveSigma(stars, 1.0 / n)) << vertex;
    }
  }
}

TEST_F(Ifs, NoneOfTheWayStandsStill) {
  Set().Starfold_RadSegs = 5;
  Set().Starfold_RadFill = 0;
  SetUpSlots(2);
  for (int i = 0; i < 10; ++i) {
    ExpectPoint(PlaceOf(Seed(0)), Vertices()[0], 0);
    ExpectPoint(PlaceOf(Seed(1)), {}, 0);
  }
}

TEST_F(Ifs, AWireframeStarLiesOnTheLineThroughTheLastTwoIterates) {
  Style(FoldStyle::IfsWireframe);
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 30;
  Set().Starfold_RadBands = 3;
  SetUpSlots();
  for (const Single t : {0.0F, 0.5F, 0.875F}) {
    Draws({0.3F, 0.6F, 0.1F, 0.9F, t});  // vertices 1, 2, 0 and 3
    const Point3 star = PlaceOf(Seed());
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
    // As shares of the four vertices: after two steps (.3, .49, .21, 0), after the third
    // (.21, .343, .147, .3).
    const double before[] = {0.3, 0.49, 0.21, 0};
    const double after[] = {0.21, 0.343, 0.147, 0.3};
    const std::array<double, 4> place = Barycentric(star, Vertices());
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_NEAR(place[i], before[i] + (after[i] - before[i]) * 2 * static_cast<double>(t), 1e-5);
    }
  }
}

TEST_F(Ifs, AWireframeOfOneIterationIsTheEdgesUpToTwiceTheWay) {
  Style(FoldStyle::IfsWireframe);
  Set().Starfold_RadSegs = 4;
  Set().Starfold_RadFill = 40;
  Set().Starfold_RadBands = 1;
  SetUpSlots();
  constexpr int stars = 5000;
  int nearAnEnd = 0;
  for (int i = 0; i < stars; ++i) {
    std::array<double, 4> place = Barycentric(PlaceOf(Seed()), Vertices());
    std::sort(place.begin(), place.end());
    // Shares of at most two vertices, which are together the whole.
    ASSERT_NEAR(place[0], 0, 1e-5);
    ASSERT_NEAR(place[1], 0, 1e-5);
    ASSERT_NEAR(place[2] + place[3], 1, 1e-5);
    nearAnEnd += place[2] < 0.2;
  }
  // One star in four draws one vertex twice; the others lie anywhere up to 0.8 of an edge, a
  // quarter of which is within 0.2 of an end.
  const double share = 0.25 + 0.75 * 0.25;
  EXPECT_NEAR(nearAnEnd, stars * share, FiveSigma(stars, share));
}

TEST_F(Ifs, AWireframeWithoutIterationsShootsFromTheOrigin) {
  Style(FoldStyle::IfsWireframe);
  Set().Starfold_RadSegs = 6;
  Set().Starfold_RadBands = 0;
  SetUpSlots();
  for (const Single t : {0.0F, 0.25F, 0.75F}) {
    Draws({0.5F, t});  // vertex 3
    const Point3& v = Vertices()[3];
    ExpectPoint(PlaceOf(Seed()), {v.X * 2 * t, v.Y * 2 * t, v.Z * 2 * t});
    EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
  }
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
  for (int i = 0; i < stars; ++i) {
    const double x = Seed().X;
    const auto record = static_cast<std::size_t>(std::lround(x)) - 1;
    ASSERT_LT(record, hits.size());
    ASSERT_NEAR(x, std::round(x), 1e-5);
    ++hits[record];
  }
  for (std::size_t i = 0; i < hits.size(); ++i) {
    const double share = weights[i] / 20.0;
    EXPECT_NEAR(hits[i], stars * share, FiveSigma(stars, share)) << i;
  }
}

TEST_F(IfsRecords, ARecordDrawsThePointInAndTurnsItInThePlaneOfItsAxis) {
  struct Case {
    Integer Axis, Angle;
  };
  for (const Case& c : {Case{0, 37}, Case{1, 37}, Case{2, 37}, Case{0, 250}, Case{1, 0},
                        Case{2, -37}, Case{3, 37}}) {
    Record(0, {100, 200, 300, 25, c.Axis, c.Angle, 1});
    SetUpSlots();
    Slots.Ifs[0].IfsPoint = {9, -2, 7};
    // Three quarters of the offset from (1, 2, 3) are left.
    std::array<double, 3> d{6, -3, 3};
    const bool turns = c.Angle > 0 && c.Axis < 3;
    if (turns) {
      // Axis 0 turns Y toward Z, 1 turns X toward Z, 2 turns X toward Y.
      const std::size_t from = c.Axis == 0 ? 1 : 0;
      const std::size_t to = c.Axis == 2 ? 1 : 2;
      const auto turned = std::complex(d[from], d[to]) * std::polar(1.0, c.Angle * kDegree);
      d[from] = turned.real();
      d[to] = turned.imag();
    }
    SCOPED_TRACE(testing::Message() << "axis " << c.Axis << ", angle " << c.Angle);
    ExpectPoint(PlaceOf(Seed()), {static_cast<Single>(1 + d[0]), static_cast<Single>(2 + d[1]),
                                  static_cast<Single>(3 + d[2])});
  }
}

TEST_F(IfsRecords, WeightsThatAreAllZeroMoveNothing) {
  Record(0, {100, 0, 0, 50, 0, 90, 0});
  Record(1, {500, 0, 0, 50, 0, 90, 0});
  SetUpSlots();
  Slots.Ifs[0].IfsPoint = {1, 2, 3};
  for (int i = 0; i < 10; ++i) ExpectPoint(PlaceOf(Seed()), {1, 2, 3}, 0);
}

TEST_F(IfsRecords, WithoutRecordsTheVerticesAreTheAttractors) {
  Set().Starfold_RadSegs = 8;
  Set().Starfold_RadFill = 60;
  std::array<std::vector<Point3>, 2> clouds;
  for (const bool user : {false, true}) {
    Style(user ? FoldStyle::UserIfs : FoldStyle::IfsFractal);
    SetUpSlots();
    Random().Seed(3);
    for (int i = 0; i < 50; ++i) clouds[user].push_back(PlaceOf(Seed()));
  }
  for (std::size_t i = 0; i < clouds[0].size(); ++i) ExpectPoint(clouds[1][i], clouds[0][i], 0);
}

TEST_F(Ifs, AStarComesInWhereTheTurningBodyStands) {
  Set().Starfold_Rotation = 10000;  // 0.08 radians a frame: more than a turn in 100 frames
  Set().Starfold_RadSegs = 8;       // none of them on the axis
  Set().Starfold_RadFill = 45;
  Set().Starfold_RadBands = 2;
  Set().IFS.Points[0] = {300, 200, 100, 30, 1, 20, 1};
  Set().Starfold_IFS_Points = 1;
  for (const FoldStyle style :
       {FoldStyle::IfsPoint, FoldStyle::IfsWireframe, FoldStyle::IfsFractal, FoldStyle::UserIfs}) {
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
      AdvanceAngles(Process());
      RotateStar(carried);
    }
    Random().Seed(11);
    const SeedPoint late = Seed();
    ExpectPoint(PlaceOf(late), {carried.StarX, early.Y, carried.StarZ}, 1e-3);
    EXPECT_NEAR(early.RotationStep, 0.08, 1e-6) << "the step that colours see";
  }
}

}  // namespace
}  // namespace starfolds

// What the tests of the styles share: one profile in a process of its own, and its slot.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "bodies/styles.h"
#include "scenes/scenes.h"

namespace starfolds {

inline double Length(double x, double y, double z) { return std::hypot(x, y, z); }
inline double Length(const Point3& p) { return Length(p.X, p.Y, p.Z); }
inline double Distance(const Point3& a, const Point3& b) {
  return Length(static_cast<double>(a.X) - b.X, static_cast<double>(a.Y) - b.Y,
                static_cast<double>(a.Z) - b.Z);
}
inline Point3 PlaceOf(const SeedPoint& point) { return {point.X, point.Y, point.Z}; }

inline void ExpectPoint(const Point3& actual, const Point3& expected, double tolerance = 1e-5) {
  EXPECT_LE(Distance(actual, expected), tolerance)
      << "(" << actual.X << ", " << actual.Y << ", " << actual.Z << ") for (" << expected.X << ", "
      << expected.Y << ", " << expected.Z << ")";
}

class OneBody : public ::testing::Test {
 protected:
  explicit OneBody(FoldStyle style) { Set().Starfold_FoldStyle = static_cast<Integer>(style); }

  ProcessState& Process() { return *stage_.Process; }
  StarfoldProfile& Set() { return Process().Profiles[0]; }
  PreparedProfile& Run() { return Process().Prepared[0]; }
  Rnd& Random() { return Process().Random; }
  Body TheBody() { return {Process(), 0}; }

  /// Prepares the profile and sets up `count` slots with it.
  void SetUpSlots(int count = 1) {
    PrepareRun(Process());
    InitBodiesAlike(Process(), Slots, count, 0);
  }

  SeedPoint Seed(std::size_t slot = 0) {
    SeedPoint point;
    SeedAsStar(point, slot);
    return point;
  }
  void SeedAsStar(SeedPoint& point, std::size_t slot = 0) {
    RoutinesOf(Set().Style()).SeedStar(point, TheBody(), Slots, slot);
  }

  /// Fixes the next draws.
  void Draws(std::vector<Single> draws) {
    draws_ = std::move(draws);
    Random().Script(draws_);
  }

  BodySlots Slots;

 private:
  scenes::Stage stage_;
  std::vector<Single> draws_;
};

}  // namespace starfolds

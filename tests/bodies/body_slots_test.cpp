#include "bodies/body_slots.h"

#include <map>

#include "one_body.h"

namespace starfolds {
namespace {

constexpr Integer kComposite = kFirstComposite + 4;

class BodySlotsTest : public OneBody {
 protected:
  BodySlotsTest() : OneBody(FoldStyle::Standard) {}

  StarfoldProfile& Dress(int prof, FoldStyle style, Long radius = 300) {
    StarfoldProfile& set = Process().Profiles[static_cast<std::size_t>(prof)];
    set.Starfold_FoldStyle = static_cast<Integer>(style);
    set.Starfold_Radius = radius;
    set.Starfold_RadSegs = 6;
    return set;
  }

  void Compose(std::initializer_list<Integer> members) {
    CompositeProfile& composite = Process().Composites[kComposite - kFirstComposite];
    composite.CompFold_Count = static_cast<Integer>(members.size());
    std::copy(members.begin(), members.end(), composite.CompFold_Type.begin());
  }

  void Init(std::initializer_list<Integer> assignment) {
    assignment_ = assignment;
    PrepareProfiles(Process());
    InitBodies(Process(), Slots, assignment_);
  }

  /// In how many of 20 frames the ribbon of slot 0 moves.
  int FramesOfMotion() {
    int moved = 0;
    for (int frame = 0; frame < 20; ++frame) {
      const Point3 before = Slots.Ribbon[0].Ribbon[0];
      StepNebulaRibbons(Process(), Slots, assignment_);
      moved += Distance(before, Slots.Ribbon[0].Ribbon[0]) > 0;
    }
    return moved;
  }

  std::vector<Integer> assignment_;
};

TEST_F(BodySlotsTest, WhatMembersShareIsAsTheFirstOneLeftIt) {
  Dress(3, FoldStyle::IfsFractal, 100);
  Dress(5, FoldStyle::IfsWireframe, 800);
  Dress(7, FoldStyle::Nebula, 100);
  Dress(9, FoldStyle::Nebula, 90000);
  Compose({3, 7, 5, 9});
  Init({kComposite});
  const IfsSlot& ifs = Slots.Ifs[0];
  for (int i = 0; i < 6; ++i) {
    EXPECT_NEAR(Length(ifs.IfsVertex[static_cast<std::size_t>(i)]), i < 2 ? 1 * 0.3 : 1, 1e-5)
        << "an octahedron of radius 1 and ratio 0.3";
  }
  EXPECT_EQ(Distance(ifs.IfsPoint, ifs.IfsVertex[0]), 0);
  for (const auto& keys : Slots.Ribbon[0].RibbonKey) {
    for (const Point3& key : keys) EXPECT_LE(std::abs(key.X), 1) << "of the smaller ribbon";
  }
}

TEST_F(BodySlotsTest, OnlyTheFirstRunningPointStartsAtAVertex) {
  Dress(1, FoldStyle::IfsFractal, 100);
  Dress(2, FoldStyle::IfsFractal, 400);
  Init({1, 2});
  EXPECT_EQ(Distance(Slots.Ifs[0].IfsPoint, Slots.Ifs[1].IfsVertex[0]), 0)
      << "at that of the slot set up last";
  EXPECT_GT(Length(Slots.Ifs[1].IfsVertex[0]), 0);
  EXPECT_EQ(Length(Slots.Ifs[1].IfsPoint), 0);
}

TEST_F(BodySlotsTest, ARunBeginsWithClearSlotsAndAnglesAndCountsInRange) {
  StarfoldProfile& set = Dress(2, FoldStyle::IfsPoint);
  set.Starfold_Rotation = 5000;
  set.Starfold_AngleTilt = 90;
  set.Starfold_AngleTInc = 3;
  set.Starfold_HueStart = 120;
  set.Starfold_HWheelInc = 2;
  set.Starfold_RadSegs = 25;
  set.Starfold_CP_Points = 99;
  Init({2, 2});
  for (int frame = 0; frame < 40; ++frame) AdvanceAngles(Process());
  Slots.Ifs[1].IfsStep = 3;
  Slots.Ribbon[1].RibbonMorph = 0.5F;
  const PreparedProfile& run = Process().Prepared[2];
  ASSERT_GT(run.SweepPhase, 1);
  Init({2, 2});
  EXPECT_EQ(Slots.Ifs[1].IfsStep, 0);
  EXPECT_EQ(Slots.Ribbon[1].RibbonMorph, 0);
  EXPECT_EQ(run.SweepPhase, 0);
  EXPECT_EQ(run.SweepCos, 1);
  EXPECT_EQ(run.SpinPhase, 0);
  EXPECT_EQ(run.HueWheel, 120);
  EXPECT_NEAR(run.Star.LevelSin[0], 1, 1e-6);
  EXPECT_EQ(run.IfsVertexCount, 10);
  EXPECT_EQ(set.Starfold_CP_Points, 20);
}

TEST_F(BodySlotsTest, MembersAreDrawnByTheirLevels) {
  Dress(0, FoldStyle::Standard).Starfold_StdLevels = 3;
  Dress(6, FoldStyle::Quasar).Starfold_StdLevels = 9;  // in force for the Standard style only
  struct Case {
    std::vector<Integer> Members;
    double ShareOfFirst;
  };
  for (const Case& c : {Case{{0, 6}, 0.75}, Case{{6, 0}, 0.75}, Case{{0, 6, 6}, 0.6},
                        Case{{0, 6, 0}, 6.0 / 7}, Case{{0}, 1}}) {
    CompositeProfile& composite = Process().Composites[kComposite - kFirstComposite];
    composite.CompFold_Count = static_cast<Integer>(c.Members.size());
    std::copy(c.Members.begin(), c.Members.end(), composite.CompFold_Type.begin());
    Init({kComposite});
    constexpr int stars = 10000;
    std::map<Integer, int> hits;
    for (int i = 0; i < stars; ++i) ++hits[PickProfile(Process(), kComposite)];
    EXPECT_NEAR(hits[0], stars * c.ShareOfFirst, FiveSigma(stars, c.ShareOfFirst))
        << c.Members.size();
    EXPECT_EQ(hits[0] + hits[6], stars);
  }
}

TEST_F(BodySlotsTest, APlainEntryStandsForItselfWithoutADraw) {
  Compose({12, 6});
  Init({0});
  Draws({0.99F});
  EXPECT_EQ(PickProfile(Process(), 49), 49);
  EXPECT_EQ(ResolveProfile(Process(), 49), 49);
  EXPECT_EQ(ResolveProfile(Process(), kComposite), 12);
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 1U);
  EXPECT_EQ(PickProfile(Process(), kComposite), 6) << "and this draws";
  EXPECT_EQ(Random().ScriptedDrawsLeft(), 0U);
}

TEST_F(BodySlotsTest, AnEmptyCompositeIsTheFirstProfile) {
  Compose({12, 6});
  Compose({});
  Init({kComposite});
  for (int i = 0; i < 10; ++i) EXPECT_EQ(PickProfile(Process(), kComposite), 0);
}

TEST_F(BodySlotsTest, TheFirstMemberAloneDecidesWhetherARibbonMoves) {
  Dress(4, FoldStyle::Nebula);
  Dress(8, FoldStyle::Standard);
  struct Case {
    std::initializer_list<Integer> Members;
    int FramesOfMotion;
  };
  for (const Case& c : {Case{{4, 8}, 20}, Case{{8, 4}, 0}, Case{{4}, 20}}) {
    Compose(c.Members);
    Init({kComposite});
    EXPECT_GT(Length(Slots.Ribbon[0].Ribbon[0]), 0) << "it is set up in any case";
    EXPECT_EQ(FramesOfMotion(), c.FramesOfMotion) << *c.Members.begin();
  }
  Init({4});
  EXPECT_EQ(FramesOfMotion(), 20);
}

}  // namespace
}  // namespace starfolds

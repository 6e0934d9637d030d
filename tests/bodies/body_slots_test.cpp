#include "bodies/body_slots.h"

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

  void Init(const std::vector<Integer>& assignment) {
    PrepareRun(Process());
    InitBodies(Process(), Slots, assignment);
  }
  void InitComposite(const std::vector<Integer>& members) {
    CompositeProfile& composite = Process().Composites[kComposite - kFirstComposite];
    composite.CompFold_Count = static_cast<Integer>(members.size());
    std::copy(members.begin(), members.end(), composite.CompFold_Type.begin());
    Init({kComposite});
  }
};

TEST_F(BodySlotsTest, WhatMembersShareIsAsTheFirstOneLeftIt) {
  Dress(3, FoldStyle::IfsFractal, 100);
  Dress(5, FoldStyle::IfsWireframe, 800);
  Dress(7, FoldStyle::Nebula, 100);
  Dress(9, FoldStyle::Nebula, 90000);
  InitComposite({3, 7, 5, 9});
  ExpectPoint(Slots.Ifs[0].IfsVertex[2], {-1, 0, 0});
  for (const Point3& key : Slots.Ribbon[0].RibbonKey[0]) EXPECT_LE(std::abs(key.X), 1);
}

TEST_F(BodySlotsTest, OnlyTheFirstRunningPointStartsAtAVertex) {
  Dress(1, FoldStyle::IfsFractal, 100);
  Dress(2, FoldStyle::IfsFractal, 400);
  Init({1, 2});
  ExpectPoint(Slots.Ifs[0].IfsPoint, Slots.Ifs[1].IfsVertex[0], 0);
  EXPECT_GT(Length(Slots.Ifs[1].IfsVertex[0]), 0);
  EXPECT_EQ(Length(Slots.Ifs[1].IfsPoint), 0);
}

TEST_F(BodySlotsTest, ARunBeginsWithClearSlotsAndAnglesAndCountsInRange) {
  StarfoldProfile& set = Dress(2, FoldStyle::IfsPoint);
  set.Starfold_Rotation = 5000;
  set.Starfold_RadSegs = 25;
  set.Starfold_CP_Points = 99;
  Init({2, 2});
  const PreparedProfile& run = Process().Prepared[2];
  EXPECT_EQ(run.IfsVertexCount, 10);
  EXPECT_EQ(set.Starfold_CP_Points, 20);
  AdvanceAngles(Process().Prepared);
  Slots.Ifs[1].IfsStep = 3;
  Slots.Ribbon[1].RibbonMorph = 0.5F;
  Init({2, 2});
  EXPECT_EQ(run.SweepPhase, 0);
  EXPECT_EQ(Slots.Ifs[1].IfsStep, 0);
  EXPECT_EQ(Slots.Ribbon[1].RibbonMorph, 0);
}

TEST_F(BodySlotsTest, MembersAreDrawnByTheirLevels) {
  Dress(0, FoldStyle::Standard).Starfold_StdLevels = 3;
  Dress(6, FoldStyle::Quasar).Starfold_StdLevels = 9;  // in force for the Standard style only
  struct Case {
    std::vector<Integer> Members;
    double ShareOfFirst;
  };
  for (const Case& c : {Case{{0, 6}, 0.75}, Case{{0, 6, 6}, 0.6}, Case{{0, 6, 0}, 6.0 / 7}}) {
    InitComposite(c.Members);
    constexpr int stars = 10000;
    int first = 0;
    for (int i = 0; i < stars; ++i) first += PickProfile(Process(), kComposite) == 0;
    EXPECT_NEAR(first, stars * c.ShareOfFirst, FiveSigma(stars, c.ShareOfFirst));
  }
}

TEST_F(BodySlotsTest, APlainEntryStandsForItselfWithoutADraw) {
  InitComposite({12, 6});
  Draws({0.99F});
  EXPECT_EQ(PickProfile(Process(), 49), 49);
  EXPECT_EQ(ResolveProfile(Process(), kComposite), 12);
  EXPECT_EQ(PickProfile(Process(), kComposite), 6) << "and this draws";
  InitComposite({});
  EXPECT_EQ(PickProfile(Process(), kComposite), 0) << "an empty one is the first profile";
}

TEST_F(BodySlotsTest, TheFirstMemberAloneDecidesWhetherARibbonMoves) {
  Dress(4, FoldStyle::Nebula);
  Dress(8, FoldStyle::Standard);
  for (const bool nebulaFirst : {true, false}) {
    InitComposite(nebulaFirst ? std::vector<Integer>{4, 8} : std::vector<Integer>{8, 4});
    for (int frame = 0; frame < 20; ++frame) {
      const Point3 before = Slots.Ribbon[0].Ribbon[0];
      ASSERT_GT(Length(before), 0) << "it is set up in any case";
      StepNebulaRibbons(Process(), Slots, std::vector<Integer>{kComposite});
      EXPECT_EQ(Distance(before, Slots.Ribbon[0].Ribbon[0]) > 0, nebulaFirst);
    }
  }
}

}  // namespace
}  // namespace starfolds

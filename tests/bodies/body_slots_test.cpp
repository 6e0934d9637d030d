#include "bodies/body_slots.h"

#include "one_body.h"

namespace starfolds {
namespace {

constexpr Integer kComposite = kFirstComposite + 4;

class BodySlotsTest : public OneBody {
 protected:
  BodySlotsTest() : OneBody(FoldStyle::Standard) {}

  void Dress(int prof, FoldStyle style, Long radius) {
    StarfoldProfile& set = Process().Profiles[static_cast<std::size_t>(prof)];
    set.Starfold_FoldStyle = static_cast<Integer>(style);
    set.Starfold_Radius = radius;
    set.Starfold_RadSegs = 6;
  }
  void InitComposite(const std::vector<Integer>& members) {
    CompositeProfile& composite = Process().Composites[kComposite - kFirstComposite];
    composite.CompFold_Count = static_cast<Integer>(members.size());
    std::copy(members.begin(), members.end(), composite.CompFold_Type.begin());
    PrepareRun(Process());
    InitBodies(Process(), Slots, std::vector<Integer>{kComposite});
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

TEST_F(BodySlotsTest, APlainEntryStandsForItselfWithoutADraw) {
  InitComposite({12, 6});
  Draws({0.99F});
  EXPECT_EQ(PickProfile(Process(), 49), 49);
  EXPECT_EQ(ResolveProfile(Process(), kComposite), 12);
  EXPECT_EQ(PickProfile(Process(), kComposite), 6) << "and this draws";
  InitComposite({});
  EXPECT_EQ(PickProfile(Process(), kComposite), 0) << "an empty one is the first profile";
}

}  // namespace
}  // namespace starfolds

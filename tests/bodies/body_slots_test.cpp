#include "bodies/body_slots.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

constexpr Integer kComposite = kFirstComposite + 4;

TEST(BodySlots, APlainEntryStandsForItselfWithoutADraw) {
  scenes::Stage stage;
  ProcessState& process = *stage.Process;
  const auto initComposite = [&](const std::vector<Integer>& members) {
    CompositeProfile& composite = process.Composites[kComposite - kFirstComposite];
    composite.CompFold_Count = static_cast<Integer>(members.size());
    std::ranges::copy(members, composite.CompFold_Type.begin());
    PrepareRun(process);
    BodySlots slots;
    InitBodies(process, slots, std::vector<Integer>{kComposite});
  };
  initComposite({12, 6});
  const std::vector<Single> draws{0.99F};
  process.Random.Script(draws);
  EXPECT_EQ(PickProfile(process, 49), 49);
  EXPECT_EQ(ResolveProfile(process, kComposite), 12);
  EXPECT_EQ(PickProfile(process, kComposite), 6) << "and this draws";
  initComposite({});
  EXPECT_EQ(PickProfile(process, kComposite), 0) << "an empty one is the first profile";
}

}  // namespace
}  // namespace starfolds

#include "bodies/body_slots.h"

#include "bodies/seed_point.h"
#include "bodies/styles.h"
#include "colour/saver.h"
#include "numbers/conversions.h"

namespace starfolds {
namespace {

void ResetRunningValues(Saver& saver) {
  for (int p = 0; p < kProfileCount; ++p) {
    StarfoldProfile& profile = saver.Profiles[p];
    PreparedProfile& run = saver.Prepared[p];
    ResetAngles(run, profile);
    profile.Starfold_CP_Points = ClampTo<Integer>(profile.Starfold_CP_Points, 1, 20);
    run.IfsVertexCount = ClampTo<Integer>(profile.Starfold_RadSegs, 1, kMaxVertices);
  }
}

void ClearSlots(Saver& saver, BodySlots& slots, std::size_t count) {
  slots.Ifs.assign(count, {});
  slots.Ribbon.assign(count, {});
  ResetRunningValues(saver);
}

void InitBodySlot(Saver& saver, BodySlots& slots, int prof, std::size_t slot) {
  const Body body(saver, prof);
  RoutinesOf(body.Profile.Style()).SetUpSlot(slots, slot, body);
}

int MemberOf(const CompositeProfile& composite, int i) {
  return ClampTo<int>(composite.CompFold_Type[i], 0, kProfileCount - 1);
}

/// From the last member to the first, so that what they share ends up as the first one left it.
void InitCompositeSlot(Saver& saver, BodySlots& slots, const CompositeProfile& composite,
                       std::size_t slot) {
  for (int i = composite.MemberCount(); i-- > 0;) {
    InitBodySlot(saver, slots, MemberOf(composite, i), slot);
  }
}

}  // namespace

void InitBodiesAlike(Saver& saver, BodySlots& slots, int count, Integer profile) {
  ClearSlots(saver, slots, static_cast<std::size_t>(count));
  for (std::size_t slot = 0; slot < slots.Ifs.size(); ++slot) {
    InitBodySlot(saver, slots, profile, slot);
  }
}

void InitBodies(Saver& saver, BodySlots& slots, std::span<const Integer> assignment) {
  ClearSlots(saver, slots, assignment.size());
  for (std::size_t slot = 0; slot < assignment.size(); ++slot) {
    const Integer entry = assignment[slot];
    if (IsComposite(entry)) {
      InitCompositeSlot(saver, slots, saver.Composites[entry - kFirstComposite], slot);
    } else {
      InitBodySlot(saver, slots, entry, slot);
    }
  }
}

Integer PickProfile(Saver& saver, Integer entry) {
  if (!IsComposite(entry)) return entry;
  const int k = entry - kFirstComposite;
  const CompositeProfile& composite = saver.Composites[k];
  const auto& sums = saver.MemberSum[k];
  const int members = composite.MemberCount();
  const int draw = DrawBelow(saver.Random, members > 0 ? sums[members - 1] : 0);
  for (int i = 0; i < members; ++i) {
    if (draw < sums[i]) return static_cast<Integer>(MemberOf(composite, i));
  }
  return 0;  // an empty composite
}

Integer ResolveProfile(const Saver& saver, Integer entry) {
  if (!IsComposite(entry)) return entry;
  return static_cast<Integer>(MemberOf(saver.Composites[entry - kFirstComposite], 0));
}

void StepNebulaRibbons(Saver& saver, BodySlots& slots, std::span<const Integer> assignment) {
  for (std::size_t slot = 0; slot < assignment.size(); ++slot) {
    const Body body(saver, ResolveProfile(saver, assignment[slot]));
    RoutinesOf(body.Profile.Style()).StepSlot(slots, slot, body);
  }
}

}  // namespace starfolds

#include "bodies/body_slots.h"

#include "bodies/seed_point.h"
#include "bodies/styles.h"
#include "numbers/conversions.h"
#include "process/process_state.h"

namespace starfolds {
namespace {

void ResetRunningValues(ProcessState& process) {
  for (int p = 0; p < kProfileCount; ++p) {
    StarfoldProfile& profile = process.Profiles[p];
    PreparedProfile& run = process.Prepared[p];
    ResetAngles(run, profile);
    profile.Starfold_CP_Points = ClampTo<Integer>(profile.Starfold_CP_Points, 1, 20);
    run.IfsVertexCount = ClampTo<Integer>(profile.Starfold_RadSegs, 1, kMaxVertices);
  }
}

void ClearSlots(ProcessState& process, BodySlots& slots, std::size_t count) {
  slots.Ifs.assign(count, {});
  slots.Ribbon.assign(count, {});
  ResetRunningValues(process);
}

void InitBodySlot(ProcessState& process, BodySlots& slots, int prof, std::size_t slot) {
  const Body body(process, prof);
  RoutinesOf(body.Profile.Style()).SetUpSlot(slots, slot, body);
}

int MemberOf(const CompositeProfile& composite, int i) {
  return ClampTo<int>(composite.CompFold_Type[i], 0, kProfileCount - 1);
}

/// From the last member to the first, so that what they share ends up as the first one left it.
void InitCompositeSlot(ProcessState& process, BodySlots& slots, const CompositeProfile& composite,
                       std::size_t slot) {
  for (int i = composite.MemberCount(); i-- > 0;) {
    InitBodySlot(process, slots, MemberOf(composite, i), slot);
  }
}

}  // namespace

void InitBodiesAlike(ProcessState& process, BodySlots& slots, int count, Integer profile) {
  ClearSlots(process, slots, static_cast<std::size_t>(count));
  for (std::size_t slot = 0; slot < slots.Ifs.size(); ++slot) {
    InitBodySlot(process, slots, profile, slot);
  }
}

void InitBodies(ProcessState& process, BodySlots& slots, std::span<const Integer> assignment) {
  ClearSlots(process, slots, assignment.size());
  for (std::size_t slot = 0; slot < assignment.size(); ++slot) {
    const Integer entry = assignment[slot];
    if (IsComposite(entry)) {
      InitCompositeSlot(process, slots, process.Composites[entry - kFirstComposite], slot);
    } else {
      InitBodySlot(process, slots, entry, slot);
    }
  }
}

Integer PickProfile(ProcessState& process, Integer entry) {
  if (!IsComposite(entry)) return entry;
  const int k = entry - kFirstComposite;
  const CompositeProfile& composite = process.Composites[k];
  const auto& sums = process.MemberSum[k];
  const int members = composite.MemberCount();
  const int draw = DrawBelow(process.Random, members > 0 ? sums[members - 1] : 0);
  for (int i = 0; i < members; ++i) {
    if (draw < sums[i]) return static_cast<Integer>(MemberOf(composite, i));
  }
  return 0;  // an empty composite
}

Integer ResolveProfile(const ProcessState& process, Integer entry) {
  if (!IsComposite(entry)) return entry;
  return static_cast<Integer>(MemberOf(process.Composites[entry - kFirstComposite], 0));
}

void StepNebulaRibbons(ProcessState& process, BodySlots& slots,
                       std::span<const Integer> assignment) {
  for (std::size_t slot = 0; slot < assignment.size(); ++slot) {
    const Body body(process, ResolveProfile(process, assignment[slot]));
    RoutinesOf(body.Profile.Style()).StepSlot(slots, slot, body);
  }
}

}  // namespace starfolds

// Body slots: what a starfold needs beyond its stars. A slot is filled from one profile, or from
// all the members of a composite, which then share it.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "numbers/words.h"
#include "settings/records.h"

namespace starfolds {

struct ProcessState;

struct Point3 {
  Single X = 0, Y = 0, Z = 0;
};

inline constexpr int kMaxVertices = 10;
inline constexpr int kMaxRibbonPoints = 23;  // 20 control points and three that close the loop
inline constexpr int kRibbonKeys = 4;

/// The chaos game of one body.
struct IfsSlot {
  std::array<Point3, kMaxVertices> IfsVertex;
  Point3 IfsPoint;      // the running iterate
  Integer IfsStep = 0;  // of the single point attractor
};

/// The ribbon of one body.
struct RibbonSlot {
  std::array<Point3, kMaxRibbonPoints> Ribbon;  // control points in this frame
  /// Key positions of each control point, between which it moves as on a spline.
  std::array<std::array<Point3, kMaxRibbonPoints>, kRibbonKeys> RibbonKey;
  Single RibbonMorph = 0;  // from one key to the next, 0 to under 1
};

struct BodySlots {
  std::vector<IfsSlot> Ifs;
  std::vector<RibbonSlot> Ribbon;
};

/// Whether an entry of `StarfoldProf` names a composite.
constexpr bool IsComposite(Integer entry) { return entry >= kFirstComposite; }

/// Sets up `count` slots that all hold `profile`. Every way of `InitBodies` clears the slots first
/// and sets the running values of all 50 profiles back to where a run begins.
void InitBodiesAlike(ProcessState& process, BodySlots& slots, int count, Integer profile);
/// Sets up one slot for each entry of `assignment`.
void InitBodies(ProcessState& process, BodySlots& slots, std::span<const Integer> assignment);

/// The profile of one star of a body: the entry itself, or one of the composite's members, weighted
/// by their levels (one draw).
Integer PickProfile(ProcessState& process, Integer entry);

/// The profile that represents a whole starfold: the entry, or the composite's first member.
Integer ResolveProfile(const ProcessState& process, Integer entry);

/// Steps the slots of all starfolds by one frame; only the ribbons of nebulae change.
void StepNebulaRibbons(ProcessState& process, BodySlots& slots,
                       std::span<const Integer> assignment);

}  // namespace starfolds

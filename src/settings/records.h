// The settings records. A member has the name under which it is stored, and the default for a value
// that is not stored; ranges and labels are in the field table (fields.h).
#pragma once

#include <array>
#include <string>

#include "numbers/words.h"

namespace starfolds {

inline constexpr int kProfileCount = 50;
inline constexpr int kCompositeCount = 16;
/// Bodies are numbered: 0 to 49 are profiles, 50 to 65 composites.
inline constexpr int kBodyCount = kProfileCount + kCompositeCount;
inline constexpr int kFirstComposite = kProfileCount;

inline constexpr int kMaxIfsPoints = 5;
inline constexpr int kMaxAtoms = 32;
inline constexpr int kMaxLevels = 10;
/// The maximum number of members of a composite. The range of the count allows 49, one more; loops
/// over the members stop at the maximum.
inline constexpr int kMaxMembers = 48;

/// `Starfold_FoldStyle`.
enum class FoldStyle : Integer {
  Standard,
  IfsPoint,
  IfsWireframe,
  IfsFractal,
  Nebula,
  Quasar,
  Graviton,
  Starwave,
  UserIfs,
  Molecule,
  Count,  // the number of styles
};
inline constexpr int kStyleCount = static_cast<int>(FoldStyle::Count);

/// `Universe_Profile` beyond the 50 profiles.
inline constexpr Integer kCycleRandomly = 50;
inline constexpr Integer kCycleSequentially = 51;

struct UniverseSettings {
  Integer Universe_Stars = 5000;
  Integer Universe_Starfold = 100;
  Integer Universe_STrail = 1;
  Single Universe_Expand = 2500;
  Integer Universe_ESteps = 300;
  Single Universe_Persist = 0.99F;
  Single Universe_Damping = 0.01F;
  Integer Universe_HW_Start = 165;
  Integer Universe_HW_End = 210;
  Integer Universe_Recycle = 20;
  Integer Universe_Profile = kCycleSequentially;
  Integer Universe_NewFreq = 1250;
  Single Universe_NewPctStEx = 85;
  bool Universe_Tour = true;
  Integer Universe_GSteps = 160;
  Integer Universe_GPCtrl = 2;
  Integer Universe_GCCtrl = 3;
  Single Universe_DstCen = 4000;
  Integer Universe_C_Ramp = 750;  // stored and edited; no run uses it
  std::string Universe_GS_Idx;
  bool Universe_GVisit = false;
  bool Universe_RotCam = false;  // stored and edited; no run uses it
  Integer Universe_AmStar = 300;
  Single Universe_AmPers = 0.998F;
  Single Universe_AmCAge = 0.1F;
  Integer Universe_AmFrames = 30;
  Single Universe_AmMaxExt = 1000;
  Single Universe_GravForce = 0;
  Integer Universe_GravFrame = 1;

  bool operator==(const UniverseSettings&) const = default;
};

/// One attractor point of a user-defined iterated function system.
struct IfsPoint {
  Integer IFS_LocX = 0;
  Integer IFS_LocY = 0;
  Integer IFS_LocZ = 0;
  Integer IFS_Scale = 0;
  Integer IFS_Axis = 0;
  Integer IFS_Angle = 0;
  Integer IFS_RelPct = 0;

  bool operator==(const IfsPoint&) const = default;
};

struct IfsRecord {
  Integer IFS_CenterX = 0;
  Integer IFS_CenterY = 0;
  Integer IFS_CenterZ = 0;
  std::array<IfsPoint, kMaxIfsPoints> Points;

  bool operator==(const IfsRecord&) const = default;
};

/// One atom of a molecular structure.
struct AtomPoint {
  Integer Atom_Element = 1;
  Integer Atom_LocX = 0;
  Integer Atom_LocY = 0;
  Integer Atom_LocZ = 0;
  Integer Atom_Structure = 0;
  Integer Atom_Size = 0;
  Integer Atom_Radius = 0;
  Integer Atom_Count = 1;  // derived from Atom_Structure on load, never stored

  bool operator==(const AtomPoint&) const = default;
};

struct AtomRecord {
  Integer Atom_CenterX = 0;
  Integer Atom_CenterY = 0;
  Integer Atom_CenterZ = 0;
  std::array<AtomPoint, kMaxAtoms> Atoms;

  bool operator==(const AtomRecord&) const = default;
};

/// One type of body of stars.
struct StarfoldProfile {
  Integer UniFoldPct = 0;   // stored as "_UniFoldPct"
  std::string UniFoldName;  // stored as "_UniFoldName"
  Integer Starfold_StdLevels = 1;
  Long Starfold_StdLevDRad = 300;
  Single Starfold_StdLevHSca = 1;
  Integer Starfold_StdLevB_HS = 0;
  Integer Starfold_StdLevB_A0 = 0;
  Integer Starfold_StdLevB_A1 = 0;
  Integer Starfold_HueRed = 100;
  Integer Starfold_HueGrn = 100;
  Integer Starfold_HueBlu = 100;
  Integer Starfold_HueBase = 0;
  Integer Starfold_HueBlend = 60;
  Long Starfold_Radius = 300;
  Long Starfold_Rotation = 500;
  Long Starfold_Distance = 400;
  Integer Starfold_RadSegs = 1;
  Single Starfold_RadFill = 100;
  Integer Starfold_RadBands = 1;
  Single Starfold_RadBFill = 100;
  Integer Starfold_NewFreq = 400;
  Integer Starfold_NewFrames = 8;
  Integer Starfold_NewExtMult = 100;
  Integer Starfold_NovaFreq = 320;
  Integer Starfold_NovaFrames = 30;
  Integer Starfold_NovaExtMult = 600;
  Integer Starfold_PulsarFreq = 0;
  Integer Starfold_PulsarDepth = 100;
  Integer Starfold_PulsarShape = 0;
  Integer Starfold_PulsarCycles = 1;
  Integer Starfold_PulsarFrames = 40;
  Integer Starfold_PulsarMinExt = 50;
  Integer Starfold_PulsarMaxExt = 1000;
  Integer Starfold_CometFreq = 400;
  Integer Starfold_CometStars = 60;
  Integer Starfold_CometOrbit = 100;
  Integer Starfold_CometSpeed = 50;
  Integer Starfold_CometSWind = 200;
  Single Starfold_CometCPersist = 0.9975F;
  Single Starfold_CometSPersist = 0.95F;
  Integer Starfold_HWC_Start = 140;
  Integer Starfold_HWC_End = 220;
  Single Starfold_HWC_Inc = 0;
  Single Starfold_GHW_Ratio = 0.3F;
  Single Starfold_RadiusExp = 1.15F;
  Single Starfold_HeightExp = 2;
  Single Starfold_AngleTilt = 170;
  Single Starfold_AngleTInc = 0;
  Long Starfold_ColorMult = 1800;
  Single Starfold_HWheelInc = 0.005F;
  Integer Starfold_FoldStyle = 0;
  Integer Starfold_AxisPlane = 0;
  Integer Starfold_ColorComp = 3;
  Integer Starfold_HueStart = 240;
  Integer Starfold_Profile = 0;
  Integer Starfold_CP_Points = 8;
  Integer Starfold_CP_Steps = 500;
  Integer Starfold_CP_Close = 1;
  Integer Starfold_CP_AdvHW = 0;
  Integer Starfold_CP_B_Pts = 1;
  Integer Starfold_CP_B_Exp = 100;
  Integer Starfold_CP_B_Spd = 0;
  Single Starfold_QG_Force = 5;
  Integer Starfold_IFS_Points = 0;
  Integer Starfold_Atoms = 0;
  IfsRecord IFS;
  AtomRecord Atom;

  FoldStyle Style() const { return static_cast<FoldStyle>(Starfold_FoldStyle); }

  bool operator==(const StarfoldProfile&) const = default;
};

/// Several profiles shown together as one body. What only one profile can determine, such as the
/// distance of the camera, is that of the first member.
struct CompositeProfile {
  std::string CompFoldName;  // stored as "_CompFoldName"
  Integer CompFoldPct = 0;   // stored as "_CompFoldPct"
  Integer CompFold_Count = 0;
  std::array<Integer, kMaxMembers> CompFold_Type{};

  /// The number of members: the count, clamped to the size of the array.
  int MemberCount() const {
    return CompFold_Count < 0 ? 0 : (CompFold_Count > kMaxMembers ? kMaxMembers : CompFold_Count);
  }

  bool operator==(const CompositeProfile&) const = default;
};

struct AdvancedSettings {
  Long Adv_TimeDelay = 40;
  Single FocalLength = 1;
  std::string LockMessage;
  std::string Adv_FontName = "Arial";
  Integer Adv_FontSize = 20;
  Integer Adv_FontHueV = 180;
  bool Adv_WinResize = false;
  bool Adv_MouseMove = false;
  bool Adv_DispBackG = false;
  bool Adv_Randomize = false;
  Integer Adv_RandomMag = 5;
  Integer Adv_RandomExp = 2;
  bool Adv_FontDrift = false;  // the message drifts over the screen
  Single Adv_PerfMult = 1;     // stored; no run uses it
  Long Adv_EffectFPC = 0;      // stored; no run uses it
};

using ProfileArray = std::array<StarfoldProfile, kProfileCount>;
using CompositeArray = std::array<CompositeProfile, kCompositeCount>;

/// Every record of the system, with the defaults of a process that has nothing stored.
struct SettingsRecords {
  UniverseSettings Universe;
  ProfileArray Profiles;
  CompositeArray Composites;
  AdvancedSettings Advanced;

  SettingsRecords();
};

/// "< Starfold Profile n >", n counted from 1.
std::string FormatProfileName(int index);
/// "< Composite Starfold n >", n counted from 1.
std::string FormatCompositeName(int index);

}  // namespace starfolds

#include "settings/fields.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

#include "numbers/characters.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "platform/user_text.h"
#include "settings/idle_settings.h"

namespace starfolds {
namespace {

using enum RangeRule;
using U = UniverseSettings;
using P = StarfoldProfile;
using C = CompositeProfile;
using A = AdvancedSettings;

using Reader = Oddities::Reader;
constexpr Oddities kWhole{.WholeNumber = true};
constexpr Oddities kWholeWiderInDialog{.WholeNumber = true, .DialogHigh = 99999};
constexpr Oddities kReadAsLong{.ReadAs = Reader::AsLong};
constexpr Oddities kExactlyOne{.ReadAs = Reader::ExactlyOne};
constexpr Oddities kExactlyOneNoTemplate{.ReadAs = Reader::ExactlyOne, .InTemplate = false};
/// Templates with the default are identical to those of versions that lack the setting.
constexpr Oddities kUsualNotInTemplate{.UsualNotInTemplate = true};
constexpr Oddities kReadOnly{.InDialog = false, .InTemplate = false};
constexpr Oddities kZeroInTemplate{.ZeroInTemplate = true};
constexpr Oddities kMemberCount{.ZeroInTemplate = true, .TemplateName = "_CompFoldCount"};
constexpr Oddities kOnePointNought{.DefaultText = "1.0"};

const Field<U> kUniverseFields[] = {
    {"Universe_Stars", &U::Universe_Stars, Fixed, 10, 30000,
     STARFOLDS_TEXT("Stars in all the Starfolds (10 - 30000):"), kReadAsLong},
    {"Universe_Starfold", &U::Universe_Starfold, Fixed, 1, 999,
     STARFOLDS_TEXT("Starfolds in the Universe (1- 999):")},
    {"Universe_STrail", &U::Universe_STrail, Fixed, 1, 99,
     STARFOLDS_TEXT("Star Trail Length in Pixels (1 - 99):")},
    {"Universe_Expand", &U::Universe_Expand, Fixed, 0, 99999,
     STARFOLDS_TEXT("Expansion Speed (0 - 99999):")},
    {"Universe_ESteps", &U::Universe_ESteps, Fixed, 1, 9999,
     STARFOLDS_TEXT("Expansion Steps (1 - 9999):")},
    {"Universe_Persist", &U::Universe_Persist, Fixed, 0.25, 1,
     STARFOLDS_TEXT("Star Persistence (0.25 - 1.0):")},
    {"Universe_Damping", &U::Universe_Damping, Fixed, 0, 1,
     STARFOLDS_TEXT("Universe Expansion Damping (0.0 - 1.0):")},
    {"Universe_HW_Start", &U::Universe_HW_Start, Fixed, 0, 999,
     STARFOLDS_TEXT("Hue Start, End (0 - 999):")},
    {"Universe_HW_End", &U::Universe_HW_End, Fixed, 0, 999,
     STARFOLDS_TEXT("Hue Start, End (0 - 999):")},
    {"Universe_Recycle", &U::Universe_Recycle, Fixed, 1, 999,
     STARFOLDS_TEXT("Recycle Universe after visiting Starfolds (1 - 999):")},
    {"Universe_Profile", &U::Universe_Profile, Fixed, 0, 51, STARFOLDS_TEXT("Universe Profile:"),
     kZeroInTemplate},
    {"Universe_NewFreq", &U::Universe_NewFreq, Fixed, 0, 9999,
     STARFOLDS_TEXT("New Stars Frequency (0 - 9999):")},
    {"Universe_NewPctStEx", &U::Universe_NewPctStEx, Fixed, 0, 100,
     STARFOLDS_TEXT("Exclusive to Current Starfold % (0 - 100):"), kWhole},
    {"Universe_Tour", &U::Universe_Tour, None, 0, 0, STARFOLDS_TEXT("Tour the Universe"),
     kZeroInTemplate},
    {"Universe_GSteps", &U::Universe_GSteps, Fixed, 1, 9999,
     STARFOLDS_TEXT("Steps per Control Point (1 - 9999):")},
    {"Universe_GPCtrl", &U::Universe_GPCtrl, Fixed, 1, 999,
     STARFOLDS_TEXT("Control Points per Starfold Visit (1 - 999):")},
    {"Universe_GCCtrl", &U::Universe_GCCtrl, Fixed, 0, 999,
     STARFOLDS_TEXT("Control Points thru Starfold Core (0 - 999):")},
    {"Universe_DstCen", &U::Universe_DstCen, Fixed, 0, 999999,
     STARFOLDS_TEXT("Distance from Universe Center (0 - 999999):")},
    {"Universe_C_Ramp", &U::Universe_C_Ramp, Fixed, 0, 999,
     STARFOLDS_TEXT("Camera Rotation Ramping (0 - 999):")},
    {"Universe_GS_Idx", &U::Universe_GS_Idx, None, 0, 0,
     STARFOLDS_TEXT("Tour per space-separated Starfold indices (1-66)")},
    {"Universe_GVisit", &U::Universe_GVisit, None, 0, 0,
     STARFOLDS_TEXT("Visit Starfold Types Sequentially:"), kZeroInTemplate},
    {"Universe_RotCam", &U::Universe_RotCam, None, 0, 0,
     STARFOLDS_TEXT("Rotate Camera on approach to Starfolds:"), kZeroInTemplate},
    {"Universe_AmStar", &U::Universe_AmStar, Fixed, 0, 3000, STARFOLDS_TEXT("Stars (0 - 3000):")},
    {"Universe_AmPers", &U::Universe_AmPers, Fixed, 0.25, 1,
     STARFOLDS_TEXT("Persistence (0.25 - 1.0):")},
    {"Universe_AmCAge", &U::Universe_AmCAge, Fixed, 0, 10,
     STARFOLDS_TEXT("Age Increment (0.0 - 10.0):")},
    {"Universe_AmFrames", &U::Universe_AmFrames, Fixed, 0, 999,
     STARFOLDS_TEXT("Cycle Down Frames (0 - 999):")},
    {"Universe_AmMaxExt", &U::Universe_AmMaxExt, Fixed, 1, 9999,
     STARFOLDS_TEXT("Max. Size Extension (1 - 99999):"), kWholeWiderInDialog},
    {"Universe_GravForce", &U::Universe_GravForce, Fixed, 0, 999999,
     STARFOLDS_TEXT("Gravitational Magnitude (0 - 999999):")},
    {"Universe_GravFrame", &U::Universe_GravFrame, Fixed, 1, 999,
     STARFOLDS_TEXT("Calc. Velocity Vectors per Frame (1 - 999):")},
};

const Field<P> kProfileFields[] = {
    {"_UniFoldPct", &P::UniFoldPct, Fixed, 0, 9999, STARFOLDS_TEXT("Relative Percent in Universe"),
     kZeroInTemplate},
    {"_UniFoldName", &P::UniFoldName, None, 0, 0, STARFOLDS_TEXT("Name")},
    {"Starfold_StdLevels", &P::Starfold_StdLevels, Fixed, 1, 10, STARFOLDS_TEXT("Levels")},
    {"Starfold_StdLevDRad", &P::Starfold_StdLevDRad, None, 0, 0,
     STARFOLDS_TEXT("Level Radius Step")},
    {"Starfold_StdLevHSca", &P::Starfold_StdLevHSca, None, 0, 0,
     STARFOLDS_TEXT("Level Height Scale")},
    {"Starfold_StdLevB_HS", &P::Starfold_StdLevB_HS, None, 0, 0,
     STARFOLDS_TEXT("Levels Scale their Own Shape")},
    {"Starfold_StdLevB_A0", &P::Starfold_StdLevB_A0, None, 0, 0,
     STARFOLDS_TEXT("Alternate Tilt of Odd Levels")},
    {"Starfold_StdLevB_A1", &P::Starfold_StdLevB_A1, None, 0, 0,
     STARFOLDS_TEXT("Taper Tilt toward Outer Levels")},
    {"Starfold_HueRed", &P::Starfold_HueRed, Fixed, 0, 100, STARFOLDS_TEXT("Starfold Hue:  Red")},
    {"Starfold_HueGrn", &P::Starfold_HueGrn, Fixed, 0, 100, STARFOLDS_TEXT("Starfold Hue:  Green")},
    {"Starfold_HueBlu", &P::Starfold_HueBlu, Fixed, 0, 100, STARFOLDS_TEXT("Starfold Hue:  Blue")},
    {"Starfold_HueBase", &P::Starfold_HueBase, Fixed, 0, 100,
     STARFOLDS_TEXT("Starfold Hue:  Base")},
    {"Starfold_HueBlend", &P::Starfold_HueBlend, Fixed, 1, 60,
     STARFOLDS_TEXT("Starfold Hue:  Blend")},
    {"Starfold_Radius", &P::Starfold_Radius, Fixed, 1, 30000, STARFOLDS_TEXT("Starfold Radius")},
    {"Starfold_Rotation", &P::Starfold_Rotation, Fixed, 0, 30000,
     STARFOLDS_TEXT("Starfold Rotation Speed")},
    {"Starfold_Distance", &P::Starfold_Distance, Fixed, 0, 30000,
     STARFOLDS_TEXT("Starfold Core Distance from Eye")},
    {"Starfold_RadSegs", &P::Starfold_RadSegs, RadSegs, 0, 0,
     STARFOLDS_TEXT("Starfold Radial Arms")},
    {"Starfold_RadFill", &P::Starfold_RadFill, RadFill, 0, 0,
     STARFOLDS_TEXT("Starfold Radial Arm Fill %"), kWhole},
    {"Starfold_RadBands", &P::Starfold_RadBands, RadBands, 0, 0,
     STARFOLDS_TEXT("Starfold Radial Bands")},
    {"Starfold_RadBFill", &P::Starfold_RadBFill, RadBFill, 0, 0,
     STARFOLDS_TEXT("Starfold Radial Band Fill %"), kWhole},
    {"Starfold_NewFreq", &P::Starfold_NewFreq, Fixed, 0, 9999,
     STARFOLDS_TEXT("New Star Frequency")},
    {"Starfold_NewFrames", &P::Starfold_NewFrames, Fixed, 0, 99, STARFOLDS_TEXT("New Star Frames")},
    {"Starfold_NewExtMult", &P::Starfold_NewExtMult, Fixed, 1, 9999,
     STARFOLDS_TEXT("New Star Extension Multiplier")},
    {"Starfold_NovaFreq", &P::Starfold_NovaFreq, Fixed, 0, 9999,
     STARFOLDS_TEXT("Nova Star Frequency")},
    {"Starfold_NovaFrames", &P::Starfold_NovaFrames, Fixed, 1, 999,
     STARFOLDS_TEXT("Nova Star Frames")},
    {"Starfold_NovaExtMult", &P::Starfold_NovaExtMult, Fixed, 1, 9999,
     STARFOLDS_TEXT("Nova Star Extension Multiplier")},
    {"Starfold_PulsarFreq", &P::Starfold_PulsarFreq, Fixed, 0, 9999,
     STARFOLDS_TEXT("Pulsar Star Frequency")},
    {"Starfold_PulsarDepth", &P::Starfold_PulsarDepth, Fixed, 0, 9999,
     STARFOLDS_TEXT("Pulsar Star Z-Depth")},
    {"Starfold_PulsarShape", &P::Starfold_PulsarShape, Fixed, 0, 4,
     STARFOLDS_TEXT("Pulsar Star General Shape")},
    {"Starfold_PulsarCycles", &P::Starfold_PulsarCycles, Fixed, 1, 99,
     STARFOLDS_TEXT("Pulsar Star Cycles")},
    {"Starfold_PulsarFrames", &P::Starfold_PulsarFrames, Fixed, 1, 99,
     STARFOLDS_TEXT("Pulsar Star Frames per Cycle")},
    {"Starfold_PulsarMinExt", &P::Starfold_PulsarMinExt, Fixed, 1, 9999,
     STARFOLDS_TEXT("Pulsar Star Radius Start")},
    {"Starfold_PulsarMaxExt", &P::Starfold_PulsarMaxExt, Fixed, 1, 9999,
     STARFOLDS_TEXT("Pulsar Star Radius End")},
    {"Starfold_CometFreq", &P::Starfold_CometFreq, Fixed, 0, 9999,
     STARFOLDS_TEXT("Comet Frequency")},
    {"Starfold_CometStars", &P::Starfold_CometStars, Fixed, 1, 999, STARFOLDS_TEXT("Comet Stars")},
    {"Starfold_CometOrbit", &P::Starfold_CometOrbit, Fixed, 0, 9999,
     STARFOLDS_TEXT("Comet Orbital Speed")},
    {"Starfold_CometSpeed", &P::Starfold_CometSpeed, Fixed, 0, 9999,
     STARFOLDS_TEXT("Comet Emit Speed")},
    {"Starfold_CometSWind", &P::Starfold_CometSWind, Fixed, 0, 9999,
     STARFOLDS_TEXT("Comet Solar Wind")},
    {"Starfold_CometCPersist", &P::Starfold_CometCPersist, Fixed, 0.1, 0.9999,
     STARFOLDS_TEXT("Comet Persistence")},
    {"Starfold_CometSPersist", &P::Starfold_CometSPersist, Fixed, 0.1, 0.9999,
     STARFOLDS_TEXT("Comet Star Persistence")},
    {"Starfold_HWC_Start", &P::Starfold_HWC_Start, Fixed, 0, 999,
     STARFOLDS_TEXT("Comet Hue Wheel Start")},
    {"Starfold_HWC_End", &P::Starfold_HWC_End, Fixed, 0, 999,
     STARFOLDS_TEXT("Comet Hue Wheel End")},
    {"Starfold_HWC_Inc", &P::Starfold_HWC_Inc, Fixed, 0, 1,
     STARFOLDS_TEXT("Comet Hue Wheel Increment")},
    {"Starfold_GHW_Ratio", &P::Starfold_GHW_Ratio, Fixed, 0, 99.9,
     STARFOLDS_TEXT("Starfold Height/Width Ratio")},
    {"Starfold_RadiusExp", &P::Starfold_RadiusExp, Fixed, 0, 99.9,
     STARFOLDS_TEXT("Starfold Radius Exponent")},
    {"Starfold_HeightExp", &P::Starfold_HeightExp, Fixed, 0, 99.9,
     STARFOLDS_TEXT("Starfold Height Exponent")},
    {"Starfold_AngleTilt", &P::Starfold_AngleTilt, Fixed, 0, 360,
     STARFOLDS_TEXT("Starfold Angular Tilt")},
    {"Starfold_AngleTInc", &P::Starfold_AngleTInc, Fixed, 0, 360,
     STARFOLDS_TEXT("Starfold Angular Tilt Increment")},
    {"Starfold_ColorMult", &P::Starfold_ColorMult, Fixed, 0, 30000,
     STARFOLDS_TEXT("Starfold Color Multiplier")},
    {"Starfold_HWheelInc", &P::Starfold_HWheelInc, Fixed, 0, 360,
     STARFOLDS_TEXT("Starfold Hue Wheel Increment")},
    {"Starfold_FoldStyle", &P::Starfold_FoldStyle, Fixed, 0, kStyleCount - 1,
     STARFOLDS_TEXT("Starfold Style")},
    {"Starfold_AxisPlane", &P::Starfold_AxisPlane, Fixed, 0, 1,
     STARFOLDS_TEXT("Starfold Axial Plane of Rotation")},
    {"Starfold_ColorComp", &P::Starfold_ColorComp, Fixed, 0, 6,
     STARFOLDS_TEXT("Starfold Color Computation Index")},
    {"Starfold_HueStart", &P::Starfold_HueStart, Fixed, 0, 359,
     STARFOLDS_TEXT("Starfold Hue Wheel Start")},
    {"Starfold_Profile", &P::Starfold_Profile, Fixed, 0, 6,
     STARFOLDS_TEXT("Starfold Shape Profile")},
    {"Starfold_CP_Points", &P::Starfold_CP_Points, Fixed, 1, 20,
     STARFOLDS_TEXT("Nebula Control Points")},
    {"Starfold_CP_Steps", &P::Starfold_CP_Steps, Fixed, 0, 9999,
     STARFOLDS_TEXT("Nebula Control Point Steps")},
    {"Starfold_CP_Close", &P::Starfold_CP_Close, Fixed, 0, 1,
     STARFOLDS_TEXT("Nebula Control Points Closed")},
    {"Starfold_CP_AdvHW", &P::Starfold_CP_AdvHW, Fixed, 0, 1,
     STARFOLDS_TEXT("Nebula Advances the Hue Wheel")},
    {"Starfold_CP_B_Pts", &P::Starfold_CP_B_Pts, Fixed, 1, 99,
     STARFOLDS_TEXT("Nebula Bias Points")},
    {"Starfold_CP_B_Exp", &P::Starfold_CP_B_Exp, Fixed, 0, 100,
     STARFOLDS_TEXT("Nebula Bias Exponent")},
    {"Starfold_CP_B_Spd", &P::Starfold_CP_B_Spd, Fixed, 0, 999,
     STARFOLDS_TEXT("Nebula Bias Travel Speed")},
    {"Starfold_QG_Force", &P::Starfold_QG_Force, Fixed, 0, 99.9,
     STARFOLDS_TEXT("Quasar Emit Speed, Graviton Force")},
    {"Starfold_IFS_Points", &P::Starfold_IFS_Points, Fixed, 0, kMaxIfsPoints,
     STARFOLDS_TEXT("Attractor Points"), kZeroInTemplate},
    {"Starfold_Atoms", &P::Starfold_Atoms, Fixed, 0, kMaxAtoms, STARFOLDS_TEXT("Atoms"),
     kZeroInTemplate},
};

const Field<C> kCompositeFields[] = {
    {"_CompFoldName", &C::CompFoldName, None, 0, 0, "Name"},
    {"_CompFoldPct", &C::CompFoldPct, Fixed, 0, 9999, "Relative Percent in Universe"},
    {"CompFold_Count", &C::CompFold_Count, Fixed, 0, 49, "Members", kMemberCount},
};

const Field<A> kAdvancedFields[] = {
    {"Adv_TimeDelay", &A::Adv_TimeDelay, Fixed, 0, 999, "Frame delay in milliseconds (0 - 999):"},
    {"FocalLength", &A::FocalLength, Fixed, 0.01, 10,
     "Focal length distance (0.01 - 10.0):", kOnePointNought},
    {"LockMessage", &A::LockMessage, None, 0, 0, "Text:"},
    {"Adv_FontName", &A::Adv_FontName, None, 0, 0, "Font:"},
    {"Adv_FontSize", &A::Adv_FontSize, Fixed, 10, 80, "Size:"},
    {"Adv_FontHueV", &A::Adv_FontHueV, Fixed, 0, 359, "Text Hue (0 - 359):"},
    {"Adv_WinResize", &A::Adv_WinResize, None, 0, 0, "Window can be resized (EXE version only)",
     kExactlyOne},
    {"Adv_MouseMove", &A::Adv_MouseMove, None, 0, 0, "Ignore mouse moves in screen saver mode",
     kExactlyOne},
    {"Adv_DispBackG", &A::Adv_DispBackG, None, 0, 0, "Display in background (double-click to stop)",
     kExactlyOneNoTemplate},
    {"Adv_Randomize", &A::Adv_Randomize, None, 0, 0, "Randomize Properties"},
    {"Adv_RandomMag", &A::Adv_RandomMag, Fixed, 1, 100, "Randomization Magnitude (1 - 100):"},
    {"Adv_RandomExp", &A::Adv_RandomExp, Fixed, 1, 100, "Bias Exponent to Normal (1 - 100):"},
    {"Adv_FontDrift", &A::Adv_FontDrift, None, 0, 0, "Let the text drift slowly",
     kUsualNotInTemplate},
    {"Adv_PerfMult", &A::Adv_PerfMult, None, 0, 0, "Speed Multiplier", kReadOnly},
    {"Adv_EffectFPC", &A::Adv_EffectFPC, None, 0, 0, "Effect Frames per Cycle", kReadOnly},
};

const Field<IfsRecord> kIfsCenterFields[] = {
    {"IFS_CenterX", &IfsRecord::IFS_CenterX, Fixed, 0, 9999, STARFOLDS_TEXT("Center X")},
    {"IFS_CenterY", &IfsRecord::IFS_CenterY, Fixed, 0, 9999, STARFOLDS_TEXT("Center Y")},
    {"IFS_CenterZ", &IfsRecord::IFS_CenterZ, Fixed, 0, 9999, STARFOLDS_TEXT("Center Z")},
};

const Field<IfsPoint> kIfsPointFields[] = {
    {"IFS_LocX", &IfsPoint::IFS_LocX, Fixed, 0, 9999, STARFOLDS_TEXT("Loc X")},
    {"IFS_LocY", &IfsPoint::IFS_LocY, Fixed, 0, 9999, STARFOLDS_TEXT("Loc Y")},
    {"IFS_LocZ", &IfsPoint::IFS_LocZ, Fixed, 0, 9999, STARFOLDS_TEXT("Loc Z")},
    {"IFS_Scale", &IfsPoint::IFS_Scale, Fixed, 0, 100, STARFOLDS_TEXT("Scale")},
    {"IFS_Axis", &IfsPoint::IFS_Axis, Fixed, 0, 2, STARFOLDS_TEXT("Axis")},
    {"IFS_Angle", &IfsPoint::IFS_Angle, Fixed, 0, 360, STARFOLDS_TEXT("Angle")},
    {"IFS_RelPct", &IfsPoint::IFS_RelPct, Fixed, 0, 9999, STARFOLDS_TEXT("Rel.Pct.")},
};

const Field<AtomRecord> kAtomCenterFields[] = {
    {"Atom_CenterX", &AtomRecord::Atom_CenterX, Fixed, 0, 9999, STARFOLDS_TEXT("Center X")},
    {"Atom_CenterY", &AtomRecord::Atom_CenterY, Fixed, 0, 9999, STARFOLDS_TEXT("Center Y")},
    {"Atom_CenterZ", &AtomRecord::Atom_CenterZ, Fixed, 0, 9999, STARFOLDS_TEXT("Center Z")},
};

const Field<AtomPoint> kAtomPointFields[] = {
    {"Atom_Element", &AtomPoint::Atom_Element, Fixed, 1, 17,
     STARFOLDS_TEXT("Periodic Table Element:")},
    {"Atom_LocX", &AtomPoint::Atom_LocX, Fixed, 0, 9999, STARFOLDS_TEXT("Loc X")},
    {"Atom_LocY", &AtomPoint::Atom_LocY, Fixed, 0, 9999, STARFOLDS_TEXT("Loc Y")},
    {"Atom_LocZ", &AtomPoint::Atom_LocZ, Fixed, 0, 9999, STARFOLDS_TEXT("Loc Z")},
    {"Atom_Structure", &AtomPoint::Atom_Structure, Fixed, 0, 11,
     STARFOLDS_TEXT("Atomic Structure:")},
    {"Atom_Size", &AtomPoint::Atom_Size, Fixed, 0, 9999, STARFOLDS_TEXT("Atom Offset")},
    {"Atom_Radius", &AtomPoint::Atom_Radius, Fixed, 0, 9999, STARFOLDS_TEXT("Symmetry Radius")},
};

/// The maximum length of the on-screen message, in characters.
constexpr std::size_t kLongestMessage = 100;
constexpr std::size_t kMostBytesOfMessage = 4096;

template <class Word>
void ClampNumber(Word& value, Limits limits, bool wholeNumber) {
  if constexpr (std::is_same_v<Word, Single>) {
    if (wholeNumber) value = RoundedToLimits<Long>(value);
  }
  value = ClampTo(value, static_cast<Word>(limits.Low), static_cast<Word>(limits.High));
}

/// Clamps one field of a record to `limits`; texts and Booleans are not changed.
template <class Record>
void ClampField(Record& record, const Field<Record>& field, Limits limits) {
  std::visit(
      [&](auto member) {
        using Value = std::remove_reference_t<decltype(record.*member)>;
        if constexpr (!std::is_same_v<Value, bool> && !std::is_same_v<Value, std::string>) {
          ClampNumber(record.*member, limits, field.Odd.WholeNumber);
        }
      },
      field.Where);
}

template <class Record>
void ClampFields(Record& record, std::span<const Field<Record>> fields) {
  for (const Field<Record>& field : fields) {
    if (field.Rule == Fixed) ClampField(record, field, {field.Low, field.High});
  }
}

template <class Record>
const Field<Record>& RowOf(std::span<const Field<Record>> fields, const Setting<Record>& setting) {
  const auto row = std::find_if(fields.begin(), fields.end(),
                                [&](const Field<Record>& field) { return field.Where == setting; });
  assert(row != fields.end() && "a setting without a row in the field table");
  return *row;
}

UserText NoNumber(std::string_view name, std::string_view value) {
  return {STARFOLDS_TEXT("%1 takes a number, not %2"), {Quoted(name), Quoted(value)}};
}

template <class Record>
std::optional<UserText> SetFieldOrFault(Record& record, const Field<Record>& field,
                                        std::string_view text) {
  if (SetFieldText(record, field, text)) return std::nullopt;
  return NoNumber(field.Name, text);
}

/// The number after `prefix` in a section's name; nullopt if it is missing or not below `count`.
std::optional<int> SectionIndex(std::string_view section, std::string_view prefix, int count) {
  if (!section.starts_with(prefix)) return std::nullopt;
  const std::string_view digits = section.substr(prefix.size());
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  const double index = LenientNumber(digits);
  if (index >= count) return std::nullopt;
  return static_cast<int>(index);
}

std::optional<UserText> SetInComposite(CompositeProfile& composite, std::string_view name,
                                       std::string_view value) {
  if (const auto* field = FindField(CompositeFields(), name)) {
    return SetFieldOrFault(composite, *field, value);
  }
  const auto member = SectionIndex(name, "CompFold_Type", kMaxMembers);
  if (!member) {
    return UserText(STARFOLDS_TEXT("there is no setting %1 in a composite"), {Quoted(name)});
  }
  if (!IsNumeric(value)) return NoNumber(name, value);
  composite.CompFold_Type[*member] = RoundedToLimits<Integer>(LenientNumber(value));
  return std::nullopt;
}

}  // namespace

std::span<const Field<UniverseSettings>> UniverseFields() { return kUniverseFields; }
std::span<const Field<StarfoldProfile>> ProfileFields() { return kProfileFields; }
std::span<const Field<CompositeProfile>> CompositeFields() { return kCompositeFields; }
std::span<const Field<AdvancedSettings>> AdvancedFields() { return kAdvancedFields; }
std::span<const Field<IfsRecord>> IfsCenterFields() { return kIfsCenterFields; }
std::span<const Field<IfsPoint>> IfsPointFields() { return kIfsPointFields; }
std::span<const Field<AtomRecord>> AtomCenterFields() { return kAtomCenterFields; }
std::span<const Field<AtomPoint>> AtomPointFields() { return kAtomPointFields; }

const Field<UniverseSettings>& FieldOf(Setting<UniverseSettings> setting) {
  return RowOf(UniverseFields(), setting);
}
const Field<StarfoldProfile>& FieldOf(Setting<StarfoldProfile> setting) {
  return RowOf(ProfileFields(), setting);
}
const Field<CompositeProfile>& FieldOf(Setting<CompositeProfile> setting) {
  return RowOf(CompositeFields(), setting);
}
const Field<AdvancedSettings>& FieldOf(Setting<AdvancedSettings> setting) {
  return RowOf(AdvancedFields(), setting);
}
const Field<IfsRecord>& FieldOf(Setting<IfsRecord> setting) {
  return RowOf(IfsCenterFields(), setting);
}
const Field<IfsPoint>& FieldOf(Setting<IfsPoint> setting) {
  return RowOf(IfsPointFields(), setting);
}
const Field<AtomRecord>& FieldOf(Setting<AtomRecord> setting) {
  return RowOf(AtomCenterFields(), setting);
}
const Field<AtomPoint>& FieldOf(Setting<AtomPoint> setting) {
  return RowOf(AtomPointFields(), setting);
}

Limits StyleLimits(RangeRule rule, Integer style) {
  const StyleFacts& facts = FactsOf(style);
  switch (rule) {
    case RadSegs: return facts.RadSegs;
    case RadFill: return facts.RadFill;
    case RadBands: return facts.RadBands;
    case RadBFill: return facts.RadBFill;
    case None:
    case Fixed: break;
  }
  return {};
}

Integer AtomPoints(Integer structure) {
  constexpr Integer points[] = {1, 6, 8, 18, 26, 38};
  return structure >= 0 && structure < 6 ? points[structure] : Integer{1};
}

bool IsLattice(Integer structure) { return structure >= 6 && structure < 12; }

void ClampUniverse(UniverseSettings& universe) { ClampFields(universe, UniverseFields()); }

void ClampProfile(StarfoldProfile& profile) {
  profile.Starfold_FoldStyle = ClampTo<Integer>(profile.Starfold_FoldStyle, 0, kStyleCount - 1);
  for (const Field<StarfoldProfile>& field : ProfileFields()) {
    if (field.Rule == None) continue;
    const Limits limits = field.Rule == Fixed ? Limits{field.Low, field.High}
                                              : StyleLimits(field.Rule, profile.Starfold_FoldStyle);
    ClampField(profile, field, limits);
  }
  if (profile.Starfold_IFS_Points > 0) ClampFields(profile.IFS, IfsCenterFields());
  for (int i = 0; i < profile.Starfold_IFS_Points; ++i) {
    ClampFields(profile.IFS.Points[i], IfsPointFields());
  }
  if (profile.Starfold_Atoms > 0) ClampFields(profile.Atom, AtomCenterFields());
  for (int i = 0; i < profile.Starfold_Atoms; ++i) {
    AtomPoint& atom = profile.Atom.Atoms[i];
    ClampFields(atom, AtomPointFields());
    atom.Atom_Count = ClampTo<Integer>(atom.Atom_Count, 1, 100);
    if (IsLattice(atom.Atom_Structure)) ClampNumber(atom.Atom_LocX, kPointsPerEdge, false);
  }
}

void ClampComposite(CompositeProfile& composite) {
  ClampFields(composite, CompositeFields());
  for (int i = 0; i < composite.MemberCount(); ++i) {
    composite.CompFold_Type[i] = ClampTo<Integer>(composite.CompFold_Type[i], 0, 49);
  }
}

void ClampAdvanced(AdvancedSettings& advanced) {
  ClampFields(advanced, AdvancedFields());
  if (advanced.Adv_FontName.empty()) advanced.Adv_FontName = "MS Sans Serif";
  const std::string_view message =
      FirstCharacters(Trimmed(advanced.LockMessage), kLongestMessage, kMostBytesOfMessage);
  advanced.LockMessage = std::string(Trimmed(message));  // blanks where the text was cut
  if (advanced.Adv_EffectFPC > 0) {
    advanced.Adv_EffectFPC = ClampTo<Long>(advanced.Adv_EffectFPC, 100, 30000);
  }
}

template <class Record>
std::string FieldText(const Record& record, const Field<Record>& field) {
  return std::visit(
      [&](auto member) -> std::string {
        const auto& value = record.*member;
        using Value = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::string>) {
          return value;
        } else if constexpr (std::is_same_v<Value, bool>) {
          return value ? "1" : "0";
        } else if constexpr (std::is_same_v<Value, Single>) {
          return NumberText(value);
        } else {
          return NumberText(Long{value});
        }
      },
      field.Where);
}

template <class Record>
bool SetFieldText(Record& record, const Field<Record>& field, std::string_view text) {
  return std::visit(
      [&](auto member) {
        auto& value = record.*member;
        using Value = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::string>) {
          value = std::string(text);
          return true;
        } else {
          if (!IsNumeric(text)) return false;
          SetFieldNumber(record, field, LenientNumber(text));
          if constexpr (std::is_same_v<Value, bool>) {
            if (field.Odd.ReadAs == Reader::ExactlyOne) value = Trimmed(text) == "1";
          }
          return true;
        }
      },
      field.Where);
}

template <class Record>
void SetFieldNumber(Record& record, const Field<Record>& field, double number) {
  std::visit(
      [&](auto member) {
        auto& value = record.*member;
        using Value = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, bool>) {
          value = number != 0;
        } else if constexpr (std::is_same_v<Value, Single>) {
          constexpr double largest = std::numeric_limits<Single>::max();
          value = static_cast<Single>(ClampTo(number, -largest, largest));
        } else if constexpr (!std::is_same_v<Value, std::string>) {
          value = RoundedToLimits<Value>(number);
        }
      },
      field.Where);
}

#define STARFOLDS_FIELD_TEXT(Record)                                           \
  template std::string FieldText(const Record&, const Field<Record>&);         \
  template bool SetFieldText(Record&, const Field<Record>&, std::string_view); \
  template void SetFieldNumber(Record&, const Field<Record>&, double);
STARFOLDS_FIELD_TEXT(UniverseSettings)
STARFOLDS_FIELD_TEXT(StarfoldProfile)
STARFOLDS_FIELD_TEXT(CompositeProfile)
STARFOLDS_FIELD_TEXT(AdvancedSettings)
STARFOLDS_FIELD_TEXT(IfsRecord)
STARFOLDS_FIELD_TEXT(IfsPoint)
STARFOLDS_FIELD_TEXT(AtomRecord)
STARFOLDS_FIELD_TEXT(AtomPoint)
STARFOLDS_FIELD_TEXT(IdleSettings)
#undef STARFOLDS_FIELD_TEXT

std::optional<UserText> SetByName(SettingsRecords& records, std::string_view name,
                                  std::string_view value) {
  if (const auto* field = FindField(UniverseFields(), name)) {
    return SetFieldOrFault(records.Universe, *field, value);
  }
  if (const auto* field = FindField(AdvancedFields(), name)) {
    return SetFieldOrFault(records.Advanced, *field, value);
  }
  if (const auto* field = FindField(ProfileFields(), name)) {
    for (StarfoldProfile& profile : records.Profiles) {
      if (auto message = SetFieldOrFault(profile, *field, value)) return message;
    }
    return std::nullopt;
  }
  const std::size_t slash = name.find_first_of("/\\");
  if (slash != std::string_view::npos) {
    const std::string_view section = name.substr(0, slash);
    const std::string_view key = name.substr(slash + 1);
    if (const auto index = SectionIndex(section, "Starfold", kProfileCount)) {
      const auto* field = FindField(ProfileFields(), key);
      if (!field) {
        return UserText(STARFOLDS_TEXT("there is no setting %1 in a profile"), {Quoted(key)});
      }
      return SetFieldOrFault(records.Profiles[*index], *field, value);
    }
    if (const auto index = SectionIndex(section, "CompFold", kCompositeCount)) {
      return SetInComposite(records.Composites[*index], key, value);
    }
  }
  return UserText(STARFOLDS_TEXT("there is no setting %1"), {Quoted(name)});
}

VisitList ParseVisitList(std::string_view text) {
  VisitList list;
  while (!text.empty() && list.Count < VisitList::kRoom) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view piece = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!IsNumeric(piece)) continue;
    const double number = LenientNumber(piece);
    if (number <= 0 || number > kBodyCount) continue;
    const auto body = RoundedToLimits<Integer>(number - 1);
    if (body >= 0) list.Bodies[list.Count++] = body;
  }
  return list;
}

}  // namespace starfolds

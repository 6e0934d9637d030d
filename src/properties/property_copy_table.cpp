#include "properties/property_copy_table.h"

#include <cmath>

#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

using enum NumberKind;

constexpr Styles kNone{};
constexpr Styles kIfs{1, 2, 3};
constexpr Styles kAllButNebula{0, 1, 2, 3, 5, 6, 7, 8, 9};

/// An entry with a number that goes into the setting it is called after.
constexpr CopyRow Number(std::string_view setting, Styles skipped = kNone, NumberRange range = {}) {
  return {.Entry = setting, .Range = range, .Target = setting, .Skipped = skipped};
}

/// The same with a position in a list.
constexpr CopyRow Choice(std::string_view setting, NameList choices) {
  return {.Entry = setting, .Control = CopyControl::Choice, .Choices = choices, .Target = setting};
}

/// An entry that can be chosen and changes nothing. Users of earlier versions know them like that.
constexpr CopyRow Dead(std::string_view entry, NumberRange range = {}) {
  return {.Entry = entry, .Range = range};
}

constexpr CopyRow kRows[] = {
    Number("Starfold_HueRed"),
    Number("Starfold_HueGrn"),
    Number("Starfold_HueBlu"),
    Number("Starfold_HueBase"),
    Number("Starfold_HueBlend"),
    Number("Starfold_Radius", Styles{7}),
    Number("Starfold_Rotation"),
    Number("Starfold_Distance"),
    Number("Starfold_RadSegs", kIfs, {AsInteger, 1, 99}),
    Number("Starfold_RadFill", kIfs, {AsInteger, 0, 100}),
    Number("Starfold_RadBands", Styles{1, 2, 7}, {AsInteger, 1, 99}),
    Number("Starfold_RadBFill", Styles{7}, {AsInteger, 0, 100}),
    Choice("Starfold_FoldStyle", StyleNames),
    Choice("Starfold_AxisPlane", PlaneNames),
    Choice("Starfold_Profile", ShapeNames),
    Number("Starfold_GHW_Ratio"),
    Number("Starfold_RadiusExp", Styles{4, 7}),
    Number("Starfold_HeightExp", Styles{4}),
    Number("Starfold_AngleTilt", kNone, {AsInteger, 0, 359}),
    Number("Starfold_AngleTInc"),
    Choice("Starfold_ColorComp", ColorRuleNames),
    Number("Starfold_ColorMult"),
    Number("Starfold_HueStart"),
    Number("Starfold_HWheelInc"),
    Number("Starfold_NewFreq"),
    Number("Starfold_NewFrames", kNone, {AsInteger, 1, 999}),
    Number("Starfold_NewExtMult"),
    Number("Starfold_NovaFreq"),
    Number("Starfold_NovaFrames"),
    Number("Starfold_NovaExtMult"),
    Number("Starfold_PulsarFreq"),
    Number("Starfold_PulsarDepth"),
    Number("Starfold_PulsarCycles"),
    Number("Starfold_PulsarFrames"),
    Number("Starfold_PulsarMinExt"),
    Number("Starfold_PulsarMaxExt"),
    Choice("Starfold_PulsarShape", PulsarShapeNames),
    Number("Starfold_CometFreq"),
    Dead("Starfold_CometStars"),
    Dead("Starfold_CometOrbit"),
    Number("Starfold_CometSpeed"),
    Number("Starfold_CometSWind"),
    Number("Starfold_CometCPersist"),
    Number("Starfold_CometSPersist"),
    Number("Starfold_HWC_Start"),
    Number("Starfold_HWC_End"),
    Dead("Attractor Iteration Points", {AsInteger, 1, 99}),
    Dead("Attractor Iteration Scale %", {AsInteger, 0, 100}),
    Dead("Attractor Rotation Angle", {AsInteger, 0, 360}),
    Dead("Wireframe Vertices", {AsInteger, 4, 10}),
    Dead("Wireframe Scale %", {AsInteger, 0, 100}),
    Dead("Wireframe Iteration Levels", {AsInteger, 1, 99}),
    Dead("Fractal Iteration Points", {AsInteger, 4, 10}),
    Dead("Fractal Iteration Scale %", {AsInteger, 0, 100}),
    // Changes another setting than it says.
    {.Entry = "Starfold_CP_Points", .Target = "Starfold_CP_Close", .Skipped = kAllButNebula},
    Dead("Starfold_CP_Steps", {AsInteger, 1, 9999}),
    Dead("Starfold_CP_B_Pts"),
    Dead("Starfold_CP_B_Exp"),
    Dead("Starfold_CP_B_Spd"),
    Dead("Nebula Expansion Speed", {AsSingle, 0, 99.9}),
    Dead("Nebula Solar Wind Magnitude", {AsSingle, 0, 99.9}),
    {.Entry = "Starfold_CP_Close", .Control = CopyControl::Check},
    Dead("Quasar Emit Speed", {AsSingle, 0, 99.9}),
    Dead("Graviton Force", {AsSingle, 0, 99.9}),
    Dead("Starwave Expansion Rate", {AsInteger, 1, 30000}),
    Dead("Starwave Interleaved Waves", {AsInteger, 1, 99}),
    Dead("Starwave Amplitude Persistence", {AsInteger, 1, 999}),
    Dead("Starwave Particle Angle Increment", {AsSingle, 0, 99.9}),
};

NumberKind KindOf(const Field<StarfoldProfile>& field) {
  if (std::holds_alternative<Single StarfoldProfile::*>(field.Where)) return AsSingle;
  if (std::holds_alternative<Long StarfoldProfile::*>(field.Where)) return AsLong;
  return AsInteger;
}

}  // namespace

std::span<const CopyRow> CopyRows() { return kRows; }

std::string EntryText(const CopyRow& row) {
  const auto* field = FindField(ProfileFields(), row.Entry);
  return std::string(field ? field->Label : row.Entry);
}

NumberRange RangeOf(const CopyRow& row) {
  const auto* field = FindField(ProfileFields(), row.Entry);
  if (row.Range.High > 0 || !field) return row.Range;
  return {KindOf(*field), field->Low, field->High};
}

/// The point of "360.0" says that fractions are taken.
std::string RangeText(const NumberRange& range) {
  std::string high = NumberText(static_cast<Single>(range.High));
  if (range.Kind == NumberKind::AsSingle && high.find('.') == std::string::npos) high += ".0";
  return "Range (" + NumberText(static_cast<Single>(range.Low)) + " - " + high + "):";
}

bool CopyProperty(const CopyRow& row, Single value, ProfileArray& profiles) {
  const auto* target = FindField(ProfileFields(), row.Target);
  if (!target) return false;
  for (StarfoldProfile& profile : profiles) {
    if (row.Skipped.Has(profile.Starfold_FoldStyle)) continue;
    SetFieldNumber(profile, *target, value);
  }
  return true;
}

}  // namespace starfolds

#include "properties/property_copy_table.h"

#include <algorithm>
#include <cmath>

#include "numbers/text.h"
#include "platform/user_text.h"
#include "settings/fields.h"
#include "widgets/editor_ranges.h"

namespace starfolds {
namespace {

using enum NumberKind;
using P = StarfoldProfile;

constexpr Styles kNone{};
constexpr Styles kIfs{1, 2, 3};

/// An entry with a number for the setting whose label it has.
constexpr CopyRow Number(Setting<P> setting, Styles skipped = kNone) {
  return {.Labelled = setting, .Target = setting, .Skipped = skipped};
}

/// An entry with a list, whose position is the value.
constexpr CopyRow Choice(Setting<P> setting, NameList choices) {
  return {
      .Labelled = setting, .Control = CopyControl::Choice, .Choices = choices, .Target = setting};
}

/// An entry that changes nothing, as in earlier versions.
constexpr CopyRow NoEffect(std::string_view text, NumberRange range) {
  return {.Text = text, .Range = range};
}
constexpr CopyRow NoEffect(Setting<P> labelled) { return {.Labelled = labelled}; }

constexpr CopyRow kRows[] = {
    Number(&P::Starfold_HueRed),
    Number(&P::Starfold_HueGrn),
    Number(&P::Starfold_HueBlu),
    Number(&P::Starfold_HueBase),
    Number(&P::Starfold_HueBlend),
    Number(&P::Starfold_Radius, Styles{7}),
    Number(&P::Starfold_Rotation),
    Number(&P::Starfold_Distance),
    Number(&P::Starfold_RadSegs, kIfs),
    Number(&P::Starfold_RadFill, kIfs),
    Number(&P::Starfold_RadBands, Styles{1, 2, 7}),
    Number(&P::Starfold_RadBFill, Styles{7}),
    Choice(&P::Starfold_FoldStyle, StyleNames),
    Choice(&P::Starfold_AxisPlane, PlaneNames),
    Choice(&P::Starfold_Profile, ShapeNames),
    Number(&P::Starfold_GHW_Ratio),
    Number(&P::Starfold_RadiusExp, Styles{4, 7}),
    Number(&P::Starfold_HeightExp, Styles{4}),
    Number(&P::Starfold_AngleTilt),
    Number(&P::Starfold_AngleTInc),
    Choice(&P::Starfold_ColorComp, ColorRuleNames),
    Number(&P::Starfold_ColorMult),
    Number(&P::Starfold_HueStart),
    Number(&P::Starfold_HWheelInc),
    Number(&P::Starfold_NewFreq),
    Number(&P::Starfold_NewFrames),
    Number(&P::Starfold_NewExtMult),
    Number(&P::Starfold_NovaFreq),
    Number(&P::Starfold_NovaFrames),
    Number(&P::Starfold_NovaExtMult),
    Number(&P::Starfold_PulsarFreq),
    Number(&P::Starfold_PulsarDepth),
    Number(&P::Starfold_PulsarCycles),
    Number(&P::Starfold_PulsarFrames),
    Number(&P::Starfold_PulsarMinExt),
    Number(&P::Starfold_PulsarMaxExt),
    Choice(&P::Starfold_PulsarShape, PulsarShapeNames),
    Number(&P::Starfold_CometFreq),
    NoEffect(&P::Starfold_CometStars),
    NoEffect(&P::Starfold_CometOrbit),
    Number(&P::Starfold_CometSpeed),
    Number(&P::Starfold_CometSWind),
    Number(&P::Starfold_CometCPersist),
    Number(&P::Starfold_CometSPersist),
    Number(&P::Starfold_HWC_Start),
    Number(&P::Starfold_HWC_End),
    NoEffect(STARFOLDS_TEXT("Attractor Iteration Points"), {AsInteger, 1, 99}),
    NoEffect(STARFOLDS_TEXT("Attractor Iteration Scale %"), {AsInteger, 0, 100}),
    NoEffect(STARFOLDS_TEXT("Attractor Rotation Angle"), {AsInteger, 0, 360}),
    NoEffect(STARFOLDS_TEXT("Wireframe Vertices"), {AsInteger, 4, 10}),
    NoEffect(STARFOLDS_TEXT("Wireframe Scale %"), {AsInteger, 0, 100}),
    NoEffect(STARFOLDS_TEXT("Wireframe Iteration Levels"), {AsInteger, 1, 99}),
    NoEffect(STARFOLDS_TEXT("Fractal Iteration Points"), {AsInteger, 4, 10}),
    NoEffect(STARFOLDS_TEXT("Fractal Iteration Scale %"), {AsInteger, 0, 100}),
    // Changes another setting than its label says, as in earlier versions.
    {.Labelled = &P::Starfold_CP_Points,
     .Target = &P::Starfold_CP_Close,
     .Skipped = Styles::AllBut(FoldStyle::Nebula)},
    NoEffect(&P::Starfold_CP_Steps),
    NoEffect(&P::Starfold_CP_B_Pts),
    NoEffect(&P::Starfold_CP_B_Exp),
    NoEffect(&P::Starfold_CP_B_Spd),
    NoEffect(STARFOLDS_TEXT("Nebula Expansion Speed"), {AsSingle, 0, 99.9}),
    NoEffect(STARFOLDS_TEXT("Nebula Solar Wind Magnitude"), {AsSingle, 0, 99.9}),
    {.Labelled = &P::Starfold_CP_Close, .Control = CopyControl::Check},
    NoEffect(STARFOLDS_TEXT("Quasar Emit Speed"), {AsSingle, 0, 99.9}),
    NoEffect(STARFOLDS_TEXT("Graviton Force"), {AsSingle, 0, 99.9}),
    NoEffect(STARFOLDS_TEXT("Starwave Expansion Rate"), {AsInteger, 1, 30000}),
    NoEffect(STARFOLDS_TEXT("Starwave Interleaved Waves"), {AsInteger, 1, 99}),
    NoEffect(STARFOLDS_TEXT("Starwave Amplitude Persistence"), {AsInteger, 1, 999}),
    NoEffect(STARFOLDS_TEXT("Starwave Particle Angle Increment"), {AsSingle, 0, 99.9}),
};

}  // namespace

std::span<const CopyRow> CopyRows() { return kRows; }

std::string EntryText(const CopyRow& row) {
  return std::string(row.Labelled ? FieldOf(*row.Labelled).Label : row.Text);
}

NumberRange RangeOf(const CopyRow& row) {
  return row.Labelled ? RangeIn(RangedEditor::PropertyCopy, *row.Labelled) : row.Range;
}

/// "360.0" instead of "360" shows that fractions are accepted.
UserText RangeText(const NumberRange& range) {
  std::string high = NumberText(static_cast<Single>(range.High));
  if (range.Kind == NumberKind::AsSingle && high.find('.') == std::string::npos) high += ".0";
  return {STARFOLDS_TEXT("Range (%1 - %2):"), {NumberText(static_cast<Single>(range.Low)), high}};
}

int TypesSetBy(const CopyRow& row, const ProfileArray& profiles) {
  if (!row.Target) return 0;
  const auto isSet = [&row](const P& profile) {
    return !row.Skipped.Has(profile.Starfold_FoldStyle);
  };
  return static_cast<int>(std::count_if(profiles.begin(), profiles.end(), isSet));
}

bool CopyProperty(const CopyRow& row, Single value, ProfileArray& profiles) {
  if (!row.Target) return false;
  const Field<P>& target = FieldOf(*row.Target);
  for (StarfoldProfile& profile : profiles) {
    if (row.Skipped.Has(profile.Starfold_FoldStyle)) continue;
    SetFieldNumber(profile, target, value);
  }
  return true;
}

}  // namespace starfolds

#include "settings/dialog_rows.h"

#include <array>

#include "numbers/text.h"
#include "platform/user_text.h"

namespace starfolds {
namespace {

using enum NumberKind;
using P = StarfoldProfile;
using U = UniverseSettings;
using UP = UniversePage;
using SP = StarfoldPage;

constexpr std::string_view kUniversePages[kUniversePageCount] = {
    STARFOLDS_TEXT("Universe Creation"), STARFOLDS_TEXT("New / Ambient Star Creation"),
    STARFOLDS_TEXT("Starfold Tour Characteristics"), STARFOLDS_TEXT("Composite Starfolds"),
    STARFOLDS_TEXT("Gravity between Starfolds")};

constexpr UniverseRow kUniverseRows[] = {
    {0, &U::Universe_Stars, AsLong, UP::Always},
    {1, &U::Universe_Starfold, AsInteger, UP::Always},
    {2, &U::Universe_STrail, AsInteger, UP::Always},
    {10, &U::Universe_Expand, AsLong, UP::Creation},
    {11, &U::Universe_ESteps, AsInteger, UP::Creation},
    {12, &U::Universe_Persist, AsSingle, UP::Creation},
    {14, &U::Universe_Damping, AsSingle, UP::Creation},
    {16, &U::Universe_HW_Start, AsInteger, UP::Creation},
    {17, &U::Universe_HW_End, AsInteger, UP::Creation},
    {18, &U::Universe_Recycle, AsInteger, UP::Creation},
    {20, &U::Universe_NewFreq, AsInteger, UP::NewAndAmbient},
    {21, &U::Universe_NewPctStEx, AsInteger, UP::NewAndAmbient},
    {40, &U::Universe_AmStar, AsInteger, UP::NewAndAmbient},
    {41, &U::Universe_AmPers, AsSingle, UP::NewAndAmbient},
    {42, &U::Universe_AmCAge, AsSingle, UP::NewAndAmbient},
    {43, &U::Universe_AmFrames, AsInteger, UP::NewAndAmbient},
    {44, &U::Universe_AmMaxExt, AsLong, UP::NewAndAmbient},
    {30, &U::Universe_GSteps, AsInteger, UP::Tour},
    {31, &U::Universe_GPCtrl, AsInteger, UP::Tour},
    {32, &U::Universe_GCCtrl, AsInteger, UP::Tour},
    {33, &U::Universe_DstCen, AsLong, UP::Tour},
    {34, &U::Universe_C_Ramp, AsInteger, UP::Tour},
    {50, &U::Universe_GravForce, AsLong, UP::Gravity},
    {51, &U::Universe_GravFrame, AsInteger, UP::Gravity},
};

constexpr std::string_view kStarfoldPages[kStarfoldPageCount] = {
    STARFOLDS_TEXT("Starfold Motion, Shape and Color Properties"),
    STARFOLDS_TEXT("New, Nova and Pulsar Star Properties"),
    STARFOLDS_TEXT("Comet and Color Properties")};

constexpr StarfoldRow kStarfoldRows[] = {
    {0, &P::Starfold_Radius, AsLong, SP::Shape, 0},
    {1, &P::Starfold_Rotation, AsLong, SP::Shape, 0},
    {2, &P::Starfold_Distance, AsLong, SP::Shape, 1},
    {3, &P::Starfold_RadSegs, AsInteger, SP::Shape, 2, StyleBox::Radials},
    {4, &P::Starfold_RadFill, AsInteger, SP::Shape, 2, StyleBox::Radials},
    {5, &P::Starfold_RadBands, AsInteger, SP::Shape, 3, StyleBox::Bands},
    {6, &P::Starfold_RadBFill, AsInteger, SP::Shape, 3, StyleBox::BandFill},
    {9, &P::Starfold_StdLevels, AsInteger, SP::Shape, 90, StyleBox::Levels},
    {8, &P::Starfold_QG_Force, AsSingle, SP::Shape, 90, StyleBox::Force},
    {90, &P::Starfold_GHW_Ratio, AsSingle, SP::Shape, 90, StyleBox::Ratio},
    {91, &P::Starfold_RadiusExp, AsSingle, SP::Shape, 91, StyleBox::RadiusExponent},
    {92, &P::Starfold_HeightExp, AsSingle, SP::Shape, 92, StyleBox::HeightExponent},
    {93, &P::Starfold_AngleTilt, AsSingle, SP::Shape, 93},
    {94, &P::Starfold_AngleTInc, AsSingle, SP::Shape, 94},
    {95, &P::Starfold_HueStart, AsInteger, SP::Shape, 96, StyleBox::HueWheel},
    {96, &P::Starfold_HWheelInc, AsSingle, SP::Shape, 96, StyleBox::HueWheel},
    {7, &P::Starfold_ColorMult, AsLong, SP::Shape, 7},
    {10, &P::Starfold_NewFreq, AsInteger, SP::Flares, 10},
    {11, &P::Starfold_NewFrames, AsInteger, SP::Flares, 11},
    {12, &P::Starfold_NewExtMult, AsInteger, SP::Flares, 12},
    {20, &P::Starfold_NovaFreq, AsInteger, SP::Flares, 20},
    {21, &P::Starfold_NovaFrames, AsInteger, SP::Flares, 21},
    {22, &P::Starfold_NovaExtMult, AsInteger, SP::Flares, 22},
    {30, &P::Starfold_PulsarFreq, AsInteger, SP::Flares, 30},
    {31, &P::Starfold_PulsarDepth, AsInteger, SP::Flares, 31},
    {32, &P::Starfold_PulsarCycles, AsInteger, SP::Flares, 32},
    {33, &P::Starfold_PulsarFrames, AsInteger, SP::Flares, 33},
    {34, &P::Starfold_PulsarMinExt, AsInteger, SP::Flares, 34},
    {35, &P::Starfold_PulsarMaxExt, AsInteger, SP::Flares, 35},
    {40, &P::Starfold_CometFreq, AsInteger, SP::Comets, 40},
    {41, &P::Starfold_CometStars, AsInteger, SP::Comets, 41},
    {42, &P::Starfold_CometOrbit, AsInteger, SP::Comets, 42},
    {43, &P::Starfold_CometSpeed, AsInteger, SP::Comets, 43},
    {44, &P::Starfold_CometSWind, AsInteger, SP::Comets, 44},
    {45, &P::Starfold_CometCPersist, AsSingle, SP::Comets, 45},
    {46, &P::Starfold_CometSPersist, AsSingle, SP::Comets, 46},
    {47, &P::Starfold_HWC_Start, AsInteger, SP::Comets, 47},
    {48, &P::Starfold_HWC_End, AsInteger, SP::Comets, 48},
    {49, &P::Starfold_HWC_Inc, AsSingle, SP::Comets, 49},
};

constexpr StarfoldRow kPixHueRows[] = {
    {0, &P::Starfold_HueRed, AsInteger, SP::Comets, 0},
    {1, &P::Starfold_HueGrn, AsInteger, SP::Comets, 1},
    {2, &P::Starfold_HueBlu, AsInteger, SP::Comets, 2},
    {3, &P::Starfold_HueBase, AsInteger, SP::Comets, 3},
    {4, &P::Starfold_HueBlend, AsInteger, SP::Comets, 4},
};

/// Boxes that edit another setting for a style.
struct StyleSetting {
  FoldStyle Style;
  Setting<P> Usual;  // `What` of the box's row
  Setting<P> What;
};
constexpr StyleSetting kStyleSettings[] = {
    {FoldStyle::Nebula, &P::Starfold_RadSegs, &P::Starfold_CP_Points},
    {FoldStyle::Nebula, &P::Starfold_RadFill, &P::Starfold_CP_Steps},
    {FoldStyle::Nebula, &P::Starfold_RadBands, &P::Starfold_CP_B_Pts},
    {FoldStyle::Nebula, &P::Starfold_RadBFill, &P::Starfold_CP_B_Exp},
    {FoldStyle::Nebula, &P::Starfold_AngleTilt, &P::Starfold_CP_B_Spd},
};

/// The captions of all styles that have none of their own (`StyleFacts::Captions`).
struct Caption {
  int Label;
  std::string_view Text;
};
constexpr Caption kCaptions[] = {
    {0, STARFOLDS_TEXT("Radius, Rotation (1, 0 - 30000):")},
    {1, STARFOLDS_TEXT("Distance (0 - 30000), Axial Plane:")},
    {2, STARFOLDS_TEXT("Radials (1 - 99), Fill % (0 - 100):")},
    {3, STARFOLDS_TEXT("Bands (1 - 99), Fill % (0 - 100):")},
    {90, STARFOLDS_TEXT("Starfold Height / Width Ratio (0.0 - 99.9):")},
    {91, STARFOLDS_TEXT("Radius Distribution Exponent (0.0 - 99.9):")},
    {92, STARFOLDS_TEXT("Height Distribution Exponent (0.0 - 99.9):")},
    {93, STARFOLDS_TEXT("Initial Tilt Angle in Degrees (0 - 360):")},
    {94, STARFOLDS_TEXT("Tilt Angle Increment in Degrees (0 - 360):")},
    {96, STARFOLDS_TEXT("Hue Wheel Start (0 - 359), Increment (0 - 360):")},
    {7, STARFOLDS_TEXT("Color Multiplier (0 - 30000):")},
};

constexpr std::string_view kPlanes[] = {"Y-Z", "X-Z"};
constexpr std::string_view kColorRules[] = {
    STARFOLDS_TEXT("Rotational Velocity"), STARFOLDS_TEXT("Rotational Velocity (Square Root)"),
    STARFOLDS_TEXT("Distance from Core"), STARFOLDS_TEXT("Distance from Core (Squared)"),
    STARFOLDS_TEXT("Black (Stars are Invisible)")};
constexpr std::string_view kShapes[] = {
    STARFOLDS_TEXT("Standard"),        STARFOLDS_TEXT("Top-Like"),
    STARFOLDS_TEXT("Spherical"),       STARFOLDS_TEXT("Conical"),
    STARFOLDS_TEXT("Hyperbolic"),      STARFOLDS_TEXT("Outer-Hyperbolic"),
    STARFOLDS_TEXT("Inner-Hyperbolic")};
constexpr std::string_view kPulsarShapes[] = {STARFOLDS_TEXT("Nova"), STARFOLDS_TEXT("Axes"),
                                              STARFOLDS_TEXT("Star"), STARFOLDS_TEXT("Sphere"),
                                              STARFOLDS_TEXT("Sphere-2")};

/// "New Star Frequency" and " (0 - 9999):", made from the setting that the label's row edits.
RowLabel LabelFromField(int label) {
  for (const StarfoldRow& row : kStarfoldRows) {
    if (row.Label != label) continue;
    const Field<StarfoldProfile>& field = FieldOf(row, 0);
    const NumberRange range = RangeOf(row, 0);
    const auto number = [](double value) { return NumberText(static_cast<Single>(value)); };
    return {field.Label, " (" + number(range.Low) + " - " + number(range.High) + "):"};
  }
  return {};
}

}  // namespace

std::string_view UniversePageName(int page) { return kUniversePages[page]; }

std::span<const UniverseRow> UniverseRows() { return kUniverseRows; }

NumberRange RangeOf(const UniverseRow& row) {
  const Field<UniverseSettings>& field = FieldOf(row.What);
  const double high = field.Odd.DialogHigh > 0 ? field.Odd.DialogHigh : field.High;
  return {row.Kind, field.Low, high};
}

std::string_view StarfoldPageName(int page) { return kStarfoldPages[page]; }

std::span<const StarfoldRow> StarfoldRows() { return kStarfoldRows; }
std::span<const StarfoldRow> PixHueRows() { return kPixHueRows; }

bool IsShown(const StarfoldRow& row, int style) {
  return !row.Group || FactsOf(static_cast<Integer>(style)).Boxes.Has(*row.Group);
}

const Field<StarfoldProfile>& FieldOf(const StarfoldRow& row, int style) {
  for (const StyleSetting& setting : kStyleSettings) {
    if (static_cast<int>(setting.Style) == style && setting.Usual == row.What) {
      return FieldOf(setting.What);
    }
  }
  return FieldOf(row.What);
}

NumberRange RangeOf(const StarfoldRow& row, int style) {
  const Field<StarfoldProfile>& field = FieldOf(row, style);
  if (field.Rule == RangeRule::Fixed) return {row.Kind, field.Low, field.High};
  const Limits limits = StyleLimits(field.Rule, static_cast<Integer>(style));
  return {row.Kind, limits.Low, limits.High};
}

RowLabel LabelOf(int label, int style) {
  for (const StyleCaption& caption : FactsOf(static_cast<Integer>(style)).Captions) {
    if (caption.Label == label) return {caption.Text, {}};
  }
  for (const Caption& caption : kCaptions) {
    if (caption.Label == label) return {caption.Text, {}};
  }
  return LabelFromField(label);
}

std::span<const std::string_view> StyleNames() {
  static const auto kNames = [] {
    std::array<std::string_view, kStyleCount> names;
    for (Integer style = 0; style < kStyleCount; ++style) names[style] = FactsOf(style).Name;
    return names;
  }();
  return kNames;
}
std::span<const std::string_view> PlaneNames() { return kPlanes; }
std::span<const std::string_view> ColorRuleNames() { return kColorRules; }
std::span<const std::string_view> ShapeNames() { return kShapes; }
std::span<const std::string_view> PulsarShapeNames() { return kPulsarShapes; }

}  // namespace starfolds

#include "properties/property_tables.h"

#include <array>

#include "numbers/text.h"

namespace starfolds {
namespace {

using enum NumberKind;
using UP = UniversePage;
using SP = StarfoldPage;

constexpr std::string_view kUniversePages[kUniversePageCount] = {
    "Universe Creation", "New / Ambient Star Creation", "Starfold Tour Characteristics",
    "Composite Starfolds", "Gravity between Starfolds"};

constexpr UniverseRow kUniverseRows[] = {
    {0, "Universe_Stars", AsLong, UP::Always},
    {1, "Universe_Starfold", AsInteger, UP::Always},
    {2, "Universe_STrail", AsInteger, UP::Always},
    {10, "Universe_Expand", AsLong, UP::Creation},
    {11, "Universe_ESteps", AsInteger, UP::Creation},
    {12, "Universe_Persist", AsSingle, UP::Creation},
    {14, "Universe_Damping", AsSingle, UP::Creation},
    {16, "Universe_HW_Start", AsInteger, UP::Creation},
    {17, "Universe_HW_End", AsInteger, UP::Creation},
    {18, "Universe_Recycle", AsInteger, UP::Creation},
    {20, "Universe_NewFreq", AsInteger, UP::NewAndAmbient},
    {21, "Universe_NewPctStEx", AsInteger, UP::NewAndAmbient},
    {40, "Universe_AmStar", AsInteger, UP::NewAndAmbient},
    {41, "Universe_AmPers", AsSingle, UP::NewAndAmbient},
    {42, "Universe_AmCAge", AsSingle, UP::NewAndAmbient},
    {43, "Universe_AmFrames", AsInteger, UP::NewAndAmbient},
    {44, "Universe_AmMaxExt", AsLong, UP::NewAndAmbient},
    {30, "Universe_GSteps", AsInteger, UP::Tour},
    {31, "Universe_GPCtrl", AsInteger, UP::Tour},
    {32, "Universe_GCCtrl", AsInteger, UP::Tour},
    {33, "Universe_DstCen", AsLong, UP::Tour},
    {34, "Universe_C_Ramp", AsInteger, UP::Tour},
    {50, "Universe_GravForce", AsLong, UP::Gravity},
    {51, "Universe_GravFrame", AsInteger, UP::Gravity},
};

constexpr std::string_view kStarfoldPages[kStarfoldPageCount] = {
    "Starfold Motion, Shape and Color Properties", "New, Nova and Pulsar Star Properties",
    "Comet and Color Properties"};

constexpr StarfoldRow kStarfoldRows[] = {
    {0, "Starfold_Radius", {}, AsLong, SP::Shape, 0},
    {1, "Starfold_Rotation", {}, AsLong, SP::Shape, 0},
    {2, "Starfold_Distance", {}, AsLong, SP::Shape, 1},
    {3, "Starfold_RadSegs", "Starfold_CP_Points", AsInteger, SP::Shape, 2, StyleBox::Radials},
    {4, "Starfold_RadFill", "Starfold_CP_Steps", AsInteger, SP::Shape, 2, StyleBox::Radials},
    {5, "Starfold_RadBands", "Starfold_CP_B_Pts", AsInteger, SP::Shape, 3, StyleBox::Bands},
    {6, "Starfold_RadBFill", "Starfold_CP_B_Exp", AsInteger, SP::Shape, 3, StyleBox::BandFill},
    {9, "Starfold_StdLevels", {}, AsInteger, SP::Shape, 90, StyleBox::Levels},
    {8, "Starfold_QG_Force", {}, AsSingle, SP::Shape, 90, StyleBox::Force},
    {90, "Starfold_GHW_Ratio", {}, AsSingle, SP::Shape, 90, StyleBox::Ratio},
    {91, "Starfold_RadiusExp", {}, AsSingle, SP::Shape, 91, StyleBox::RadiusExponent},
    {92, "Starfold_HeightExp", {}, AsSingle, SP::Shape, 92, StyleBox::HeightExponent},
    {93, "Starfold_AngleTilt", "Starfold_CP_B_Spd", AsSingle, SP::Shape, 93},
    {94, "Starfold_AngleTInc", {}, AsSingle, SP::Shape, 94},
    {95, "Starfold_HueStart", {}, AsInteger, SP::Shape, 96, StyleBox::HueWheel},
    {96, "Starfold_HWheelInc", {}, AsSingle, SP::Shape, 96, StyleBox::HueWheel},
    {7, "Starfold_ColorMult", {}, AsLong, SP::Shape, 7},
    {10, "Starfold_NewFreq", {}, AsInteger, SP::Flares, 10},
    {11, "Starfold_NewFrames", {}, AsInteger, SP::Flares, 11},
    {12, "Starfold_NewExtMult", {}, AsInteger, SP::Flares, 12},
    {20, "Starfold_NovaFreq", {}, AsInteger, SP::Flares, 20},
    {21, "Starfold_NovaFrames", {}, AsInteger, SP::Flares, 21},
    {22, "Starfold_NovaExtMult", {}, AsInteger, SP::Flares, 22},
    {30, "Starfold_PulsarFreq", {}, AsInteger, SP::Flares, 30},
    {31, "Starfold_PulsarDepth", {}, AsInteger, SP::Flares, 31},
    {32, "Starfold_PulsarCycles", {}, AsInteger, SP::Flares, 32},
    {33, "Starfold_PulsarFrames", {}, AsInteger, SP::Flares, 33},
    {34, "Starfold_PulsarMinExt", {}, AsInteger, SP::Flares, 34},
    {35, "Starfold_PulsarMaxExt", {}, AsInteger, SP::Flares, 35},
    {40, "Starfold_CometFreq", {}, AsInteger, SP::Comets, 40},
    {41, "Starfold_CometStars", {}, AsInteger, SP::Comets, 41},
    {42, "Starfold_CometOrbit", {}, AsInteger, SP::Comets, 42},
    {43, "Starfold_CometSpeed", {}, AsInteger, SP::Comets, 43},
    {44, "Starfold_CometSWind", {}, AsInteger, SP::Comets, 44},
    {45, "Starfold_CometCPersist", {}, AsSingle, SP::Comets, 45},
    {46, "Starfold_CometSPersist", {}, AsSingle, SP::Comets, 46},
    {47, "Starfold_HWC_Start", {}, AsInteger, SP::Comets, 47},
    {48, "Starfold_HWC_End", {}, AsInteger, SP::Comets, 48},
    {49, "Starfold_HWC_Inc", {}, AsSingle, SP::Comets, 49},
};

constexpr StarfoldRow kPixHueRows[] = {
    {0, "Starfold_HueRed", {}, AsInteger, SP::Comets, 0},
    {1, "Starfold_HueGrn", {}, AsInteger, SP::Comets, 1},
    {2, "Starfold_HueBlu", {}, AsInteger, SP::Comets, 2},
    {3, "Starfold_HueBase", {}, AsInteger, SP::Comets, 3},
    {4, "Starfold_HueBlend", {}, AsInteger, SP::Comets, 4},
};

/// The captions that all styles share but for those below.
struct Caption {
  int Label;
  std::string_view Text;
};
constexpr Caption kCaptions[] = {
    {0, "Radius, Rotation (1, 0 - 30000):"},
    {1, "Distance (0 - 30000), Axial Plane:"},
    {2, "Radials (1 - 99), Fill % (0 - 100):"},
    {3, "Bands (1 - 99), Fill % (0 - 100):"},
    {90, "Starfold Height / Width Ratio (0.0 - 99.9):"},
    {91, "Radius Distribution Exponent (0.0 - 99.9):"},
    {92, "Height Distribution Exponent (0.0 - 99.9):"},
    {93, "Initial Tilt Angle in Degrees (0 - 360):"},
    {94, "Tilt Angle Increment in Degrees (0 - 360):"},
    {96, "Hue Wheel Start (0 - 359), Increment (0 - 360):"},
    {7, "Color Multiplier (0 - 30000):"},
};

constexpr std::string_view kPlanes[] = {"Y-Z", "X-Z"};
constexpr std::string_view kColorRules[] = {
    "Rotational Velocity", "Rotational Velocity (Square Root)", "Distance from Core",
    "Distance from Core (Squared)", "Black (Stars are Invisible)"};
constexpr std::string_view kShapes[] = {"Standard",        "Top-Like",   "Spherical",
                                        "Conical",         "Hyperbolic", "Outer-Hyperbolic",
                                        "Inner-Hyperbolic"};
constexpr std::string_view kPulsarShapes[] = {"Nova", "Axes", "Star", "Sphere", "Sphere-2"};

/// "New Star Frequency (0 - 9999):", made from the setting that the label's row edits.
std::string LabelFromField(int label) {
  for (const StarfoldRow& row : kStarfoldRows) {
    if (row.Label != label) continue;
    const Field<StarfoldProfile>& field = FieldOf(row, 0);
    const NumberRange range = RangeOf(row, 0);
    const auto number = [](double value) { return NumberText(static_cast<Single>(value)); };
    return std::string(field.Label) + " (" + number(range.Low) + " - " + number(range.High) + "):";
  }
  return {};
}

}  // namespace

std::string_view UniversePageName(int page) { return kUniversePages[page]; }

std::span<const UniverseRow> UniverseRows() { return kUniverseRows; }

NumberRange RangeOf(const UniverseRow& row) {
  const Field<UniverseSettings>& field = *FindField(UniverseFields(), row.Name);
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
  const bool nebula = style == static_cast<int>(FoldStyle::Nebula) && !row.NebulaName.empty();
  return *FindField(ProfileFields(), nebula ? row.NebulaName : row.Name);
}

NumberRange RangeOf(const StarfoldRow& row, int style) {
  const Field<StarfoldProfile>& field = FieldOf(row, style);
  if (field.Rule == RangeRule::Fixed) return {row.Kind, field.Low, field.High};
  const Limits limits = StyleLimits(field.Rule, static_cast<Integer>(style));
  return {row.Kind, limits.Low, limits.High};
}

std::string LabelOf(int label, int style) {
  for (const StyleCaption& caption : FactsOf(static_cast<Integer>(style)).Captions) {
    if (caption.Label == label) return std::string(caption.Text);
  }
  for (const Caption& caption : kCaptions) {
    if (caption.Label == label) return std::string(caption.Text);
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

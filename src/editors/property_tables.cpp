#include "editors/property_tables.h"

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

constexpr Styles kAll{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
constexpr Styles kBelow8{0, 1, 2, 3, 4, 5, 6, 7};

constexpr StarfoldRow kStarfoldRows[] = {
    {0, "Starfold_Radius", {}, AsLong, SP::Shape, 0, kAll},
    {1, "Starfold_Rotation", {}, AsLong, SP::Shape, 0, kAll},
    {2, "Starfold_Distance", {}, AsLong, SP::Shape, 1, kAll},
    {3, "Starfold_RadSegs", "Starfold_CP_Points", AsInteger, SP::Shape, 2, kBelow8},
    {4, "Starfold_RadFill", "Starfold_CP_Steps", AsInteger, SP::Shape, 2, kBelow8},
    {5, "Starfold_RadBands", "Starfold_CP_B_Pts", AsInteger, SP::Shape, 3,
     Styles{0, 1, 2, 4, 5, 6, 7}},
    {6, "Starfold_RadBFill", "Starfold_CP_B_Exp", AsInteger, SP::Shape, 3, Styles{0, 4, 5, 6, 7}},
    {9, "Starfold_StdLevels", {}, AsInteger, SP::Shape, 90, Styles{0}},
    {8, "Starfold_QG_Force", {}, AsSingle, SP::Shape, 90, Styles{5, 6}},
    {90, "Starfold_GHW_Ratio", {}, AsSingle, SP::Shape, 90, kBelow8},
    {91, "Starfold_RadiusExp", {}, AsSingle, SP::Shape, 91, Styles{0, 1, 4, 5, 6, 7}},
    {92, "Starfold_HeightExp", {}, AsSingle, SP::Shape, 92, Styles{0, 1, 4, 5, 6}},
    {93, "Starfold_AngleTilt", "Starfold_CP_B_Spd", AsSingle, SP::Shape, 93, kAll},
    {94, "Starfold_AngleTInc", {}, AsSingle, SP::Shape, 94, kAll},
    {95, "Starfold_HueStart", {}, AsInteger, SP::Shape, 96, Styles{0, 1, 5, 6}},
    {96, "Starfold_HWheelInc", {}, AsSingle, SP::Shape, 96, Styles{0, 1, 5, 6}},
    {7, "Starfold_ColorMult", {}, AsLong, SP::Shape, 7, kAll},
    {10, "Starfold_NewFreq", {}, AsInteger, SP::Flares, 10, kAll},
    {11, "Starfold_NewFrames", {}, AsInteger, SP::Flares, 11, kAll},
    {12, "Starfold_NewExtMult", {}, AsInteger, SP::Flares, 12, kAll},
    {20, "Starfold_NovaFreq", {}, AsInteger, SP::Flares, 20, kAll},
    {21, "Starfold_NovaFrames", {}, AsInteger, SP::Flares, 21, kAll},
    {22, "Starfold_NovaExtMult", {}, AsInteger, SP::Flares, 22, kAll},
    {30, "Starfold_PulsarFreq", {}, AsInteger, SP::Flares, 30, kAll},
    {31, "Starfold_PulsarDepth", {}, AsInteger, SP::Flares, 31, kAll},
    {32, "Starfold_PulsarCycles", {}, AsInteger, SP::Flares, 32, kAll},
    {33, "Starfold_PulsarFrames", {}, AsInteger, SP::Flares, 33, kAll},
    {34, "Starfold_PulsarMinExt", {}, AsInteger, SP::Flares, 34, kAll},
    {35, "Starfold_PulsarMaxExt", {}, AsInteger, SP::Flares, 35, kAll},
    {40, "Starfold_CometFreq", {}, AsInteger, SP::Comets, 40, kAll},
    {41, "Starfold_CometStars", {}, AsInteger, SP::Comets, 41, kAll},
    {42, "Starfold_CometOrbit", {}, AsInteger, SP::Comets, 42, kAll},
    {43, "Starfold_CometSpeed", {}, AsInteger, SP::Comets, 43, kAll},
    {44, "Starfold_CometSWind", {}, AsInteger, SP::Comets, 44, kAll},
    {45, "Starfold_CometCPersist", {}, AsSingle, SP::Comets, 45, kAll},
    {46, "Starfold_CometSPersist", {}, AsSingle, SP::Comets, 46, kAll},
    {47, "Starfold_HWC_Start", {}, AsInteger, SP::Comets, 47, kAll},
    {48, "Starfold_HWC_End", {}, AsInteger, SP::Comets, 48, kAll},
    {49, "Starfold_HWC_Inc", {}, AsSingle, SP::Comets, 49, kAll},
};

constexpr StarfoldRow kPixHueRows[] = {
    {0, "Starfold_HueRed", {}, AsInteger, SP::Comets, 0, kAll},
    {1, "Starfold_HueGrn", {}, AsInteger, SP::Comets, 1, kAll},
    {2, "Starfold_HueBlu", {}, AsInteger, SP::Comets, 2, kAll},
    {3, "Starfold_HueBase", {}, AsInteger, SP::Comets, 3, kAll},
    {4, "Starfold_HueBlend", {}, AsInteger, SP::Comets, 4, kAll},
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

struct StyleCaption {
  int Style;
  int Label;
  std::string_view Text;
};
constexpr StyleCaption kStyleCaptions[] = {
    {0, 90, "Levels (1-10), H/W Ratio (0.0 - 99.9):"},
    {1, 2, "Points (1 - 99), Scale % (0 - 100):"},
    {1, 3, "Rotation Angle Degrees (0 - 360):"},
    {2, 2, "Vertices (4 - 10), Scale % (0 - 100):"},
    {2, 3, "Linear Iteration Levels (1 - 99):"},
    {3, 2, "Points (4 - 10), Scale % (0 - 100):"},
    {4, 2, "C-Points (1 - 20), Steps (0 - 9999):"},
    {4, 3, "Bias Points (1 - 99), Span (0 - 100):"},
    {4, 91, "Expansion from Spline Path (0.0 - 99.9):"},
    {4, 92, "Solar Wind Magnitude (0.0 - 99.9):"},
    {4, 93, "Bias Point Travel Speed (0 - 999):"},
    {5, 90, "Quasar Speed, H/W Ratio (0.0 - 99.9):"},
    {6, 90, "Gravity Force, H/W Ratio (0.0 - 99.9):"},
    {7, 0, "Expansion, Rotation (1, 0 - 30000):"},
    {7, 3, "Waves (1 - 99), Persist (0 - 999):"},
    {7, 91, "Particle Wave Angle Increment (0.0 - 99.9):"},
};

constexpr std::string_view kStyles[kStyleCount] = {
    "Standard:  Stellar Rotation about Axis",
    "I.F.S.:  Single Point Attractor",
    "I.F.S.:  Nested Geometric Wireframe",
    "I.F.S.:  Space Filling Fractal",
    "Nebula:  Particle Ribbons",
    "Quasar:  Stars emitted from Core",
    "Graviton:  Stars reflected through Core",
    "Starwave:  Attenuated Particle Waves",
    "User Defined:  Iterated Function Systems",
    "User Defined:  Molecular Structures",
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
  for (const StyleCaption& caption : kStyleCaptions) {
    if (caption.Style == style && caption.Label == label) return std::string(caption.Text);
  }
  for (const Caption& caption : kCaptions) {
    if (caption.Label == label) return std::string(caption.Text);
  }
  return LabelFromField(label);
}

std::string_view BodyEditorCaption(int style) {
  return style == static_cast<int>(FoldStyle::Molecule)
             ? "User Defined Molecular Structure..."
             : "User Defined Iterated Function System...";
}

std::string_view OtherColorCaption(int style) {
  return style == static_cast<int>(FoldStyle::Nebula)
             ? "Nebula Hue Wheel Cycling Offset  (0 - 30000):"
             : "Atomic Sphere Color Blending  (0 - 30000):";
}

std::span<const std::string_view> StyleNames() { return kStyles; }
std::span<const std::string_view> PlaneNames() { return kPlanes; }
std::span<const std::string_view> ColorRuleNames() { return kColorRules; }
std::span<const std::string_view> ShapeNames() { return kShapes; }
std::span<const std::string_view> PulsarShapeNames() { return kPulsarShapes; }

}  // namespace starfolds

#include "settings/styles.h"

#include <algorithm>

#include "numbers/conversions.h"
#include "platform/user_text.h"

namespace starfolds {
namespace {

using enum StyleBox;

constexpr StyleCaption kStandardCaptions[] = {
    {90, STARFOLDS_TEXT("Levels (1-10), H/W Ratio (0.0 - 99.9):")}};
constexpr StyleCaption kIfsPointCaptions[] = {
    {2, STARFOLDS_TEXT("Points (1 - 99), Scale % (0 - 100):")},
    {3, STARFOLDS_TEXT("Rotation Angle Degrees (0 - 360):")}};
constexpr StyleCaption kWireframeCaptions[] = {
    {2, STARFOLDS_TEXT("Vertices (4 - 10), Scale % (0 - 100):")},
    {3, STARFOLDS_TEXT("Linear Iteration Levels (1 - 99):")}};
constexpr StyleCaption kFractalCaptions[] = {
    {2, STARFOLDS_TEXT("Points (4 - 10), Scale % (0 - 100):")}};
constexpr StyleCaption kNebulaCaptions[] = {
    {2, STARFOLDS_TEXT("C-Points (1 - 20), Steps (0 - 9999):")},
    {3, STARFOLDS_TEXT("Bias Points (1 - 99), Span (0 - 100):")},
    {91, STARFOLDS_TEXT("Expansion from Spline Path (0.0 - 99.9):")},
    {92, STARFOLDS_TEXT("Solar Wind Magnitude (0.0 - 99.9):")},
    {93, STARFOLDS_TEXT("Bias Point Travel Speed (0 - 999):")}};
constexpr StyleCaption kQuasarCaptions[] = {
    {90, STARFOLDS_TEXT("Quasar Speed, H/W Ratio (0.0 - 99.9):")}};
constexpr StyleCaption kGravitonCaptions[] = {
    {90, STARFOLDS_TEXT("Gravity Force, H/W Ratio (0.0 - 99.9):")}};
constexpr StyleCaption kStarwaveCaptions[] = {
    {0, STARFOLDS_TEXT("Expansion, Rotation (1, 0 - 30000):")},
    {3, STARFOLDS_TEXT("Waves (1 - 99), Persist (0 - 999):")},
    {91, STARFOLDS_TEXT("Particle Wave Angle Increment (0.0 - 99.9):")}};

constexpr std::array<StyleFacts, kStyleCount> kStyles{{
    {.Style = FoldStyle::Standard,
     .Name = STARFOLDS_TEXT("Standard:  Stellar Rotation about Axis"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .NestedLevels = true,
     .Boxes = {Radials, Bands, BandFill, Levels, Ratio, RadiusExponent, HeightExponent, HueWheel,
               Shape, ColorRule},
     .Captions = kStandardCaptions},
    {.Style = FoldStyle::IfsPoint,
     .Name = STARFOLDS_TEXT("I.F.S.:  Single Point Attractor"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {0, 360},
     .RadBFill = {0, 100},
     .IsIfs = true,
     .Boxes = {Radials, Bands, Ratio, RadiusExponent, HeightExponent, HueWheel, Shape, ColorRule},
     .Captions = kIfsPointCaptions},
    {.Style = FoldStyle::IfsWireframe,
     .Name = STARFOLDS_TEXT("I.F.S.:  Nested Geometric Wireframe"),
     .RadSegs = {4, 10},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .IsIfs = true,
     .Boxes = {Radials, Bands, Ratio, ColorRule},
     .Captions = kWireframeCaptions},
    {.Style = FoldStyle::IfsFractal,
     .Name = STARFOLDS_TEXT("I.F.S.:  Space Filling Fractal"),
     .RadSegs = {4, 10},
     .RadFill = {0, 100},
     .RadBands = {0, 100},
     .RadBFill = {0, 100},
     .IsIfs = true,
     .Boxes = {Radials, Ratio, ColorRule},
     .Captions = kFractalCaptions},
    {.Style = FoldStyle::Nebula,
     .Name = STARFOLDS_TEXT("Nebula:  Particle Ribbons"),
     .RadSegs = {1, 20},
     .RadFill = {0, 9999},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .RunMotion = Motion::Drift,
     .Hues = HueCycling::IfNebulaAdvances,
     .Boxes = {Radials, Bands, BandFill, Ratio, RadiusExponent, HeightExponent, Spline},
     .Captions = kNebulaCaptions,
     .OwnColorRule = 5,
     .OwnColorCaption = STARFOLDS_TEXT("Nebula Hue Wheel Cycling Offset  (0 - 30000):")},
    {.Style = FoldStyle::Quasar,
     .Name = STARFOLDS_TEXT("Quasar:  Stars emitted from Core"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .RunMotion = Motion::Drift,
     .ForceUnit = 0.01,
     .Boxes = {Radials, Bands, BandFill, Force, Ratio, RadiusExponent, HeightExponent, HueWheel,
               Shape, ColorRule},
     .Captions = kQuasarCaptions},
    {.Style = FoldStyle::Graviton,
     .Name = STARFOLDS_TEXT("Graviton:  Stars reflected through Core"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .RunMotion = Motion::Attract,
     .Boxes = {Radials, Bands, BandFill, Force, Ratio, RadiusExponent, HeightExponent, HueWheel,
               Shape, ColorRule},
     .Captions = kGravitonCaptions},
    {.Style = FoldStyle::Starwave,
     .Name = STARFOLDS_TEXT("Starwave:  Attenuated Particle Waves"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 999},
     .RunMotion = Motion::Wave,
     .Hues = HueCycling::Never,
     .Boxes = {Radials, Bands, BandFill, Ratio, RadiusExponent, ColorRule},
     .Captions = kStarwaveCaptions},
    {.Style = FoldStyle::UserIfs,
     .Name = STARFOLDS_TEXT("User Defined:  Iterated Function Systems"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .IsIfs = true,
     .Boxes = {ColorRule, BodyEditor},
     .BodyEditorCaption = STARFOLDS_TEXT("User Defined Iterated Function System...")},
    {.Style = FoldStyle::Molecule,
     .Name = STARFOLDS_TEXT("User Defined:  Molecular Structures"),
     .RadSegs = {1, 99},
     .RadFill = {0, 100},
     .RadBands = {1, 99},
     .RadBFill = {0, 100},
     .Boxes = {BodyEditor},
     .OwnColorRule = 6,
     .OwnColorCaption = STARFOLDS_TEXT("Atomic Sphere Color Blending  (0 - 30000):"),
     .BodyEditorCaption = STARFOLDS_TEXT("User Defined Molecular Structure...")},
}};
static_assert(IsInStyleOrder(kStyles));
static_assert(std::all_of(kStyles.begin(), kStyles.end(),
                          [](const StyleFacts& facts) { return facts.IsComplete(); }));

}  // namespace

const StyleFacts& FactsOf(Integer style) {
  return kStyles[static_cast<std::size_t>(ClampTo<int>(style, 0, kStyleCount - 1))];
}

}  // namespace starfolds

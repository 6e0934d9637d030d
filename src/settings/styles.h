// The styles of bodies: what settings, frame loop and dialogs need to know of each. One row per
// `FoldStyle`; the routines of the styles are in bodies/styles.h.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>

#include "settings/records.h"

namespace starfolds {

/// The range of a number, both ends included.
struct Limits {
  double Low = 0;
  double High = 0;
};

/// How a star moves in a frame.
enum class Motion : Integer { Rotate, Drift, Attract, Wave };

/// When the hues of a style's stars advance from frame to frame (those of black stars never do).
enum class HueCycling { Always, IfNebulaAdvances, Never };

/// The groups of controls that the starfold page shows for some styles only.
enum class StyleBox : unsigned {
  Radials,         // `Starfold_RadSegs`, `Starfold_RadFill`; of a Nebula its control points
  Bands,           // `Starfold_RadBands`
  BandFill,        // `Starfold_RadBFill`
  Levels,          // `Starfold_StdLevels`, the button of the levels editor
  Force,           // `Starfold_QG_Force`
  Ratio,           // `Starfold_GHW_Ratio`
  RadiusExponent,  // `Starfold_RadiusExp`
  HeightExponent,  // `Starfold_HeightExp`
  HueWheel,        // `Starfold_HueStart`, `Starfold_HWheelInc`
  Shape,           // `Starfold_Profile` and its picture
  ColorRule,       // `Starfold_ColorComp`
  Spline,          // `Starfold_CP_Close`, `Starfold_CP_AdvHW`
  BodyEditor,      // the button of the IFS or the molecule editor
};

class StyleBoxes {
 public:
  constexpr StyleBoxes(std::initializer_list<StyleBox> boxes) {
    for (const StyleBox box : boxes) bits_ |= 1U << static_cast<unsigned>(box);
  }
  constexpr bool Has(StyleBox box) const { return (bits_ >> static_cast<unsigned>(box) & 1U) != 0; }

 private:
  unsigned bits_ = 0;
};

/// The caption of an element of `lblStarfold` for one style.
struct StyleCaption {
  int Label;
  std::string_view Text;
};

struct StyleFacts {
  FoldStyle Style;
  std::string_view Name;  // in `cboFoldStyle`
  Limits RadSegs, RadFill, RadBands, RadBFill;

  // The frame loop.
  Motion RunMotion = Motion::Rotate;
  bool IsIfs = false;         // an iterated function system
  bool NestedLevels = false;  // has `Starfold_StdLevels` levels; other styles have one
  double ForceUnit = 0.0001;  // `RunForce` for a `Starfold_QG_Force` of 1
  HueCycling Hues = HueCycling::Always;

  // The dialogs.
  StyleBoxes Boxes;
  std::span<const StyleCaption> Captions = {};
  std::optional<Integer> OwnColorRule = {};  // the `Starfold_ColorComp` that the page stores
  std::string_view OwnColorCaption = {};  // of `Starfold_ColorMult`, with a colour rule of its own
  std::string_view BodyEditorCaption = {};  // of the button that `StyleBox::BodyEditor` shows

  constexpr bool IsComplete() const {
    return !Name.empty() && RadSegs.High > 0 && RadFill.High > 0 && RadBands.High > 0 &&
           RadBFill.High > 0 && OwnColorRule.has_value() != OwnColorCaption.empty() &&
           Boxes.Has(StyleBox::BodyEditor) != BodyEditorCaption.empty();
  }
};

/// The row of a style. `style` is clamped to the valid styles.
const StyleFacts& FactsOf(Integer style);
inline const StyleFacts& FactsOf(FoldStyle style) { return FactsOf(static_cast<Integer>(style)); }

/// Whether row i of a table of styles is that of style i, for each style.
template <class Row, std::size_t Size>
constexpr bool IsInStyleOrder(const std::array<Row, Size>& rows) {
  for (std::size_t i = 0; i < Size; ++i) {
    if (rows[i].Style != static_cast<FoldStyle>(i)) return false;
  }
  return Size == kStyleCount;
}

}  // namespace starfolds

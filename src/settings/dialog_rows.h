// The rows of the properties dialog: which setting each element of a control array edits, on which
// page, and under which caption each style shows it. No widgets: other editors of the settings have
// the same pages.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "settings/fields.h"
#include "settings/number_range.h"
#include "settings/styles.h"

namespace starfolds {

// --- The universe view ---

/// The pages of `cboUniExtras`; `Always` is in `fraUniverseProps`.
enum class UniversePage { Creation, NewAndAmbient, Tour, Composites, Gravity, Always };
inline constexpr int kUniversePageCount = 5;
std::string_view UniversePageName(int page);

/// An element of `txtUni`. Neighbours with the same label share a line.
struct UniverseRow {
  int Index;
  Setting<UniverseSettings> What;
  NumberKind Kind;
  UniversePage Page;
};
std::span<const UniverseRow> UniverseRows();
NumberRange RangeOf(const UniverseRow& row);

// --- The starfold view ---

/// The pages of `cboFoldExtras`.
enum class StarfoldPage { Shape, Flares, Comets };
inline constexpr int kStarfoldPageCount = 3;
std::string_view StarfoldPageName(int page);

/// A set of styles, one bit each.
class Styles {
 public:
  constexpr Styles(std::initializer_list<int> styles) {
    for (const int style : styles) bits_ |= 1U << static_cast<unsigned>(style);
  }
  static constexpr Styles AllBut(FoldStyle style) {
    Styles styles{static_cast<int>(style)};
    styles.bits_ = ~styles.bits_;
    return styles;
  }
  constexpr bool Has(int style) const { return (bits_ >> static_cast<unsigned>(style) & 1U) != 0; }

 private:
  unsigned bits_ = 0;
};

/// An element of `txtStarfold`, or of `txtPixHue`.
struct StarfoldRow {
  int Index;
  Setting<StarfoldProfile> What;  // of most styles; `FieldOf` knows the exceptions
  NumberKind Kind;
  StarfoldPage Page;
  int Label;                           // of `lblStarfold`; rows with the same label share a line
  std::optional<StyleBox> Group = {};  // shown for the styles that have this group; else for all
};
bool IsShown(const StarfoldRow& row, int style);
std::span<const StarfoldRow> StarfoldRows();
std::span<const StarfoldRow> PixHueRows();

/// The setting that the box edits for a style.
const Field<StarfoldProfile>& FieldOf(const StarfoldRow& row, int style);
/// The range of the box: that of the setting that it edits for this style.
NumberRange RangeOf(const StarfoldRow& row, int style);

/// The caption of `lblStarfold(label)` for a style.
struct RowLabel {
  std::string_view Text;  // marked for translation
  std::string Range;      // behind it; empty if the text has the range
};
RowLabel LabelOf(int label, int style);

// --- The lists ---

std::span<const std::string_view> StyleNames();        // cboFoldStyle
std::span<const std::string_view> PlaneNames();        // cboFoldPlane
std::span<const std::string_view> ColorRuleNames();    // cboFoldColor
std::span<const std::string_view> ShapeNames();        // cboFoldProfile
std::span<const std::string_view> PulsarShapeNames();  // cboPulsarShape

}  // namespace starfolds

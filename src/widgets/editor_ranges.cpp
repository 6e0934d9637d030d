#include "widgets/editor_ranges.h"

#include <algorithm>
#include <iterator>

namespace starfolds {
namespace {

using enum NumberKind;
using enum RangedEditor;
using P = StarfoldProfile;

/// A setting whose range in an editor differs from the field table.
struct Exception {
  RangedEditor Editor;
  Setting<P> What;
  NumberRange Range;
};

constexpr Exception kExceptions[] = {
    // The field table has no range for these: stored values are used as they are.
    {Levels, &P::Starfold_StdLevDRad, {AsLong, 1, 30000}},
    {Levels, &P::Starfold_StdLevHSca, {AsSingle, 0, 99.9}},
    // From a distance of 0 the preview would show the levels from within the core.
    {Levels, &P::Starfold_Distance, {AsLong, 1, 30000}},
    // The caption of the three boxes says 0; `ClampProfile` makes it 1.
    {Themed, &P::Starfold_Radius, {AsLong, 0, 30000}},
    // The field table has a range for each style; the copy is for profiles of any style.
    {PropertyCopy, &P::Starfold_RadSegs, {AsInteger, 1, 99}},
    {PropertyCopy, &P::Starfold_RadFill, {AsInteger, 0, 100}},
    {PropertyCopy, &P::Starfold_RadBands, {AsInteger, 1, 99}},
    {PropertyCopy, &P::Starfold_RadBFill, {AsInteger, 0, 100}},
    // Whole degrees, of which 360 is the same as 0.
    {PropertyCopy, &P::Starfold_AngleTilt, {AsInteger, 0, 359}},
    // The copy has always shown the range of the nova's frames; `ClampProfile` makes more than 99
    // frames 99.
    {PropertyCopy, &P::Starfold_NewFrames, {AsInteger, 1, 999}},
    // The entry copies nothing; its range has always begun at 1.
    {PropertyCopy, &P::Starfold_CP_Steps, {AsInteger, 1, 9999}},
};

}  // namespace

NumberRange RangeIn(RangedEditor editor, Setting<StarfoldProfile> setting) {
  const auto is = [&](const Exception& exception) {
    return exception.Editor == editor && exception.What == setting;
  };
  const auto* const found = std::find_if(std::begin(kExceptions), std::end(kExceptions), is);
  return found != std::end(kExceptions) ? found->Range : RangeOf(FieldOf(setting));
}

}  // namespace starfolds

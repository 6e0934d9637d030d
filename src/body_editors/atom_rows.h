// Atoms as rows of text in fixed columns, the entries of the molecule editor's list.
#pragma once

#include <string>
#include <string_view>

#include "platform/user_text.h"
#include "settings/records.h"

namespace starfolds {

inline constexpr int kAtomStructureCount = 12;

/// The heading above the rows, aligned with their columns.
inline constexpr std::string_view kAtomRowHeading =
    STARFOLDS_TEXT("Element Name(s)   Type        XLoc  YLoc  ZLoc  Radius  SymRad");
/// The widths of the first two columns, in characters.
inline constexpr int kAtomNameWidth = 18;
inline constexpr int kAtomStructureWidth = 10;

/// The name of structure 0 to 11, padded with blanks to ten characters.
std::string_view AtomStructureName(int structure);

/// `FormatAtomRow`: numbers are clamped to the width of their columns.
std::string FormatAtomRow(const AtomPoint& atom);

/// Parses a row by its columns and clamps every number to its range. Missing values are those of a
/// default atom: hydrogen, a single point.
AtomPoint ReadAtomRow(std::string_view row);

}  // namespace starfolds

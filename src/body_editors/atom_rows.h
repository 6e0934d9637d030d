// Atoms as rows of text in fixed columns, the way in which the molecule editor lists them.
#pragma once

#include <string>
#include <string_view>

#include "settings/records.h"

namespace starfolds {

inline constexpr int kAtomStructureCount = 12;

/// The heading above the rows: each name stands over its column.
inline constexpr std::string_view kAtomRowHeading =
    "Element Name(s)   Type        XLoc  YLoc  ZLoc  Radius  SymRad";

/// The name of structure 0 to 11, ten characters with its blanks.
std::string_view AtomStructureName(int structure);

/// `FormatAtomRow`: numbers that no column has room for are held to it.
std::string FormatAtomRow(const AtomPoint& atom);

/// Reads a row back from its columns, every number held to its range. What a row does not tell is
/// as in an atom that nobody has set: hydrogen, a single point.
AtomPoint ReadAtomRow(std::string_view row);

}  // namespace starfolds

// The format of a profile's points and atoms in the stored tree and in templates: one value for
// each,
// "*" and the numbers in columns of five characters.
#pragma once

#include <functional>
#include <string>

#include "settings/records.h"

namespace starfolds {

// Their sub-sections, below that of the profile.
inline constexpr char kIfsSection[] = "\\IFS";
inline constexpr char kAtomSection[] = "\\ATOMIC";

/// Returns the text under a key; empty if there is none.
using ReadPacked = std::function<std::string(const std::string& key)>;
using WritePacked = std::function<void(const std::string& key, const std::string& packed)>;

/// Read the number of points or atoms that the profile's count says, at most the size of the array.
/// Blanks in a column are ignored; a missing or empty column is 0. `Atom_Count` is derived from the
/// structure.
void UnpackIfsPoints(StarfoldProfile& profile, const ReadPacked& read);
void UnpackAtoms(StarfoldProfile& profile, const ReadPacked& read);

/// Write the points or atoms in use. The profile must have been clamped: a negative number could
/// need six characters and would shift the columns after it.
void PackIfsPoints(const StarfoldProfile& profile, const WritePacked& write);
void PackAtoms(const StarfoldProfile& profile, const WritePacked& write);

}  // namespace starfolds

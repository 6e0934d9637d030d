// The points and atoms of a profile in the stored tree and in templates: one value each, "*" and
// the numbers in columns of five characters.
#pragma once

#include <functional>
#include <string>

#include "settings/records.h"

namespace starfolds {

// The sub-sections that hold them, below the profile's own.
inline constexpr char kIfsSection[] = "\\IFS";
inline constexpr char kAtomSection[] = "\\ATOMIC";

/// Returns the text under a key; empty if there is none.
using ReadPacked = std::function<std::string(const std::string& key)>;
using WritePacked = std::function<void(const std::string& key, const std::string& packed)>;

/// Fill as many points or atoms as the profile's count says and the record has room for. Blanks in
/// a column vanish; a missing or empty column is 0. The points of an atom follow from its
/// structure.
void UnpackIfsPoints(StarfoldProfile& profile, const ReadPacked& read);
void UnpackAtoms(StarfoldProfile& profile, const ReadPacked& read);

/// Write the points or atoms in use. The profile must have been clamped: a negative number could
/// need six characters and would shift the rest.
void PackIfsPoints(const StarfoldProfile& profile, const WritePacked& write);
void PackAtoms(const StarfoldProfile& profile, const WritePacked& write);

}  // namespace starfolds

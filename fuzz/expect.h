// Expectations of a fuzz target. A failed expectation aborts the process, which the fuzzer reports.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include "settings/fields.h"

namespace starfolds {

inline void Expect(bool truth, const char* what) {
  if (truth) return;
  std::fprintf(stderr, "expected: %s\n", what);
  std::abort();
}

template <class Record>
std::string TextsOf(const Record& record, std::span<const Field<Record>> fields) {
  std::string texts;
  for (const Field<Record>& field : fields) texts += FieldText(record, field) + "\n";
  return texts;
}

/// All stored values of a record.
inline std::string TextsOf(const UniverseSettings& universe) {
  return TextsOf(universe, UniverseFields());
}
inline std::string TextsOf(const AdvancedSettings& advanced) {
  return TextsOf(advanced, AdvancedFields());
}
inline std::string TextsOf(const CompositeProfile& composite) {
  std::string texts = TextsOf(composite, CompositeFields());
  for (int i = 0; i < composite.MemberCount(); ++i) {
    texts += std::to_string(composite.CompFold_Type[i]) + "\n";
  }
  return texts;
}
inline std::string TextsOf(const StarfoldProfile& profile) {
  Expect(profile.Starfold_IFS_Points >= 0 && profile.Starfold_IFS_Points <= kMaxIfsPoints,
         "points have room");
  Expect(profile.Starfold_Atoms >= 0 && profile.Starfold_Atoms <= kMaxAtoms, "atoms have room");
  std::string texts = TextsOf(profile, ProfileFields());
  for (int i = 0; i < profile.Starfold_IFS_Points; ++i) {
    texts += TextsOf(profile.IFS.Points[i], IfsPointFields());
  }
  for (int i = 0; i < profile.Starfold_Atoms; ++i) {
    texts += TextsOf(profile.Atom.Atoms[i], AtomPointFields());
  }
  return texts;
}

/// Clamping a clamped record changes nothing.
template <class Record>
void ExpectClamped(const Record& record, void (*clamp)(Record&)) {
  Record clamped = record;
  clamp(clamped);
  Expect(TextsOf(clamped) == TextsOf(record), "a record is clamped");
}

}  // namespace starfolds

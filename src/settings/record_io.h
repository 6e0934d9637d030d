// The layout of profiles and composites, which is the same in the stored tree and in templates: the
// fields, then the points and atoms or the members, as many as a field says.
//
// `Section` is one section of either. It provides
//   void Read(const Field<Record>&, Record&) const;         keeps the default if invalid
//   void Write(const Field<Record>&, const Record&) const;
//   std::string ReadText(const std::string& key) const;     empty if there is none
//   void WriteText(const std::string& key, const std::string&) const;
//   Integer ReadMember(int i) const;
//   void WriteMember(int i, Integer) const;
//   const FieldOrder<StarfoldProfile>& ProfileOrder() const;  in which a profile is written
//   Section Below(const char* sub) const;
//   void Drop() const;                                      before it is written
#pragma once

#include "settings/field_order.h"
#include "settings/fields.h"
#include "settings/packing.h"

namespace starfolds {

template <class Section, class Record>
void ReadRecord(const Section& from, std::span<const Field<Record>> fields, Record& record) {
  for (const Field<Record>& field : fields) from.Read(field, record);
}

template <class Section, class Record>
void WriteRecord(const Section& to, std::span<const Field<Record>> fields, const Record& record) {
  for (const Field<Record>& field : fields) to.Write(field, record);
}

template <class Section, class Record>
void WriteRecord(const Section& to, const FieldOrder<Record>& order, const Record& record) {
  for (const Field<Record>* field : order) to.Write(*field, record);
}

/// Unclamped. `index` gives the default name.
template <class Section>
StarfoldProfile ReadProfile(const Section& from, int index) {
  StarfoldProfile profile;
  profile.UniFoldName = FormatProfileName(index);
  ReadRecord(from, ProfileFields(), profile);
  if (profile.Starfold_IFS_Points != 0) {
    const Section points = from.Below(kIfsSection);
    ReadRecord(points, IfsCenterFields(), profile.IFS);
    UnpackIfsPoints(profile, [&](const std::string& key) { return points.ReadText(key); });
  }
  if (profile.Starfold_Atoms != 0) {
    const Section atoms = from.Below(kAtomSection);
    ReadRecord(atoms, AtomCenterFields(), profile.Atom);
    UnpackAtoms(profile, [&](const std::string& key) { return atoms.ReadText(key); });
  }
  return profile;
}

/// The profile must have been clamped.
template <class Section>
void WriteProfile(const Section& to, const StarfoldProfile& profile) {
  WriteRecord(to, to.ProfileOrder(), profile);
  const auto write = [](const Section& section) {
    return [&section](const std::string& key, const std::string& packed) {
      section.WriteText(key, packed);
    };
  };
  const Section points = to.Below(kIfsSection);
  points.Drop();
  if (profile.Starfold_IFS_Points > 0) {
    WriteRecord(points, IfsCenterFields(), profile.IFS);
    PackIfsPoints(profile, write(points));
  }
  const Section atoms = to.Below(kAtomSection);
  atoms.Drop();
  if (profile.Starfold_Atoms > 0) {
    WriteRecord(atoms, AtomCenterFields(), profile.Atom);
    PackAtoms(profile, write(atoms));
  }
}

/// Unclamped. `index` gives the default name.
template <class Section>
CompositeProfile ReadComposite(const Section& from, int index) {
  CompositeProfile composite;
  composite.CompFoldName = FormatCompositeName(index);
  ReadRecord(from, CompositeFields(), composite);
  for (int i = 0; i < composite.MemberCount(); ++i) {
    composite.CompFold_Type[i] = from.ReadMember(i);
  }
  return composite;
}

template <class Section>
void WriteComposite(const Section& to, const CompositeProfile& composite) {
  WriteRecord(to, CompositeFields(), composite);
  for (int i = 0; i < composite.MemberCount(); ++i) to.WriteMember(i, composite.CompFold_Type[i]);
}

}  // namespace starfolds

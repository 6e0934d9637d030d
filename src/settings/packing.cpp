#include "settings/packing.h"

#include <algorithm>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

constexpr std::size_t kColumn = 5;

/// "IFS_P0" and "Atom_P00".
std::string IfsKey(int i) { return "IFS_P" + std::to_string(i); }
std::string AtomKey(int i) { return (i < 10 ? "Atom_P0" : "Atom_P") + std::to_string(i); }

template <class Record>
std::string Pack(const Record& record, std::span<const Field<Record>> fields) {
  std::string packed = "*";
  for (const Field<Record>& field : fields) {
    const std::string number = FieldText(record, field);
    packed.append(kColumn - std::min(number.size(), kColumn), ' ').append(number);
  }
  return packed;
}

template <class Record>
Record Unpack(std::string_view packed, std::span<const Field<Record>> fields) {
  Record record;
  std::size_t at = 1;
  for (const Field<Record>& field : fields) {
    const std::string_view column = packed.substr(std::min(at, packed.size()), kColumn);
    const double number = LenientNumber("0" + std::string(column));
    record.*std::get<Integer Record::*>(field.Where) = RoundedToLimits<Integer>(number);
    at += kColumn;
  }
  return record;
}

}  // namespace

void UnpackIfsPoints(StarfoldProfile& profile, const ReadPacked& read) {
  const int count = std::min<int>(profile.Starfold_IFS_Points, kMaxIfsPoints);
  for (int i = 0; i < count; ++i) {
    profile.IFS.Points[i] = Unpack(read(IfsKey(i)), IfsPointFields());
  }
}

void UnpackAtoms(StarfoldProfile& profile, const ReadPacked& read) {
  const int count = std::min<int>(profile.Starfold_Atoms, kMaxAtoms);
  for (int i = 0; i < count; ++i) {
    AtomPoint& atom = profile.Atom.Atoms[i];
    atom = Unpack(read(AtomKey(i)), AtomPointFields());
    atom.Atom_Count = AtomPoints(atom.Atom_Structure);
  }
}

void PackIfsPoints(const StarfoldProfile& profile, const WritePacked& write) {
  for (int i = 0; i < profile.Starfold_IFS_Points; ++i) {
    write(IfsKey(i), Pack(profile.IFS.Points[i], IfsPointFields()));
  }
}

void PackAtoms(const StarfoldProfile& profile, const WritePacked& write) {
  for (int i = 0; i < profile.Starfold_Atoms; ++i) {
    write(AtomKey(i), Pack(profile.Atom.Atoms[i], AtomPointFields()));
  }
}

}  // namespace starfolds

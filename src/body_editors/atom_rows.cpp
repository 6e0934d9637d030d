#include "body_editors/atom_rows.h"

#include <array>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/elements.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

constexpr std::string_view kStructures[kAtomStructureCount] = {
    STARFOLDS_TEXT("Single    "), STARFOLDS_TEXT(" 6 Point  "), STARFOLDS_TEXT(" 8 Point  "),
    STARFOLDS_TEXT("18 Shell  "), STARFOLDS_TEXT("26 Shell  "), STARFOLDS_TEXT("38 Shell  "),
    STARFOLDS_TEXT("Rectgrid  "), STARFOLDS_TEXT("Hexagrid  "), STARFOLDS_TEXT("Cube      "),
    STARFOLDS_TEXT("Tetramatrx"), STARFOLDS_TEXT("Octamatrix"), STARFOLDS_TEXT("Hexamatrix")};

struct Column {
  std::size_t Begin, Width;  // characters, from 0
};
constexpr Column kNameColumn{0, kAtomNameWidth};
constexpr Column kStructureColumn{kAtomNameWidth, kAtomStructureWidth};

struct NumberColumn {
  Column Place;
  Integer AtomPoint::*Member;
};
constexpr NumberColumn kNumberColumns[] = {{{30, 4}, &AtomPoint::Atom_LocX},
                                           {{36, 4}, &AtomPoint::Atom_LocY},
                                           {{42, 4}, &AtomPoint::Atom_LocZ},
                                           {{48, 6}, &AtomPoint::Atom_Size},
                                           {{56, 6}, &AtomPoint::Atom_Radius}};
constexpr Integer kHighest = 9999;

std::string_view Piece(std::string_view row, Column column) {
  if (row.size() <= column.Begin) return {};
  return Trimmed(row.substr(column.Begin, column.Width));
}

void PutRight(std::string& row, Column column, std::string_view text) {
  row.replace(column.Begin + column.Width - text.size(), text.size(), text);
}

}  // namespace

std::string_view AtomStructureName(int structure) {
  return kStructures[ClampTo(structure, 0, kAtomStructureCount - 1)];
}

std::string FormatAtomRow(const AtomPoint& atom) {
  std::string row(kAtomRowHeading.size(), ' ');
  const std::string_view name = ElementInfo(atom.Atom_Element).Name;
  row.replace(kNameColumn.Begin, name.size(), name);
  PutRight(row, kStructureColumn, AtomStructureName(atom.Atom_Structure));
  for (const auto& [place, member] : kNumberColumns) {
    PutRight(row, place, NumberText(Long{ClampTo<Integer>(atom.*member, 0, kHighest)}));
  }
  return row;
}

AtomPoint ReadAtomRow(std::string_view row) {
  AtomPoint atom;
  for (int element = 1; element <= kElementCount; ++element) {
    if (ElementInfo(element).Name == Piece(row, kNameColumn)) {
      atom.Atom_Element = static_cast<Integer>(element);
    }
  }
  for (int structure = 0; structure < kAtomStructureCount; ++structure) {
    if (Trimmed(kStructures[structure]) == Piece(row, kStructureColumn)) {
      atom.Atom_Structure = static_cast<Integer>(structure);
    }
  }
  atom.Atom_Count = AtomPoints(atom.Atom_Structure);
  for (const auto& [place, member] : kNumberColumns) {
    const double number = LenientNumber("0" + std::string(Piece(row, place)));
    atom.*member = ClampTo<Integer>(RoundedToLimits<Integer>(number), 0, kHighest);
  }
  return atom;
}

}  // namespace starfolds

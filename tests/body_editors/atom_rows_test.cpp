#include "body_editors/atom_rows.h"

#include <gtest/gtest.h>

#include "settings/elements.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

/// The longest names and numbers fill their columns and run into no other.
TEST(AtomRows, AreReadBackAsTheyWereWritten) {
  for (Integer element = 1; element <= kElementCount; ++element) {
    for (Integer structure = 0; structure < kAtomStructureCount; ++structure) {
      for (const Integer number : {0, 1, 9999}) {
        const AtomPoint atom{element, number, 7, 9999, structure, number, 5};
        const std::string row = FormatAtomRow(atom);
        const AtomPoint read = ReadAtomRow(row);
        EXPECT_EQ(row.size(), 62U);
        for (const Field<AtomPoint>& field : AtomPointFields()) {
          EXPECT_EQ(FieldText(read, field), FieldText(atom, field)) << row;
        }
        EXPECT_EQ(read.Atom_Count, AtomPoints(structure));
      }
    }
  }
}

TEST(AtomRows, ClampNumbersToTheirColumns) {
  const AtomPoint read = ReadAtomRow(FormatAtomRow({99, -1, 32767, 10000, -5, -32768, 12345}));
  EXPECT_EQ(FormatAtomRow(read), FormatAtomRow({17, 0, 9999, 9999, 0, 0, 9999}));
}

TEST(AtomRows, OfAnyTextGiveAValidAtom) {
  const std::string hostile[] = {"",
                                 "x",
                                 "Carbon",
                                 std::string(1000, '9'),
                                 std::string(62, '-'),
                                 "Kohlenst\xC3\xB6 ff      Cube      1e9   NaN   inf"};
  for (const std::string& row : hostile) {
    const AtomPoint atom = ReadAtomRow(row);
    EXPECT_EQ(FormatAtomRow(ReadAtomRow(FormatAtomRow(atom))), FormatAtomRow(atom)) << row;
    EXPECT_EQ(atom.Atom_Element, row == "Carbon" ? 6 : 1) << row;
  }
}

}  // namespace
}  // namespace starfolds

// A point or an atom as one value: "*" and the fields of its table in columns of five characters.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {

inline constexpr std::size_t kPackedColumn = 5;

/// Numbers right-aligned in their columns. The record must have been clamped: a negative number
/// could need six characters and would shift the rest.
template <class Record>
std::string PackRecord(const Record& record, std::span<const Field<Record>> fields) {
  std::string packed = "*";
  for (const Field<Record>& field : fields) {
    const std::string number = FieldText(record, field);
    packed.append(kPackedColumn - std::min(number.size(), kPackedColumn), ' ').append(number);
  }
  return packed;
}

/// Blanks in a column vanish, and a missing or empty column is 0.
template <class Record>
Record UnpackRecord(std::string_view packed, std::span<const Field<Record>> fields) {
  Record record;
  std::size_t column = 1;
  for (const Field<Record>& field : fields) {
    const std::string_view piece = packed.substr(std::min(column, packed.size()), kPackedColumn);
    const double number = LenientNumber("0" + std::string(piece));
    record.*std::get<Integer Record::*>(field.Where) = RoundedToLimits<Integer>(number);
    column += kPackedColumn;
  }
  return record;
}

}  // namespace starfolds

// Orders of settings in which some do not stand where the record has them.
#pragma once

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>
#include <vector>

#include "settings/fields.h"

namespace starfolds {

template <class Record>
using FieldOrder = std::vector<const Field<Record>*>;

/// A field that stands behind another one.
struct Moved {
  std::string_view Name;
  std::string_view Behind;
};

/// Moves fields, one after the other. All names must be in the order.
template <class Record>
void MoveFields(FieldOrder<Record>& order, std::span<const Moved> moves) {
  const auto place = [&](std::string_view name) {
    return std::find_if(order.begin(), order.end(),
                        [&](const Field<Record>* field) { return field->Name == name; });
  };
  for (const Moved& move : moves) {
    const auto from = place(move.Name);
    const Field<Record>* field = *from;
    order.erase(from);
    order.insert(std::next(place(move.Behind)), field);
  }
}

template <class Record>
FieldOrder<Record> OrderOf(std::span<const Field<Record>> fields, std::span<const Moved> moves) {
  FieldOrder<Record> order;
  for (const Field<Record>& field : fields) order.push_back(&field);
  MoveFields(order, moves);
  return order;
}

/// The settings of a profile in the order in which they are stored. The counts of points and of
/// atoms are the last two.
const FieldOrder<StarfoldProfile>& StoredProfileOrder();

}  // namespace starfolds

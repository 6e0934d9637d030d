// Orders of settings that differ from that of their record.
#pragma once

#include <algorithm>
#include <iterator>
#include <span>
#include <vector>

#include "settings/fields.h"

namespace starfolds {

template <class Record>
using FieldOrder = std::vector<const Field<Record>*>;

/// A setting that is moved to the place after another one.
template <class Record>
struct Moved {
  Setting<Record> What;
  Setting<Record> Behind;
};

/// Moves settings, one after the other. The order must contain all of them.
template <class Record>
void MoveFields(FieldOrder<Record>& order, std::span<const Moved<Record>> moves) {
  const auto place = [&](const Setting<Record>& setting) {
    return std::find_if(order.begin(), order.end(),
                        [&](const Field<Record>* field) { return field->Where == setting; });
  };
  for (const Moved<Record>& move : moves) {
    const auto from = place(move.What);
    const Field<Record>* field = *from;
    order.erase(from);
    order.insert(std::next(place(move.Behind)), field);
  }
}

template <class Record>
FieldOrder<Record> OrderOf(std::span<const Field<Record>> fields,
                           std::span<const Moved<Record>> moves) {
  FieldOrder<Record> order;
  for (const Field<Record>& field : fields) order.push_back(&field);
  MoveFields(order, moves);
  return order;
}

/// The settings of a profile in the order in which they are stored.
const FieldOrder<StarfoldProfile>& StoredProfileOrder();

}  // namespace starfolds

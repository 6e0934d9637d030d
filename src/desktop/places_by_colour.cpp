#include "desktop/places_by_colour.h"

namespace starfolds {

bool PlacesByColour::Sort(std::span<const PixelChange> changes) {
  const bool few = Count(changes);
  for (const std::size_t slot : usedSlots_) groupOfSlot_[slot] = kFree;
  if (!few) return false;
  std::size_t begin = 0;
  for (Group& group : groups_) {
    group.Begin = begin;
    begin += group.Count;
    group.Count = 0;
  }
  sorted_.resize(changes.size());
  for (std::size_t i = 0; i < changes.size(); ++i) {
    Group& group = groups_[groupOfPlace_[i]];
    sorted_[group.Begin + group.Count++] = changes[i].Place;
  }
  return true;
}

bool PlacesByColour::Count(std::span<const PixelChange> changes) {
  groups_.clear();
  usedSlots_.clear();
  groupOfPlace_.resize(changes.size());
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const Colour ink = changes[i].Ink;
    const std::size_t slot = SlotOf(ink);
    std::uint16_t& number = groupOfSlot_[slot];
    if (number == kFree) {
      if (groups_.size() == kMostColours) return false;
      groups_.push_back({ink, 0, 0});
      usedSlots_.push_back(slot);
      number = static_cast<std::uint16_t>(groups_.size());
    }
    ++groups_[number - 1U].Count;
    groupOfPlace_[i] = static_cast<std::uint16_t>(number - 1U);
  }
  return true;
}

/// The slot of the colour, or the empty slot where it would be inserted (linear probing). The
/// multiplier is the golden ratio in 32 bits, which scatters similar colours.
std::size_t PlacesByColour::SlotOf(Colour ink) const {
  std::size_t slot = (ink * 0x9E3779B9U) >> 20U;
  while (groupOfSlot_[slot] != kFree && groups_[groupOfSlot_[slot] - 1U].Ink != ink) {
    slot = (slot + 1) % kSlots;
  }
  return slot;
}

}  // namespace starfolds

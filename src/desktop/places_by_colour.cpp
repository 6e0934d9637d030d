#include "desktop/places_by_colour.h"

namespace starfolds {
namespace {

constexpr Colour kBlack = 0;

}  // namespace

void PlacesByColour::Sort(std::span<const PixelChange> changes) {
  Count(changes);
  for (const std::size_t slot : usedSlots_) groupOfSlot_[slot] = kFree;
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
}

/// Half of the pixels are erased, so black is given its group without a search of the table.
void PlacesByColour::Count(std::span<const PixelChange> changes) {
  groups_.assign(1, {kBlack, 0, 0});
  usedSlots_.clear();
  groupOfPlace_.resize(changes.size());
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const Colour ink = changes[i].Ink;
    const std::size_t group = ink == kBlack ? 0 : GroupOf(ink);
    ++groups_[group].Count;
    groupOfPlace_[i] = static_cast<std::uint32_t>(group);
  }
}

/// The index of the colour's group, which is made if there is none.
std::size_t PlacesByColour::GroupOf(Colour ink) {
  const std::size_t slot = SlotOf(ink);
  if (groupOfSlot_[slot] != kFree) return groupOfSlot_[slot] - 1U;
  groups_.push_back({ink, 0, 0});
  if (usedSlots_.size() < kMostColours) {
    usedSlots_.push_back(slot);
    groupOfSlot_[slot] = static_cast<std::uint16_t>(groups_.size());
  }
  return groups_.size() - 1;
}

/// The slot of the colour, or the empty slot where it would be inserted (linear probing). The
/// multiplier is the golden ratio in 32 bits, which scatters similar colours.
std::size_t PlacesByColour::SlotOf(Colour ink) const {
  std::size_t slot = (ink * 0x9E3779B9U) >> (32 - kSlotBits);
  while (groupOfSlot_[slot] != kFree && groups_[groupOfSlot_[slot] - 1U].Ink != ink) {
    slot = (slot + 1) % kSlots;
  }
  return slot;
}

}  // namespace starfolds

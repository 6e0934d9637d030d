// The changed pixels of a frame, grouped by colour.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/surface.h"

namespace starfolds {

/// A frame writes thousands of pixels in a few hundred colours, some thousand with very many stars:
/// most writes erase to black, and stars take their colours from tables. Memory is reused from
/// frame to frame.
class PlacesByColour {
 public:
  struct Group {
    Colour Ink = 0;
    std::size_t Begin = 0;  // in `Places`
    std::size_t Count = 0;
  };

  /// Groups the pixels. The first group is black, and may be empty. After `kMostColours` other
  /// colours, each pixel of one more has its own group.
  void Sort(std::span<const PixelChange> changes);

  std::span<const Group> Groups() const { return groups_; }
  std::span<const PixelPlace> Places() const { return sorted_; }

 private:
  static constexpr std::size_t kMostColours = 4096;
  /// Four times as many, so that probe sequences are short.
  static constexpr int kSlotBits = 14;
  static constexpr std::size_t kSlots = std::size_t{1} << kSlotBits;
  static_assert(kSlots == 4 * kMostColours);
  static constexpr std::uint16_t kFree = 0;

  void Count(std::span<const PixelChange> changes);
  std::size_t GroupOf(Colour ink);
  std::size_t SlotOf(Colour ink) const;

  std::array<std::uint16_t, kSlots> groupOfSlot_{};  // group number from 1; 0: empty
  std::vector<std::size_t> usedSlots_;
  std::vector<Group> groups_;
  std::vector<std::uint32_t> groupOfPlace_;
  std::vector<PixelPlace> sorted_;
};

}  // namespace starfolds

// The pixels of a journal, sorted by the colour that they have now.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/surface.h"

namespace starfolds {

/// A frame writes thousands of pixels and a few hundred colours: most writes wipe to black, and the
/// stars take theirs from tables. Memory is kept from frame to frame.
class PlacesByColour {
 public:
  /// Beyond this many a frame is better shown in another way.
  static constexpr std::size_t kMostColours = 1024;

  struct Group {
    Colour Ink = 0;
    std::size_t Begin = 0;  // in `Places`
    std::size_t Count = 0;
  };

  /// Sorts places of the surface. False: they have too many colours.
  bool Sort(const Surface& surface, std::span<const Surface::PixelPlace> places);

  std::span<const Group> Groups() const { return groups_; }
  std::span<const Surface::PixelPlace> Places() const { return sorted_; }

 private:
  /// Four times the groups, so that a search ends soon.
  static constexpr std::size_t kSlots = 4 * kMostColours;
  static constexpr std::uint16_t kFree = 0;

  bool Count(const Surface& surface, std::span<const Surface::PixelPlace> places);
  std::size_t SlotOf(Colour ink) const;

  std::array<std::uint16_t, kSlots> groupOfSlot_{};  // its number from 1
  std::vector<std::size_t> usedSlots_;
  std::vector<Group> groups_;
  std::vector<std::uint16_t> groupOfPlace_;
  std::vector<Surface::PixelPlace> sorted_;
};

}  // namespace starfolds

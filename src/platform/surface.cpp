#include "platform/surface.h"

#include <algorithm>

namespace starfolds {
namespace {

/// Writes that are collected by a surface that records no changes.
constexpr std::size_t kUnrecordedWrites = 1024;

/// How many writes ahead the pixel's cache line is requested. Main memory answers within the time
/// of some ten writes.
constexpr std::size_t kLookAhead = 16;

}  // namespace

Surface::Surface(Integer width, Integer height, std::size_t journalCapacity,
                 std::pmr::memory_resource* memory)
    : recordsChanges_(journalCapacity > 0),
      pixels_(memory),
      journal_(recordsChanges_ ? journalCapacity : kUnrecordedWrites) {
  Resize(width, height);
}

Colour Surface::Pixel(Long x, Long y) const {
  const auto column = static_cast<std::uint32_t>(x);
  const auto row = static_cast<std::uint32_t>(y);
  if (column >= width_ || row >= height_) return 0;
  ApplyWrites();
  return PixelAt(PlaceOfPixel(column, row)) & ~kJournalled;
}

void Surface::CopyRow(int x, int y, std::span<Colour> colours) const {
  ApplyWrites();
  const auto begin = pixels_.begin() + static_cast<std::ptrdiff_t>(y) * Width() + x;
  std::transform(begin, begin + static_cast<std::ptrdiff_t>(colours.size()), colours.begin(),
                 [](Colour pixel) { return pixel & ~kJournalled; });
}

std::vector<Colour> Surface::Pixels() const {
  std::vector<Colour> colours(pixels_.size());
  for (std::uint32_t y = 0; y < height_; ++y) {
    CopyRow(0, static_cast<int>(y), std::span(colours).subspan(std::size_t{y} * width_, width_));
  }
  return colours;
}

/// Requests the cache line of the pixel of an entry that follows later.
void Surface::Request(std::size_t entry) const {
  if (entry < journalSize_) __builtin_prefetch(&PixelAt(journal_[entry].Place), 1);
}

void Surface::ApplyWrites() const {
  if (applied_ == journalSize_) return;
  if (recordsChanges_) return RecordWrites();
  for (std::size_t i = 0; i < journalSize_; ++i) {
    Request(i + kLookAhead);
    PixelAt(journal_[i].Place) = journal_[i].Ink;
  }
  journalSize_ = 0;
}

/// The first write of a pixel becomes its entry; later ones have nowhere to go but the canvas.
void Surface::RecordWrites() const {
  std::size_t recorded = applied_;
  for (std::size_t i = applied_; i < journalSize_; ++i) {
    Request(i + kLookAhead);
    const auto [place, ink] = journal_[i];
    Colour& pixel = PixelAt(place);
    journal_[recorded] = {place, pixel};
    recorded += (pixel & kJournalled) == 0;
    pixel = ink | kJournalled;
  }
  applied_ = journalSize_ = recorded;
}

/// Called when the journal is full.
void Surface::MakeRoom() {
  ApplyWrites();
  if (journalSize_ < journal_.size()) return;
  ForgetJournal();
  everythingChanged_ = true;
}

std::span<const PixelChange> Surface::TakeChanges() {
  ApplyWrites();
  std::size_t changes = 0;
  for (std::size_t i = 0; i < journalSize_; ++i) {
    const auto [place, before] = journal_[i];
    Colour& pixel = PixelAt(place);
    pixel &= ~kJournalled;
    journal_[changes] = {place, pixel};
    changes += pixel != before;
  }
  applied_ = journalSize_ = 0;
  everythingChanged_ = false;
  return {journal_.data(), changes};
}

void Surface::ForgetJournal() {
  ApplyWrites();
  for (std::size_t i = 0; i < journalSize_; ++i) PixelAt(journal_[i].Place) &= ~kJournalled;
  applied_ = journalSize_ = 0;
  everythingChanged_ = false;
}

void Surface::Clear() {
  std::fill(pixels_.begin(), pixels_.end(), 0);
  applied_ = journalSize_ = 0;
  everythingChanged_ = true;
}

void Surface::Resize(Integer width, Integer height) {
  width_ = static_cast<std::uint32_t>(std::max<Integer>(width, 0));
  height_ = static_cast<std::uint32_t>(std::max<Integer>(height, 0));
  pixels_.assign(static_cast<std::size_t>(width_) * height_, 0);
  applied_ = journalSize_ = 0;
  everythingChanged_ = true;
}

std::uint64_t MemorySurface::Hash() const {
  std::uint64_t hash = 14695981039346656037ULL;
  std::vector<Colour> row(static_cast<std::size_t>(Width()));
  for (int y = 0; y < Height(); ++y) {
    CopyRow(0, y, row);
    for (const Colour colour : row) hash = (hash ^ colour) * 1099511628211ULL;
  }
  return hash;
}

}  // namespace starfolds

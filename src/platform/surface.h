// The drawing surface, the only class that knows the memory layout of pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "numbers/words.h"
#include "platform/colour.h"

namespace starfolds {

/// An entry of a surface's journal: y in the high, x in the low 16 bits.
using PixelPlace = std::uint32_t;

constexpr PixelPlace PlaceOfPixel(std::uint32_t x, std::uint32_t y) { return y << 16U | x; }
constexpr int ColumnOf(PixelPlace place) { return static_cast<int>(place & 0xFFFFU); }
constexpr int RowOf(PixelPlace place) { return static_cast<int>(place >> 16U); }

/// A canvas of colours, and a journal of the pixels written since the last `Present`, from which a
/// screen copies only what changed. The engine draws only with `SetPixelV`; a pixel keeps its
/// colour until it is written again.
class Surface {
 public:
  /// `journalCapacity` is the number of writes between two `Present`s that are recorded one by one;
  /// after more (always with 0) the whole canvas counts as changed.
  explicit Surface(Integer width, Integer height, std::size_t journalCapacity = 0);
  virtual ~Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  int Width() const { return static_cast<int>(width_); }
  int Height() const { return static_cast<int>(height_); }

  /// Writes one pixel. Any coordinates are allowed; those off the surface are ignored.
  void SetPixelV(Long x, Long y, Colour colour) { Pen(*this).SetPixelV(x, y, colour); }

  /// Writes pixels. A loop that writes many creates one `Pen`, which keeps the surface's size in
  /// registers. It is invalid after the surface was resized.
  class Pen {
   public:
    explicit Pen(Surface& surface)
        : surface_(surface),
          pixels_(surface.pixels_.data()),
          width_(surface.width_),
          height_(surface.height_),
          journal_(surface.journal_.data()),
          journalCapacity_(surface.journal_.size()) {}

    void SetPixelV(Long x, Long y, Colour colour) {
      if (Holds(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y))) {
        SetPixelWithin(x, y, colour);
      }
    }

    /// Whether a place is on the surface. Negative coordinates arrive as large numbers.
    bool Holds(std::uint64_t x, std::uint64_t y) const { return x < width_ && y < height_; }

    /// `SetPixelV` for a place on the surface; undefined elsewhere.
    void SetPixelWithin(Long x, Long y, Colour colour) {
      const auto column = static_cast<std::uint32_t>(x);
      const auto row = static_cast<std::uint32_t>(y);
      pixels_[static_cast<std::size_t>(row) * width_ + column] = colour;
      if (surface_.journalSize_ < journalCapacity_) {
        journal_[surface_.journalSize_++] = PlaceOfPixel(column, row);
      } else {
        surface_.everythingChanged_ = true;
      }
    }

   private:
    Surface& surface_;
    Colour* pixels_;
    std::size_t width_;
    std::size_t height_;
    PixelPlace* journal_;
    std::size_t journalCapacity_;
  };

  /// The colour at a place; 0 (black) off the surface.
  Colour Pixel(Long x, Long y) const;

  /// Row by row, `Width() * Height()` values, without padding.
  const std::vector<Colour>& Pixels() const { return pixels_; }

  /// Makes every pixel black.
  void Clear();

  /// Changes the size; the canvas is black afterwards. Negative sizes count as 0.
  void Resize(Integer width, Integer height);

  /// Shows what was written since the last call. `FramePace` calls it once a frame.
  virtual void Present() = 0;

 protected:
  bool EverythingChanged() const { return everythingChanged_; }
  const PixelPlace* JournalBegin() const { return journal_.data(); }
  const PixelPlace* JournalEnd() const { return journal_.data() + journalSize_; }

  /// Starts the journal of the next frame. Not called by a presenter that could not show anything.
  void ForgetJournal() {
    journalSize_ = 0;
    everythingChanged_ = false;
  }

 private:
  std::uint32_t width_ = 0;
  std::uint32_t height_ = 0;
  std::vector<Colour> pixels_;
  std::vector<PixelPlace> journal_;
  std::size_t journalSize_ = 0;
  bool everythingChanged_ = true;
};

/// A surface that is not shown while it is drawn. It never waits.
class MemorySurface : public Surface {
 public:
  using Surface::Surface;
  void Present() override { ForgetJournal(); }

  /// FNV-1a (Fowler, Noll, Vo) over colours instead of bytes, so the same number on every machine.
  std::uint64_t Hash() const;
};

}  // namespace starfolds

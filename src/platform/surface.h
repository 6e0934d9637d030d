// The drawing surface, the only class that knows the memory layout of pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <vector>

#include "numbers/words.h"
#include "platform/colour.h"

namespace starfolds {

/// The coordinates of a pixel: y in the high, x in the low 16 bits.
using PixelPlace = std::uint32_t;

constexpr PixelPlace PlaceOfPixel(std::uint32_t x, std::uint32_t y) { return y << 16U | x; }
constexpr int ColumnOf(PixelPlace place) { return static_cast<int>(place & 0xFFFFU); }
constexpr int RowOf(PixelPlace place) { return static_cast<int>(place >> 16U); }

/// A pixel that differs from what is shown, with the colour that it has now.
struct PixelChange {
  PixelPlace Place = 0;
  Colour Ink = 0;

  bool operator==(const PixelChange&) const = default;
};

/// A canvas of colours, and a journal of the pixels written since the last `Present`, from which a
/// screen copies only what changed. The engine draws only with `SetPixelV`; a pixel keeps its
/// colour until it is written again.
///
/// A write is only appended to the journal. It reaches the canvas when the frame is shown or a
/// colour is read: the canvas is mostly out of the processor's caches, and only a list of writes
/// tells early enough which of its lines are needed next.
class Surface {
 public:
  static constexpr std::size_t kMostKeptFrames = 8;

  /// `journalCapacity` is the number of pixels that are recorded between two `Present`s; after more
  /// (always with 0) the whole canvas counts as changed. `memory` holds the canvas and
  /// outlives the surface.
  explicit Surface(Integer width, Integer height, std::size_t journalCapacity = 0,
                   std::pmr::memory_resource* memory = std::pmr::get_default_resource());
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
          width_(surface.width_),
          height_(surface.height_),
          journal_(surface.journal_.data()),
          journalCapacity_(surface.journal_.size()) {}

    void SetPixelV(Long x, Long y, Colour colour) {
      const auto column = static_cast<std::uint32_t>(x);
      const auto row = static_cast<std::uint32_t>(y);
      if (column >= width_ || row >= height_)
        return;  // negative coordinates are large numbers here
      if (surface_.journalSize_ == journalCapacity_) [[unlikely]]
        surface_.MakeRoom();
      journal_[surface_.journalSize_++] = {PlaceOfPixel(column, row), colour};
    }

   private:
    Surface& surface_;
    std::uint32_t width_;
    std::uint32_t height_;
    PixelChange* journal_;
    std::size_t journalCapacity_;
  };

  /// The colour at a place; 0 (black) off the surface.
  Colour Pixel(Long x, Long y) const;

  /// Copies `colours.size()` pixels of row `y` from column `x` on; all of them on the surface.
  void CopyRow(int x, int y, std::span<Colour> colours) const;

  /// A copy of the canvas: row by row, `Width() * Height()` values, without padding.
  std::vector<Colour> Pixels() const;

  /// Makes every pixel black.
  void Clear();

  /// Changes the size; the canvas is black afterwards. Negative sizes count as 0.
  void Resize(Integer width, Integer height);

  /// Shows the oldest kept frame. If none is kept, shows what was written since the last call.
  virtual void Present() = 0;

  /// Keeps what was written since the last frame as a frame that `Present` shows later, so that
  /// more frames can be computed meanwhile. At most `kMostKeptFrames` are kept. False if it must be
  /// shown now: the surface cannot keep frames, or all of it changed.
  virtual bool KeepFrame() { return false; }
  virtual std::size_t KeptFrameCount() const { return 0; }

 protected:
  /// The journal is incomplete, and the whole canvas must be shown.
  bool EverythingChanged() const { return everythingChanged_ || !recordsChanges_; }

  /// Writes that have not reached the canvas: all of a frame, unless colours were read meanwhile.
  std::size_t PendingWrites() const { return journalSize_ - applied_; }

  /// The pixels that differ from the last frame, in the order in which they were first written,
  /// each once. Starts the journal of the next frame. Valid until the next write.
  std::span<const PixelChange> TakeChanges();

  /// The same for a presenter that needs no changes.
  void ForgetJournal();

 private:
  /// Set in the pixels of `journal_[0]` to `journal_[applied_ - 1]`. Colours leave the highest byte
  /// free.
  static constexpr Colour kJournalled = 0x80000000U;

  Colour& PixelAt(PixelPlace place) const {
    return pixels_[static_cast<std::size_t>(RowOf(place)) * width_ +
                   static_cast<std::size_t>(ColumnOf(place))];
  }
  void Request(std::size_t entry) const;
  void ApplyWrites() const;
  void RecordWrites() const;
  void MakeRoom();

  std::uint32_t width_ = 0;
  std::uint32_t height_ = 0;
  bool recordsChanges_;
  bool everythingChanged_ = true;

  // Writes are pending until a colour is read, so reading changes these, too.

  mutable std::pmr::vector<Colour> pixels_;
  /// First the pixels that were written since the last `Present`, each once, with the colours that
  /// are shown of them; from `applied_` on the writes that have not reached the canvas.
  mutable std::vector<PixelChange> journal_;
  mutable std::size_t applied_ = 0;
  mutable std::size_t journalSize_ = 0;
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

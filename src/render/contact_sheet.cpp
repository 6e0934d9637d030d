#include "render/contact_sheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "render/png_picture.h"

namespace starfolds {
namespace {

// In pixels of the sheet.
constexpr int kTileWidth = 320;  // maximum size of a tile
constexpr int kTileHeight = 240;
constexpr int kGap = 2;  // between tiles, so that black frames have edges
constexpr int kDigitScale = 2;
constexpr int kDigitWidth = 3;
constexpr int kDigitHeight = 5;
constexpr int kLabelHeight = (kDigitHeight + 2) * kDigitScale;

constexpr Colour kPaper = 0x00202020;
constexpr Colour kInk = 0x00C0C0C0;

/// The digits as bitmaps, three bits a row, the top row in the highest bits.
constexpr std::array<std::uint16_t, 10> kDigits = {
    0b111'101'101'101'111, 0b010'110'010'010'111, 0b111'001'111'100'111, 0b111'001'111'001'111,
    0b101'101'111'001'001, 0b111'100'111'001'111, 0b111'100'111'101'111, 0b111'001'001'001'001,
    0b111'101'111'101'111, 0b111'101'111'001'111,
};

Colour Brighter(Colour a, Colour b) {
  constexpr Colour red = 0x0000FF;
  constexpr Colour green = 0x00FF00;
  constexpr Colour blue = 0xFF0000;
  return std::max(a & red, b & red) | std::max(a & green, b & green) | std::max(a & blue, b & blue);
}

/// The picture that tiles and labels are drawn on.
class Canvas {
 public:
  Canvas(int width, int height)
      : width_(width),
        height_(height),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kPaper) {}

  Picture Finished() const { return {width_, height_, pixels_}; }

  void Lay(int left, int top, const Tile& tile) {
    for (int y = 0; y < tile.Height; ++y) {
      const auto from = tile.Pixels.begin() + std::ptrdiff_t{y} * tile.Width;
      std::copy_n(from, tile.Width, At(left, top + y));
    }
  }

  void Label(int left, int top, FrameNumber number) {
    for (const char digit : std::to_string(number)) {
      DrawDigit(left, top, kDigits[static_cast<std::size_t>(digit - '0')]);
      left += (kDigitWidth + 1) * kDigitScale;
    }
  }

 private:
  std::vector<Colour>::iterator At(int x, int y) {
    return pixels_.begin() + std::ptrdiff_t{y} * width_ + x;
  }

  void DrawDigit(int left, int top, unsigned dots) {
    unsigned bit = 1U << (kDigitWidth * kDigitHeight - 1);
    for (int y = 0; y < kDigitHeight; ++y) {
      for (int x = 0; x < kDigitWidth; ++x) {
        if ((dots & bit) != 0) Dot(left + x * kDigitScale, top + y * kDigitScale);
        bit >>= 1U;
      }
    }
  }

  /// Clips what does not fit beside a very small tile.
  void Dot(int left, int top) {
    for (int y = top; y < std::min(top + kDigitScale, height_); ++y) {
      for (int x = left; x < std::min(left + kDigitScale, width_); ++x) *At(x, y) = kInk;
    }
  }

  int width_, height_;
  std::vector<Colour> pixels_;
};

/// The first source pixel of each tile pixel along one side, followed by the number of pixels.
std::vector<int> Cuts(int source, int tile) {
  std::vector<int> cuts;
  for (int i = 0; i <= tile; ++i) {
    cuts.push_back(static_cast<int>(std::int64_t{i} * source / tile));
  }
  return cuts;
}

}  // namespace

Tile MakeTile(const Picture& picture) {
  const double shrink = std::max({1.0, static_cast<double>(picture.Width) / kTileWidth,
                                  static_cast<double>(picture.Height) / kTileHeight});
  Tile tile;
  tile.Width = std::max(1, static_cast<int>(std::lround(picture.Width / shrink)));
  tile.Height = std::max(1, static_cast<int>(std::lround(picture.Height / shrink)));
  const std::vector<int> columns = Cuts(picture.Width, tile.Width);
  const std::vector<int> rows = Cuts(picture.Height, tile.Height);
  for (int ty = 0; ty < tile.Height; ++ty) {
    for (int tx = 0; tx < tile.Width; ++tx) {
      Colour brightest = 0;
      for (int y = rows[ty]; y < rows[ty + 1]; ++y) {
        for (const Colour colour :
             picture.Row(y).subspan(columns[tx], columns[tx + 1] - columns[tx]))
          brightest = Brighter(brightest, colour);
      }
      tile.Pixels.push_back(brightest);
    }
  }
  return tile;
}

/// Opens the file before the run and not after it, so that one that cannot be written is reported
/// at once.
Fault ContactSheet::Take(FrameNumber frame, const MemorySurface& surface) {
  if (!file_.Stream()) {
    if (Fault fault = file_.Open(path_)) return fault;
  }
  entries_.push_back({frame, MakeTile(PictureOf(surface))});
  return std::nullopt;
}

Fault ContactSheet::Finish() {
  const auto count = static_cast<int>(entries_.size());
  const auto columns = static_cast<int>(std::ceil(std::sqrt(count)));
  const int rows = (count + columns - 1) / columns;
  const int stepX = entries_.front().Small.Width + kGap;
  const int stepY = entries_.front().Small.Height + kLabelHeight + kGap;
  Canvas canvas(columns * stepX + kGap, rows * stepY + kGap);
  for (int i = 0; i < count; ++i) {
    const Entry& entry = entries_[static_cast<std::size_t>(i)];
    const int left = kGap + i % columns * stepX;
    const int top = kGap + i / columns * stepY;
    canvas.Lay(left, top, entry.Small);
    canvas.Label(left, top + entry.Small.Height + kDigitScale, entry.Frame);
  }
  return WritePng(file_, canvas.Finished(), 1);
}

}  // namespace starfolds

// Many frames in one picture, to look a run over at a glance.
#pragma once

#include <string>
#include <vector>

#include "render/frame_sinks.h"

namespace starfolds {

/// A tile that is filled from a surface: each of its pixels takes, channel by channel, the largest
/// value of the surface's pixels that fall on it. A mean would drown a star of one pixel.
struct Tile {
  int Width = 0;
  int Height = 0;
  std::vector<Colour> Pixels;
};
Tile MakeTile(const Picture& picture);

/// The tiles in a grid as square as can be, each with the number of its frame below it.
class ContactSheet : public FrameSink {
 public:
  static constexpr int kMaxTiles = 400;  // 20 x 20: a picture of 6,440 x 5,140 at the most

  /// The sheet is written to `path` when all frames were taken.
  explicit ContactSheet(std::string path) : path_(std::move(path)) {}

  Fault Take(FrameNumber frame, const MemorySurface& surface) override;
  Fault Finish() override;

 private:
  struct Entry {
    FrameNumber Frame;
    Tile Small;
  };

  std::string path_;
  std::vector<Entry> entries_;
};

}  // namespace starfolds

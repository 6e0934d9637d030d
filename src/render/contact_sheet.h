// Many frames in one picture, for an overview of a run.
#pragma once

#include <string>
#include <vector>

#include "render/frame_sinks.h"
#include "render/output_file.h"

namespace starfolds {

/// A scaled-down surface: each channel of a pixel is the maximum over the surface's pixels that
/// fall on it. With the mean, a star of one pixel would be too dark to see.
struct Tile {
  int Width = 0;
  int Height = 0;
  std::vector<Colour> Pixels;
};
Tile MakeTile(const Picture& picture);

/// The tiles in a grid that is as square as possible, each with its frame number below it.
class ContactSheet : public FrameSink {
 public:
  static constexpr int kMaxTiles = 400;  // 20 x 20: a picture of 6,440 x 5,140 at the most

  /// The sheet is written to `path` by `Finish`.
  explicit ContactSheet(std::string path) : path_(std::move(path)) {}

  Fault Take(FrameNumber frame, const MemorySurface& surface) override;
  Fault Finish() override;

 private:
  struct Entry {
    FrameNumber Frame;
    Tile Small;
  };

  std::string path_;
  OutputFile file_;
  std::vector<Entry> entries_;
};

}  // namespace starfolds

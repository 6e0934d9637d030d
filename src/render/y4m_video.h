// Video as YUV4MPEG2: raw pictures that every encoder reads.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "render/frame_sinks.h"
#include "render/output_file.h"

namespace starfolds {

/// A colour in the video's colour space.
struct YCbCr {
  std::uint8_t Y = 16, Cb = 128, Cr = 128;
};

/// ITU-R BT.709 with limited range (luma 16 to 235, chroma 16 to 240), which players assume for 720
/// lines and more.
YCbCr ToYCbCr(Colour colour);

/// Chroma at full resolution (C444), so that a star of one pixel keeps its colour and odd sizes
/// need no special case. 25 frames a second, the saver's rate with its frame delay of 40 ms.
class Y4mVideo : public FrameSink {
 public:
  Y4mVideo(std::string path, int scale) : path_(std::move(path)), scale_(scale) {}

  Fault Take(FrameNumber frame, const MemorySurface& surface) override;
  Fault Finish() override;

 private:
  Fault Begin(const Picture& picture);
  Fault WriteText(const std::string& text);
  Fault WritePlane(const Picture& picture, std::uint8_t YCbCr::*channel);

  std::string path_;
  int scale_;
  OutputFile file_;
  std::vector<YCbCr> colours_;  // of the frame in hand
  std::vector<std::uint8_t> rowBytes_;
};

}  // namespace starfolds

// Video as YUV4MPEG2: raw pictures that every encoder reads.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "render/frame_sinks.h"
#include "render/output_file.h"

namespace starfolds {

/// A colour as video has it.
struct YCbCr {
  std::uint8_t Y = 16, Cb = 128, Cr = 128;
};

/// By ITU-R BT.709 with the range of video (luma 16 to 235, chroma 16 to 240): players take that
/// for granted in pictures of 720 lines and more.
YCbCr ToYCbCr(Colour colour);

/// Chroma at full resolution (C444), so that a star of one pixel keeps its colour and odd sizes
/// are nothing special. 25 frames a second, as the saver runs with its frame delay of 40 ms.
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

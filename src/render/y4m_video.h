// Video as YUV4MPEG2: raw pictures that every encoder reads.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
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

/// Frames as the bytes of a YUV4MPEG2 stream. Chroma at full resolution (C444), so that a star of
/// one pixel keeps its colour and odd sizes need no special case. 25 frames a second, the saver's
/// rate with its frame delay of 40 ms.
class Y4mStream {
 public:
  using WriteBytes = std::function<Fault(std::span<const std::uint8_t>)>;

  Y4mStream(int scale, WriteBytes write) : scale_(scale), write_(std::move(write)) {}

  /// Writes the header before the first frame.
  Fault Take(const MemorySurface& surface);

 private:
  Fault WriteText(const std::string& text);
  Fault WritePlane(const Picture& picture, std::uint8_t YCbCr::*channel);

  int scale_;
  WriteBytes write_;
  bool begun_ = false;
  std::vector<YCbCr> colours_;  // of the frame in hand
  std::vector<std::uint8_t> rowBytes_;
};

/// A file with such a stream.
class Y4mVideo : public FrameSink {
 public:
  Y4mVideo(std::string path, int scale)
      : path_(std::move(path)), stream_(scale, [this](auto bytes) { return file_.Write(bytes); }) {}

  Fault Take(FrameNumber frame, const MemorySurface& surface) override;
  Fault Finish() override;

 private:
  std::string path_;
  OutputFile file_;
  Y4mStream stream_;
};

}  // namespace starfolds

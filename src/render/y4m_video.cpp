#include "render/y4m_video.h"

#include <utility>

namespace starfolds {
namespace {

/// Fixed-point factors: integer arithmetic gives the same bytes on every machine.
constexpr int kFractionBits = 16;

constexpr int Fixed(double factor) {
  const double scaled = factor * (1 << kFractionBits);
  return static_cast<int>(scaled < 0 ? scaled - 0.5 : scaled + 0.5);
}

/// One channel of video as a weighted sum of red, green and blue.
struct Weights {
  int Red, Green, Blue, Base;

  constexpr std::uint8_t Of(Colour colour) const {
    const int sum = Red * RedOf(colour) + Green * GreenOf(colour) + Blue * BlueOf(colour);
    constexpr int half = 1 << (kFractionBits - 1);
    return static_cast<std::uint8_t>(Base + ((sum + half) >> kFractionBits));
  }
};

// BT.709: luma is a weighted sum of the channels; chroma is blue and red minus luma, scaled to 1.
constexpr double kRedLuma = 0.2126;
constexpr double kGreenLuma = 0.7152;
constexpr double kBlueLuma = 0.0722;
constexpr double kLumaRange = 219.0 / 255;
constexpr double kBlueChroma = 224.0 / 255 / (2 * (1 - kBlueLuma));
constexpr double kRedChroma = 224.0 / 255 / (2 * (1 - kRedLuma));

constexpr Weights kLuma{Fixed(kRedLuma * kLumaRange), Fixed(kGreenLuma* kLumaRange),
                        Fixed(kBlueLuma* kLumaRange), 16};
constexpr Weights kCb{Fixed(-kRedLuma * kBlueChroma), Fixed(-kGreenLuma* kBlueChroma),
                      Fixed((1 - kBlueLuma) * kBlueChroma), 128};
constexpr Weights kCr{Fixed((1 - kRedLuma) * kRedChroma), Fixed(-kGreenLuma* kRedChroma),
                      Fixed(-kBlueLuma* kRedChroma), 128};

}  // namespace

YCbCr ToYCbCr(Colour colour) { return {kLuma.Of(colour), kCb.Of(colour), kCr.Of(colour)}; }

Fault Y4mStream::Take(const MemorySurface& surface) {
  const Picture picture = PictureOf(surface);
  if (!begun_) {
    begun_ = true;
    if (Fault fault =
            WriteText("YUV4MPEG2 W" + std::to_string(picture.Width * scale_) + " H" +
                      std::to_string(picture.Height * scale_) + " F25:1 Ip A1:1 C444\n")) {
      return fault;
    }
  }
  colours_.clear();
  for (const Colour colour : picture.Pixels) {
    colours_.push_back(colour == 0 ? YCbCr{} : ToYCbCr(colour));
  }
  if (Fault fault = WriteText("FRAME\n")) return fault;
  for (const auto channel : {&YCbCr::Y, &YCbCr::Cb, &YCbCr::Cr}) {
    if (Fault fault = WritePlane(picture, channel)) return fault;
  }
  return std::nullopt;
}

Fault Y4mStream::WriteText(const std::string& text) {
  return write_({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

Fault Y4mStream::WritePlane(const Picture& picture, std::uint8_t YCbCr::*channel) {
  const auto width = static_cast<std::size_t>(picture.Width);
  for (std::size_t start = 0; start < colours_.size(); start += width) {
    rowBytes_.clear();
    for (std::size_t i = start; i < start + width; ++i) {
      rowBytes_.insert(rowBytes_.end(), static_cast<std::size_t>(scale_), colours_[i].*channel);
    }
    for (int i = 0; i < scale_; ++i) {
      if (Fault fault = write_(rowBytes_)) return fault;
    }
  }
  return std::nullopt;
}

Fault Y4mVideo::Take(FrameNumber, const MemorySurface& surface) {
  if (!file_.Stream()) {
    if (Fault fault = file_.Open(path_)) return fault;
  }
  return stream_.Take(surface);
}

Fault Y4mVideo::Finish() { return file_.Commit(); }

}  // namespace starfolds

#include "render/png_picture.h"

#include <png.h>

#include <cerrno>
#include <cstdint>
#include <system_error>
#include <vector>

namespace starfolds {
namespace {

void AppendScaledRow(std::vector<std::uint8_t>& bytes, std::span<const Colour> row, int scale) {
  for (const Colour colour : row) {
    for (int i = 0; i < scale; ++i) {
      bytes.push_back(static_cast<std::uint8_t>(RedOf(colour)));
      bytes.push_back(static_cast<std::uint8_t>(GreenOf(colour)));
      bytes.push_back(static_cast<std::uint8_t>(BlueOf(colour)));
    }
  }
}

std::vector<std::uint8_t> RgbBytes(const Picture& picture, int scale) {
  std::vector<std::uint8_t> bytes;
  const auto area = static_cast<std::size_t>(scale) * static_cast<std::size_t>(scale);
  bytes.reserve(picture.Pixels.size() * area * 3);
  for (int y = 0; y < picture.Height; ++y) {
    for (int i = 0; i < scale; ++i) AppendScaledRow(bytes, picture.Row(y), scale);
  }
  return bytes;
}

}  // namespace

Fault WritePng(const std::string& path, const Picture& picture, int scale) {
  OutputFile file;
  if (Fault fault = file.Open(path)) return fault;
  return WritePng(file, picture, scale);
}

Fault WritePng(OutputFile& file, const Picture& picture, int scale) {
  const std::vector<std::uint8_t> bytes = RgbBytes(picture, scale);
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.Width * scale);
  image.height = static_cast<png_uint_32>(picture.Height * scale);
  image.format = PNG_FORMAT_RGB;
  constexpr int as8Bit = 0;
  constexpr png_int_32 packedRows = 0;
  errno = 0;
  if (!png_image_write_to_stdio(&image, file.Stream(), as8Bit, bytes.data(), packedRows, nullptr)) {
    return file.CannotWrite(errno != 0 ? std::generic_category().message(errno) : image.message);
  }
  return file.Commit();
}

}  // namespace starfolds

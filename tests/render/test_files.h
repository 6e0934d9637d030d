// Pictures that a test makes and looks into.
#pragma once

#include <gtest/gtest.h>
#include <png.h>

#include <string>
#include <vector>

#include "platform/surface.h"
#include "test_folder.h"

namespace starfolds {

struct ReadPicture {
  int Width = 0;
  int Height = 0;
  std::vector<Colour> Pixels;

  Colour At(int x, int y) const { return Pixels.at(static_cast<std::size_t>(y * Width + x)); }
};

inline ReadPicture ReadPng(const std::string& path) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  EXPECT_TRUE(png_image_begin_read_from_file(&image, path.c_str())) << path << image.message;
  image.format = PNG_FORMAT_RGB;
  std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
  EXPECT_TRUE(png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr)) << image.message;
  ReadPicture picture{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  for (std::size_t i = 0; i + 2 < bytes.size(); i += 3) {
    picture.Pixels.push_back(
        static_cast<Colour>(bytes[i] | bytes[i + 1] << 8 | bytes[i + 2] << 16));
  }
  return picture;
}

}  // namespace starfolds

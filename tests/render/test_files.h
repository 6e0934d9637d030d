// Files that a test makes and looks into.
#pragma once

#include <gtest/gtest.h>
#include <png.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace starfolds {

/// A folder of its own for each test, gone with it. Tests of one program run side by side.
class TestFolder {
 public:
  TestFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "starfolds-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::string Path(const std::string& name) const { return (path_ / name).string(); }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
      names.push_back(entry.path().lexically_relative(path_).string());
    }
    return names;
  }

 private:
  std::filesystem::path path_;
};

inline std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

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

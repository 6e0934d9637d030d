// Files that a test makes and looks into.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace starfolds {

/// A folder of its own for each test, gone with it. Tests of one program run side by side.
class TestFolder {
 public:
  explicit TestFolder(const std::filesystem::path& in = std::filesystem::temp_directory_path()) {
    std::random_device random;
    do {
      path_ = in / ("starfolds-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
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

/// Where files are only in memory, so that many of them can be written out quickly; if there is
/// such a place.
inline std::filesystem::path QuickFolder() {
  const char* const shared = "/dev/shm";
  const bool isPlace =
      std::filesystem::path(shared).is_absolute() && std::filesystem::is_directory(shared);
  return isPlace ? shared : std::filesystem::temp_directory_path();
}

inline std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace starfolds

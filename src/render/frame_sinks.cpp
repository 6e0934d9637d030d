#include "render/frame_sinks.h"

#include <cinttypes>
#include <cstdio>
#include <filesystem>

#include "numbers/text.h"
#include "render/contact_sheet.h"
#include "render/options.h"
#include "render/png_picture.h"
#include "render/y4m_video.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

class PngFolder : public FrameSink {
 public:
  PngFolder(std::string folder, int scale) : folder_(std::move(folder)), scale_(scale) {}

  Fault Take(FrameNumber frame, const MemorySurface& surface) override {
    std::error_code error;
    // Narrow names would be in the code page of the system, which is not UTF-8 on all.
    const fs::path folder(std::u8string(folder_.begin(), folder_.end()));
    fs::create_directories(folder, error);
    if (error) return "cannot make the folder " + Quoted(folder_) + ": " + error.message();
    const std::u8string file = (folder / FileName(frame)).u8string();
    return WritePng({file.begin(), file.end()}, PictureOf(surface), scale_);
  }

  Fault Finish() override { return std::nullopt; }

 private:
  static std::string FileName(FrameNumber frame) {
    char name[40];
    std::snprintf(name, sizeof name, "frame-%06" PRId64 ".png", frame);
    return name;
  }

  std::string folder_;
  int scale_;
};

class HashLines : public FrameSink {
 public:
  Fault Take(FrameNumber frame, const MemorySurface& surface) override {
    std::printf("frame %" PRId64 " %016" PRIx64 "\n", frame, surface.Hash());
    return std::nullopt;
  }

  Fault Finish() override {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return std::nullopt;
    return "cannot write the hashes to the standard output";
  }
};

}  // namespace

FrameSinks MakeSinks(const RenderOptions& options) {
  FrameSinks sinks;
  if (!options.PngFolder.empty()) {
    sinks.push_back(std::make_unique<PngFolder>(options.PngFolder, options.Scale));
  }
  if (!options.VideoFile.empty()) {
    sinks.push_back(std::make_unique<Y4mVideo>(options.VideoFile, options.Scale));
  }
  if (!options.SheetFile.empty()) {
    sinks.push_back(std::make_unique<ContactSheet>(options.SheetFile));
  }
  if (options.Hash) sinks.push_back(std::make_unique<HashLines>());
  return sinks;
}

}  // namespace starfolds

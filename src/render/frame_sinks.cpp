#include "render/frame_sinks.h"

#include <cinttypes>
#include <cstdio>
#include <filesystem>

#include "numbers/text.h"
#include "render/contact_sheet.h"
#include "render/ffmpeg_video.h"
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
  explicit HashLines(std::string prefix) : prefix_(std::move(prefix)) {}

  Fault Take(FrameNumber frame, const MemorySurface& surface) override {
    std::printf("%sframe %" PRId64 " %016" PRIx64 "\n", prefix_.c_str(), frame, surface.Hash());
    return std::nullopt;
  }

  Fault Finish() override {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return std::nullopt;
    return "cannot write the hashes to the standard output";
  }

 private:
  std::string prefix_;  // of each line
};

}  // namespace

FrameSinks MakeSinks(const RenderOptions& options) {
  FrameSinks sinks;
  if (!options.PngFolder.empty()) {
    sinks.push_back(std::make_unique<PngFolder>(options.PngFolder, options.Scale));
  }
  if (!options.VideoFile.empty()) {
    sinks.push_back(std::make_unique<FfmpegVideo>(options.VideoFile, options.Scale));
  }
  if (!options.Y4mFile.empty()) {
    sinks.push_back(std::make_unique<Y4mVideo>(options.Y4mFile, options.Scale));
  }
  if (!options.SheetFile.empty()) {
    sinks.push_back(std::make_unique<ContactSheet>(options.SheetFile));
  }
  if (options.Hash) {
    const std::string prefix =
        options.Universes ? "universe " + std::to_string(options.Universes->First) + " " : "";
    sinks.push_back(std::make_unique<HashLines>(prefix));
  }
  return sinks;
}

}  // namespace starfolds

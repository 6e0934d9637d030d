// Compressed video, by the program ffmpeg.
#pragma once

#include <string>

#include "render/frame_sinks.h"
#include "render/y4m_video.h"
#include "storage/fed_program.h"
#include "storage/file_writer.h"

namespace starfolds {

/// What is wrong with the name of a compressed video: its ending selects the encoder.
Fault CheckVideoFile(const std::string& path);

/// A video that ffmpeg compresses as the file's ending says. The file is complete or unchanged.
/// What ffmpeg complains about goes to standard error.
class FfmpegVideo : public FrameSink {
 public:
  FfmpegVideo(std::string path, int scale);

  Fault Take(FrameNumber frame, const MemorySurface& surface) override;
  Fault Finish() override;

 private:
  Fault Begin();
  Fault WriteToProgram(std::span<const std::uint8_t> bytes);
  Fault Failed(const std::string& reason) const;

  std::string path_;
  FileWriter file_;
  FedProgram ffmpeg_;
  Y4mStream stream_;
};

}  // namespace starfolds

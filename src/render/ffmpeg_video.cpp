#include "render/ffmpeg_video.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "numbers/text.h"
#include "render/output_file.h"

namespace starfolds {
namespace {

constexpr const char* kH264 = "-c:v libx264 -preset medium -crf 18";
constexpr const char* kAv1 = "-c:v libsvtav1 -preset 7 -crf 28";

// What most players expect: half of the chroma's resolution, and therefore sides that are even.
constexpr const char* kHalfChroma = "-vf pad=ceil(iw/2)*2:ceil(ih/2)*2 -pix_fmt yuv420p";
constexpr const char* kFullChroma = "-pix_fmt yuv444p";
constexpr const char* kWholeRgb = "-vf scale=in_color_matrix=bt709:in_range=tv,format=bgra";
// A palette for each frame, because one for all of them would need the whole video in memory.
constexpr const char* kPalettes =
    "-filter_complex scale=in_color_matrix=bt709:in_range=tv,format=rgb24,split[a][b];"
    "[a]palettegen=stats_mode=single[p];[b][p]paletteuse=new=1:dither=none";

constexpr const char* kBt709 =
    "-color_range tv -colorspace bt709 -color_primaries bt709 -color_trc bt709";

/// A container of video, with the arguments of ffmpeg that make it.
struct Encoder {
  const char* Ending;
  const char* Codec;
  const char* Pixels;
  const char* Colours;  // how they are to be read
  const char* Container;
};

const Encoder kEncoders[] = {
    {".mp4", kH264, kHalfChroma, kBt709, "-movflags +faststart -f mp4"},
    {".mov", kH264, kHalfChroma, kBt709, "-movflags +faststart -f mov"},
    {".mkv", kH264, kFullChroma, kBt709, "-f matroska"},
    {".webm", kAv1, kHalfChroma, kBt709, "-f webm"},
    {".gif", "-c:v gif", kPalettes, "", "-loop 0 -f gif"},
    {".webp", "-c:v libwebp_anim -lossless 1", kWholeRgb, "", "-loop 0 -f webp"},
};

const Encoder* EncoderOf(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  std::ranges::transform(ending, ending.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  const auto found = std::ranges::find(kEncoders, ending, &Encoder::Ending);
  return found == std::end(kEncoders) ? nullptr : &*found;
}

/// ffmpeg with a stream of frames as its input. It writes `target`, which exists.
std::vector<std::string> CommandFor(const Encoder& encoder, const std::string& target) {
  std::vector<std::string> command;
  const auto add = [&](const char* words) {
    std::istringstream list(words);
    std::move(std::istream_iterator<std::string>(list), {}, std::back_inserter(command));
  };
  add("ffmpeg -hide_banner -nostdin -v warning -y -f yuv4mpegpipe -i pipe:0 -an");
  for (const char* words : {encoder.Codec, encoder.Pixels, encoder.Colours, encoder.Container}) {
    add(words);
  }
  command.push_back("file:" + target);  // a name could begin with a hyphen or a protocol
  return command;
}

}  // namespace

Fault CheckVideoFile(const std::string& path) {
  if (EncoderOf(path)) return std::nullopt;
  std::string endings;
  for (const Encoder& encoder : kEncoders) {
    endings += std::string(endings.empty() ? "" : ", ") + encoder.Ending;
  }
  return "--video: the name must end with one of " + endings + ", not as in " + Quoted(path);
}

FfmpegVideo::FfmpegVideo(std::string path, int scale)
    : path_(std::move(path)),
      stream_(scale, [this](auto bytes) { return WriteToProgram(bytes); }) {}

Fault FfmpegVideo::Failed(const std::string& reason) const {
  return "cannot write " + Quoted(path_) + ": " + reason;
}

Fault FfmpegVideo::Begin() {
  if (const Fault fault = file_.Open(path_, Targets::Files)) return Failed(*fault);
  const Fault fault = ffmpeg_.Start(CommandFor(*EncoderOf(path_), file_.PathForOthers()),
                                    {"SVT_LOG=1"});  // the encoder of AV1 reports errors only
  if (!fault) return std::nullopt;
  return Failed("ffmpeg cannot be started (" + *fault + "); --y4m writes video without it");
}

Fault FfmpegVideo::WriteToProgram(std::span<const std::uint8_t> bytes) {
  const Fault fault = ffmpeg_.Write({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  if (!fault) return std::nullopt;
  const Fault end = ffmpeg_.Finish();
  return Failed("ffmpeg " + end.value_or("did not read all frames"));
}

Fault FfmpegVideo::Take(FrameNumber, const MemorySurface& surface) {
  if (!ffmpeg_.IsRunning()) {
    if (Fault fault = Begin()) return fault;
  }
  return stream_.Take(surface);
}

Fault FfmpegVideo::Finish() {
  if (const Fault fault = ffmpeg_.Finish()) return Failed("ffmpeg " + *fault);
  const Fault fault = file_.Commit();
  return fault ? Failed(*fault) : fault;
}

}  // namespace starfolds

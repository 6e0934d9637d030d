#include "render/options.h"

#include "command_line/options.h"
#include "platform/console.h"
#include "render/contact_sheet.h"
#include "render/ffmpeg_video.h"
#include "render/output_file.h"
#include "settings/fields.h"
#include "settings/first_run.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

/// Maximum pixels of a written picture. 64 Mi need 256 MiB as a surface and 192 MiB more while a
/// PNG is written; an 8K picture has 33 million.
constexpr std::int64_t kMaxPicturePixels = std::int64_t{1} << 26;

/// About 46 days of video.
constexpr FrameNumber kMaxFrames = 100'000'000;

constexpr FrameNumber kUsualFrames = 1000;
constexpr std::uint64_t kMaxUniverse = 999'999'999;

/// "A..B", or "N" for one universe.
Fault ReadUniverses(RenderOptions& to, std::string_view text) {
  const std::size_t dots = text.find("..");
  const auto first = WholeNumber<std::uint64_t>(text.substr(0, dots));
  const auto last =
      dots == std::string_view::npos ? first : WholeNumber<std::uint64_t>(text.substr(dots + 2));
  if (!first || !last || *first < 1 || *last < *first || *last > kMaxUniverse) {
    return "takes one number or FIRST..LAST, from 1 to " + std::to_string(kMaxUniverse) + ", not " +
           QuotedStart(text);
  }
  to.Universes = UniverseRange{*first, *last};
  return std::nullopt;
}

/// The program's options, which store their values in `to`.
OptionTable TableFor(RenderOptions& to) {
  const auto frame = [](FrameNumber& of) { return TakeNumber(of, FrameNumber{1}, kMaxFrames); };
  const auto acts = [&](RenderAction action) { return TakeFixed(to.Action, action); };
  return {
      Heading("The run"),
      {"--size", "WxH", "size of the surface in pixels (1280x720)", TakeSize(to.Width, to.Height)},
      Offering(Numbers(1, 4),
               {"--scale", "N", "each pixel as a block of N x N in pictures and video, 1 to 4 (1)",
                TakeNumber(to.Scale, 1, 4)}),
      {"--seed", "N", "seed of the random numbers; the same seed gives the same pixels (1)",
       TakeNumber(to.Seed)},
      {"--universes", "A..B",
       "universes A to B, whole, each with files of its own; N is the first\n"
       "universe of seed N. What an earlier run has completed is kept",
       [&to](std::string_view text) { return ReadUniverses(to, text); }},
      {"--frames", "N",
       "length of the run in frames, counted from 1 (1000); with --universes\n"
       "the most frames of each",
       TakeNumber(to.FramesGiven, FrameNumber{1}, kMaxFrames)},
      {"--first", "N", "the first frame that is written (1)", frame(to.Plan.First)},
      {"--every", "N", "write every Nth frame from there on (1)", frame(to.Plan.Every)},
      {"--profile", "N", "one body of profile N, 0 to 49, instead of universes",
       TakeNumber(to.Profile, 0, kProfileCount - 1)},
      {"--composite", "N", "one body of composite N, 0 to 15, instead of universes",
       TakeNumber(to.Composite, 0, kCompositeCount - 1)},
      Heading("Its settings"),
      Offering(kSettingChange, {"--set", "Name=value",
                                "any setting, as often as needed: Universe_Stars=9000,\n"
                                "Starfold_Radius=500 (all profiles), Starfold7/Starfold_Radius=500",
                                TakeChange(to.Changes)}),
      Offering(kTemplateFile,
               {"--template", "FILE", "start from the settings in a template file (.sfd)",
                TakeText(to.TemplateFile)}),
      {"--stored", "", "start from the settings that you have stored", TakeFixed(to.Stored, true)},
      Offering("0 1",
               {"--factory", "N", "start from the profiles of Starfolds 4.x (0) or 2.0 (1) (0)",
                TakeNumber(to.Factory, 0, 1)}),
      Offering(Numbers(1, kThemeCount), {"--theme", "N", "start from universe theme N, 1 to 8 (1)",
                                         TakeNumber(to.Theme, 1, kThemeCount)}),
      Heading("Output, at least one of"),
      Offering(kTemplateFile, {"--save", "FILE", "write the settings as a template file (.sfd)",
                               TakeText(to.SaveFile)}),
      Offering(kFolder,
               {"--png", "DIR", "write DIR/frame-000001.png and so on", TakeText(to.PngFolder)}),
      Offering(kAnyFile, {"--video", "FILE",
                          "write compressed video with ffmpeg: H.264 (.mp4, .mkv, .mov), AV1\n"
                          "(.webm), .gif or .webp",
                          TakeText(to.VideoFile)}),
      Offering(kAnyFile, {"--y4m", "FILE", "write video as YUV4MPEG2 (\"-\": to standard output)",
                          TakeText(to.Y4mFile)}),
      Offering(kAnyFile,
               {"--sheet", "FILE", "write one PNG that shows all the written frames, small",
                TakeText(to.SheetFile)}),
      {"--hash", "", "print \"frame N hash\" for each of them", TakeFixed(to.Hash, true)},
      Heading("Information"),
      {"--list", "", "print the profiles, composites and themes", acts(RenderAction::List)},
      {"-h,--help", "", "print this text", acts(RenderAction::Help), true},
      {"-V,--version", "", "print the version", acts(RenderAction::Version), true},
  };
}

Fault CheckUniverses(const RenderOptions& options) {
  if (options.Seed) return "--universes has the seeds in it; give it or --seed";
  if (options.Profile || options.Composite) {
    return "--universes renders universes; --profile and --composite render one body";
  }
  if (IsStandardOutput(options.Y4mFile) || IsStandardOutput(options.SheetFile)) {
    return "--universes writes files, not to the standard output";
  }
  return std::nullopt;
}

Fault CheckTogether(const RenderOptions& options) {
  const FramePlan& plan = options.Plan;
  if (!options.WritesFrames() && options.SaveFile.empty()) {
    return "nothing to write: give --png, --video, --y4m, --sheet, --save or --hash";
  }
  const int bases = (options.Stored ? 1 : 0) + (options.TemplateFile.empty() ? 0 : 1) +
                    (options.Factory || options.Theme ? 1 : 0);
  if (bases > 1) {
    return "the settings can start from one thing only: --template, --stored, or --factory and "
           "--theme";
  }
  if (std::int64_t{options.Width} * options.Height * options.Scale * options.Scale >
      kMaxPicturePixels) {
    return "--size and --scale make pictures of more than " + std::to_string(kMaxPicturePixels) +
           " pixels";
  }
  if (options.Universes) {
    if (Fault fault = CheckUniverses(options)) return fault;
  }
  if (options.Profile && options.Composite) {
    return "--profile and --composite each show one body; give one of them";
  }
  if (plan.Count() == 0) {
    return "--first " + std::to_string(plan.First) + " lies beyond the last frame, " +
           std::to_string(plan.Frames);
  }
  if (!options.Universes) {
    if (Fault fault = CheckSheet(options)) return fault;
  }
  if (!options.VideoFile.empty()) {
    if (Fault fault = CheckVideoFile(options.VideoFile)) return fault;
  }
  const int toOutput = (options.Hash ? 1 : 0) + (IsStandardOutput(options.Y4mFile) ? 1 : 0) +
                       (IsStandardOutput(options.SheetFile) ? 1 : 0);
  if (toOutput > 1) {
    return "only one of --hash, --y4m and --sheet can have the standard output";
  }
  return std::nullopt;
}

}  // namespace

Fault ParseOptions(std::span<const std::string_view> arguments, RenderOptions& options) {
  if (const TextFault fault = ReadOptions(TableFor(options), arguments)) return InOneLine(*fault);
  options.Plan.Frames = options.FramesGiven.value_or(options.Universes ? kMaxFrames : kUsualFrames);
  return options.Action == RenderAction::Render ? CheckTogether(options) : std::nullopt;
}

Fault CheckSheet(const RenderOptions& options) {
  const FrameNumber count = options.Plan.Count();
  if (options.SheetFile.empty() || count <= ContactSheet::kMaxTiles) return std::nullopt;
  return "--sheet has room for " + std::to_string(ContactSheet::kMaxTiles) + " frames, not " +
         std::to_string(count) + "; raise --every";
}

ProgramGuide RendererGuide() {
  RenderOptions unused;
  return {
      .Name = "starfolds-render",
      .Purpose = "render universes of stars to pictures and video",
      .Usage = {"[OPTION]..."},
      .Description = "Renders universes of stars without a screen, to pictures and video.",
      .Options = WithoutFunctions(TableFor(unused)),
      .Remark =
          "The number in parentheses is the default. A setting beyond its range is clamped to "
          "it.",
      .Sections = {{.Title = "Exit status",
                    .Intro = "",
                    .Rows = {{"0", "Everything was written."},
                             {"2",
                              "The arguments are wrong, or something could not be written. "
                              "Standard error has one line that says what."}}}},
  };
}

Fault MakeSettings(const RenderOptions& options, KeyValueTree& tree, Files& disk,
                   SettingsRecords& records) {
  if (!options.TemplateFile.empty()) {
    TemplateFile file(disk);
    if (const Fault fault = ReadTemplate(file, options.TemplateFile, records)) {
      return "cannot read " + QuotedStart(options.TemplateFile) + ": " + *fault;
    }
  } else if (options.Stored) {
    TreeBulk look = TreeBulk::Look(tree);
    records = SettingsToShow(tree);
    if (!look.Commit()) return "the stored settings cannot be read";
  } else {
    LoadFactorySettings(records, options.Factory.value_or(FactorySet::Starfolds4x),
                        options.Theme.value_or(1));
  }
  for (const auto& [name, value] : options.Changes) SetByName(records, name, value);
  return std::nullopt;
}

std::string ListText(const SettingsRecords& records) {
  std::string text;
  const auto add = [&](const char* kind, int number, std::string_view name) {
    text += std::string(kind) + " " + std::to_string(number) + " " + Harmless(name) + "\n";
  };
  for (int i = 0; i < kProfileCount; ++i) add("profile", i, records.Profiles[i].UniFoldName);
  for (int i = 0; i < kCompositeCount; ++i) {
    add("composite", i, records.Composites[i].CompFoldName);
  }
  for (int i = 1; i <= kThemeCount; ++i) add("theme", i, FactoryThemeName(i));
  return text;
}

}  // namespace starfolds

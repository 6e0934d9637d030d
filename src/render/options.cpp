#include "render/options.h"

#include <charconv>

#include "render/contact_sheet.h"
#include "settings/fields.h"
#include "settings/first_run.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

/// The longest side of the surface: the engine's coordinates are 16-bit words, and half of their
/// range is room for flares that begin off the screen.
constexpr int kMaxSide = 16384;

/// Pixels of a written picture. 64 Mi are 256 MiB as a surface and 192 MiB more while a PNG is
/// written; an 8K picture has 33 million.
constexpr std::int64_t kMaxPicturePixels = std::int64_t{1} << 26;

/// Frames of one run: some 46 days of video.
constexpr FrameNumber kMaxFrames = 100'000'000;

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

/// A whole number, all of `text`; nothing where it is none or does not fit.
template <class Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

template <class Number>
Fault ReadNumber(Number& target, std::string_view text, std::int64_t low, std::int64_t high) {
  const auto number = WholeNumber<std::int64_t>(text);
  if (!number || *number < low || *number > high) {
    return "takes a whole number from " + std::to_string(low) + " to " + std::to_string(high) +
           ", not " + Quoted(text);
  }
  target = static_cast<Number>(*number);
  return std::nullopt;
}

Fault TakeSize(RenderOptions& options, std::string_view text) {
  const std::size_t cross = std::min(text.find('x'), text.size());
  const auto width = WholeNumber<int>(text.substr(0, cross));
  const auto height = WholeNumber<int>(text.substr(std::min(cross + 1, text.size())));
  const auto fits = [](int side) { return side >= 1 && side <= kMaxSide; };
  if (!width || !height || !fits(*width) || !fits(*height)) {
    return "takes WIDTHxHEIGHT, each from 1 to " + std::to_string(kMaxSide) + ", not " +
           Quoted(text);
  }
  options.Width = *width;
  options.Height = *height;
  return std::nullopt;
}

Fault TakeScale(RenderOptions& options, std::string_view text) {
  return ReadNumber(options.Scale, text, 1, 4);
}

Fault TakeSeed(RenderOptions& options, std::string_view text) {
  const auto seed = WholeNumber<std::uint64_t>(text);
  if (!seed) return "takes a whole number from 0 to 18446744073709551615, not " + Quoted(text);
  options.Seed = *seed;
  return std::nullopt;
}

Fault TakeFrames(RenderOptions& options, std::string_view text) {
  return ReadNumber(options.Plan.Frames, text, 1, kMaxFrames);
}

Fault TakeFirst(RenderOptions& options, std::string_view text) {
  return ReadNumber(options.Plan.First, text, 1, kMaxFrames);
}

Fault TakeEvery(RenderOptions& options, std::string_view text) {
  return ReadNumber(options.Plan.Every, text, 1, kMaxFrames);
}

Fault TakeProfile(RenderOptions& options, std::string_view text) {
  Integer profile = 0;
  const Fault fault = ReadNumber(profile, text, 0, kProfileCount - 1);
  if (!fault) options.Profile = profile;
  return fault;
}

Fault TakeComposite(RenderOptions& options, std::string_view text) {
  Integer composite = 0;
  const Fault fault = ReadNumber(composite, text, 0, kCompositeCount - 1);
  if (!fault) options.Composite = composite;
  return fault;
}

Fault TakeFactory(RenderOptions& options, std::string_view text) {
  FactorySet set{};
  const Fault fault = ReadNumber(set, text, 0, 1);
  if (!fault) options.Factory = set;
  return fault;
}

Fault TakeTheme(RenderOptions& options, std::string_view text) {
  int theme = 0;
  const Fault fault = ReadNumber(theme, text, 1, kThemeCount);
  if (!fault) options.Theme = theme;
  return fault;
}

Fault TakeTemplate(RenderOptions& options, std::string_view text) {
  options.TemplateFile = text;
  return std::nullopt;
}

Fault TakeStored(RenderOptions& options, std::string_view) {
  options.Stored = true;
  return std::nullopt;
}

Fault TakeSave(RenderOptions& options, std::string_view text) {
  options.SaveFile = text;
  return std::nullopt;
}

/// The settings are set when all options are read; here it is found out whether they can be.
Fault TakeSetting(RenderOptions& options, std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return "takes Name=value, not " + Quoted(text);
  const std::string_view name = text.substr(0, equals);
  const std::string_view value = text.substr(equals + 1);
  options.Changes.emplace_back(name, value);
  SettingsRecords records;
  return SetByName(records, name, value);
}

Fault TakePng(RenderOptions& options, std::string_view text) {
  options.PngFolder = text;
  return std::nullopt;
}

Fault TakeVideo(RenderOptions& options, std::string_view text) {
  options.VideoFile = text;
  return std::nullopt;
}

Fault TakeSheet(RenderOptions& options, std::string_view text) {
  options.SheetFile = text;
  return std::nullopt;
}

Fault TakeHash(RenderOptions& options, std::string_view) {
  options.Hash = true;
  return std::nullopt;
}

Fault TakeList(RenderOptions& options, std::string_view) {
  options.Action = RenderAction::List;
  return std::nullopt;
}

Fault TakeHelp(RenderOptions& options, std::string_view) {
  options.Action = RenderAction::Help;
  return std::nullopt;
}

Fault TakeVersion(RenderOptions& options, std::string_view) {
  options.Action = RenderAction::Version;
  return std::nullopt;
}

struct Option {
  std::string_view Name;
  std::string_view Argument;  // what stands for its value in the help; empty: it takes none
  std::string_view Help;
  Fault (*Take)(RenderOptions&, std::string_view);
};

constexpr Option kOptions[] = {
    {"--size", "WxH", "size of the surface in pixels (1280x720)", TakeSize},
    {"--scale", "N", "each pixel as a block of N x N in pictures and video, 1 to 4 (1)", TakeScale},
    {"--seed", "N", "start of the random numbers; the same seed, the same pixels (1)", TakeSeed},
    {"--frames", "N", "length of the run in frames, counted from 1 (1000)", TakeFrames},
    {"--first", "N", "the first frame that is written (1)", TakeFirst},
    {"--every", "N", "write every Nth frame from there on (1)", TakeEvery},
    {"--set", "Name=value",
     "any setting, as often as needed: Universe_Stars=9000,\n"
     "Starfold_Radius=500 (all profiles), Starfold7/Starfold_Radius=500",
     TakeSetting},
    {"--template", "FILE", "start from the settings in a template file (.sfd)", TakeTemplate},
    {"--stored", "", "start from the settings that you have stored", TakeStored},
    {"--factory", "N", "start from the profiles of Starfolds 4.x (0) or 2.0 (1) (0)", TakeFactory},
    {"--theme", "N", "start from universe theme N, 1 to 8 (1)", TakeTheme},
    {"--profile", "N", "one body of profile N, 0 to 49, instead of universes", TakeProfile},
    {"--composite", "N", "one body of composite N, 0 to 15, instead of universes", TakeComposite},
    {"--save", "FILE", "write the settings as a template file (.sfd)", TakeSave},
    {"--png", "DIR", "write DIR/frame-000001.png and so on", TakePng},
    {"--y4m", "FILE", "write video as YUV4MPEG2 (\"-\": to standard output)", TakeVideo},
    {"--sheet", "FILE", "write one PNG that shows all the written frames, small", TakeSheet},
    {"--hash", "", "print \"frame N hash\" for each of them", TakeHash},
    {"--list", "", "print the profiles, composites and themes that there are", TakeList},
    {"--help", "", "print this", TakeHelp},
    {"--version", "", "print the version", TakeVersion},
};

const Option* FindOption(std::string_view name) {
  for (const Option& option : kOptions) {
    if (option.Name == name) return &option;
  }
  return nullptr;
}

/// The arguments as a stream of options, each with its value behind a blank or behind "=".
class ArgumentReader {
 public:
  explicit ArgumentReader(std::span<const std::string_view> arguments) : rest_(arguments) {}

  bool AtEnd() const { return rest_.empty(); }

  Fault TakeNext(RenderOptions& options) {
    const std::string_view argument = Pop();
    const std::size_t equals = std::min(argument.find('='), argument.size());
    const std::string_view name = argument.substr(0, equals);
    const Option* option = FindOption(name);
    if (!option) return "there is no option " + Quoted(name);
    const bool joined = equals < argument.size();
    if (option->Argument.empty()) {
      if (joined) return std::string(name) + " takes no value";
      return option->Take(options, {});
    }
    const std::string_view value = joined ? argument.substr(equals + 1) : PopValue();
    if (value.empty()) return std::string(name) + " needs a value";
    const Fault fault = option->Take(options, value);
    if (!fault) return fault;
    return std::string(name) + ": " + *fault;
  }

 private:
  std::string_view Pop() {
    const std::string_view argument = rest_.front();
    rest_ = rest_.subspan(1);
    return argument;
  }

  /// An option is never the value of the one before it, so a forgotten value is found.
  std::string_view PopValue() {
    if (AtEnd() || rest_.front().starts_with("--")) return {};
    return Pop();
  }

  std::span<const std::string_view> rest_;
};

Fault CheckTogether(const RenderOptions& options) {
  const FramePlan& plan = options.Plan;
  if (!options.WritesFrames() && options.SaveFile.empty()) {
    return "nothing to write: give --png, --y4m, --sheet, --save or --hash";
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
  if (options.Profile && options.Composite) {
    return "--profile and --composite each show one body; give one of them";
  }
  if (plan.Count() == 0) {
    return "--first " + std::to_string(plan.First) + " lies beyond the last frame, " +
           std::to_string(plan.Frames);
  }
  if (!options.SheetFile.empty() && plan.Count() > ContactSheet::kMaxTiles) {
    return "--sheet has room for " + std::to_string(ContactSheet::kMaxTiles) + " frames, not " +
           std::to_string(plan.Count()) + "; raise --every";
  }
  if (options.Hash && options.VideoFile == "-") {
    return "--hash and --y4m - cannot both have the standard output";
  }
  return std::nullopt;
}

}  // namespace

Fault ParseOptions(std::span<const std::string_view> arguments, RenderOptions& options) {
  ArgumentReader reader(arguments);
  const auto endsHere = [&] {
    return options.Action == RenderAction::Help || options.Action == RenderAction::Version;
  };
  while (!reader.AtEnd() && !endsHere()) {
    if (Fault fault = reader.TakeNext(options)) return fault;
  }
  return options.Action == RenderAction::Render ? CheckTogether(options) : std::nullopt;
}

std::string HelpText() {
  constexpr std::size_t column = 22;
  const std::string newLine = "\n" + std::string(column, ' ');
  std::string text =
      "Usage: starfolds-render [OPTION]...\n"
      "Renders universes of stars without a screen, to pictures and video.\n\n";
  for (const Option& option : kOptions) {
    std::string line = "  " + std::string(option.Name) + " " + std::string(option.Argument);
    line.resize(column, ' ');
    for (const char c : option.Help) {
      if (c == '\n') {
        line += newLine;
      } else {
        line += c;
      }
    }
    text += line + "\n";
  }
  text +=
      "\nThe number in parentheses is what holds without the option. A setting beyond its range\n"
      "is held to it. At least one of --png, --y4m, --sheet, --save and --hash must be given.\n";
  return text;
}

Fault MakeSettings(const RenderOptions& options, KeyValueTree& tree, Files& disk,
                   SettingsRecords& records) {
  if (!options.TemplateFile.empty()) {
    TemplateFile file(disk);
    if (const Fault fault = ReadTemplate(file, options.TemplateFile, records)) {
      return "cannot read " + Quoted(options.TemplateFile) + ": " + *fault;
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
    text += std::string(kind) + " " + std::to_string(number) + " " + std::string(name) + "\n";
  };
  for (int i = 0; i < kProfileCount; ++i) add("profile", i, records.Profiles[i].UniFoldName);
  for (int i = 0; i < kCompositeCount; ++i) {
    add("composite", i, records.Composites[i].CompFoldName);
  }
  for (int i = 1; i <= kThemeCount; ++i) add("theme", i, FactoryThemeName(i));
  return text;
}

}  // namespace starfolds

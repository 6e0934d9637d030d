#include "settings/share_link.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "settings/factory.h"
#include "settings/fields.h"
#include "settings/registry.h"
#include "settings/stored_records.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kTemplatePath = "link.sfd";
constexpr std::string_view kNotALink = "This is not a link to a universe";

// The section that only links have. Settings are those of theme 1 of the factory set `Set`.
constexpr std::string_view kLinkSection = "Link";
constexpr std::string_view kSetKey = "Set";
constexpr std::string_view kSceneKey = "Scene";
constexpr std::string_view kSeedKey = "Seed";
constexpr std::string_view kSizeKey = "Size";

constexpr FactorySet kSets[] = {FactorySet::Starfolds4x, FactorySet::Starfolds20};
constexpr std::string_view kProfileWord = "Starfold";
constexpr std::string_view kCompositeWord = "CompFold";

// --- The lines of a template ---

struct Line {
  std::string_view Key;
  std::string_view Value;
};

struct Section {
  std::string_view Name;
  std::vector<Line> Lines;
};

using Sections = std::vector<Section>;

/// The sections and lines of a template that `WriteTemplate` has written.
Sections SectionsOf(std::string_view text) {
  Sections sections;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(kLineEnd), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + kLineEnd.size(), text.size()));
    const std::size_t equals = line.find('=');
    if (line.starts_with('[') && line.ends_with(']')) {
      sections.push_back({line.substr(1, line.size() - 2), {}});
    } else if (equals != std::string_view::npos && !sections.empty()) {
      sections.back().Lines.push_back({line.substr(0, equals), line.substr(equals + 1)});
    }
  }
  return sections;
}

const Section* FindSection(const Sections& sections, std::string_view name) {
  const auto found = std::find_if(sections.begin(), sections.end(),
                                  [&](const Section& section) { return section.Name == name; });
  return found == sections.end() ? nullptr : &*found;
}

bool HasLine(const Section& section, const Line& line) {
  return std::any_of(section.Lines.begin(), section.Lines.end(), [&](const Line& other) {
    return other.Key == line.Key && other.Value == line.Value;
  });
}

void AppendLine(std::string& text, const Line& line) {
  text.append(line.Key).append("=").append(line.Value).append(kLineEnd);
}

std::string TextOf(const Sections& sections) {
  std::string text;
  for (const Section& section : sections) {
    text.append(kLineEnd).append("[").append(section.Name).append("]").append(kLineEnd);
    for (const Line& line : section.Lines) AppendLine(text, line);
  }
  return text;
}

/// The sections of `sections` with the lines whose value is another in `base`.
Sections Differences(const Sections& sections, const Sections& base) {
  Sections different;
  for (const Section& section : sections) {
    const Section* other = FindSection(base, section.Name);
    Section lines{section.Name, {}};
    for (const Line& line : section.Lines) {
      if (!other || !HasLine(*other, line)) lines.Lines.push_back(line);
    }
    if (!lines.Lines.empty()) different.push_back(std::move(lines));
  }
  return different;
}

/// The pieces of `text` from one section's name to the next, by the name. Of several sections with
/// one name the first counts.
std::unordered_map<std::string_view, std::string_view> BodiesOf(std::string_view text) {
  std::unordered_map<std::string_view, std::string_view> bodies;
  std::size_t open = text.find('[');
  while (open != std::string_view::npos) {
    const std::size_t next = std::min(text.find('[', open + 1), text.size());
    const std::string_view piece = text.substr(open + 1, next - open - 1);
    const std::size_t close = piece.find(']');
    if (close != std::string_view::npos)
      bodies.emplace(piece.substr(0, close), piece.substr(close + 1));
    open = next < text.size() ? next : std::string_view::npos;
  }
  return bodies;
}

/// A template with the lines of `changes` and then those of `base` in each section: a reader takes
/// the first line of a key.
std::string Overlaid(std::string_view changes, const Sections& base) {
  auto bodies = BodiesOf(changes);
  std::string text;
  const auto begin = [&](std::string_view name) {
    text.append(kLineEnd).append("[").append(name).append("]").append(kLineEnd);
  };
  for (const Section& section : base) {
    begin(section.Name);
    if (const auto body = bodies.extract(section.Name)) text.append(body.mapped());
    for (const Line& line : section.Lines) AppendLine(text, line);
  }
  for (const auto& [name, body] : bodies) {
    begin(name);
    text.append(body);
  }
  return text;
}

// --- The records as templates ---

/// The advanced values that a picture depends on.
AdvancedSettings SeenInPictures(const AdvancedSettings& advanced) {
  AdvancedSettings seen;
  seen.Adv_TimeDelay = advanced.Adv_TimeDelay;
  seen.FocalLength = advanced.FocalLength;
  seen.Adv_Randomize = advanced.Adv_Randomize;
  seen.Adv_RandomMag = advanced.Adv_RandomMag;
  seen.Adv_RandomExp = advanced.Adv_RandomExp;
  return seen;
}

std::string TemplateOf(SettingsRecords& records) {
  MemoryTree tree;
  SaveAdvancedToRegistry(tree, SeenInPictures(records.Advanced));
  MemoryFiles files;
  TemplateFile file(files);
  file.TemplateFileName = kTemplatePath;
  WriteTemplate(file, tree, records.Universe, records.Profiles, records.Composites, {});
  return files.Contents[file.TemplateFileName];
}

std::string MakeFactoryTemplate(FactorySet set) {
  const auto records = std::make_unique<SettingsRecords>();
  LoadFactorySettings(*records, set, 1);
  return TemplateOf(*records);
}

const std::string& FactoryTemplate(FactorySet set) {
  static const std::string templates[] = {MakeFactoryTemplate(kSets[0]),
                                          MakeFactoryTemplate(kSets[1])};
  return templates[static_cast<int>(set)];
}

std::optional<std::string> ReadTemplateText(std::string text, SettingsRecords& records) {
  MemoryFiles files;
  const std::string path(kTemplatePath);
  files.Contents[path] = std::move(text);
  TemplateFile file(files);
  return ReadTemplate(file, path, records);
}

// --- The section "Link" ---

void AppendScene(std::string& text, FactorySet set, const LinkedScene& scene) {
  const auto add = [&](std::string_view key, const std::string& value) {
    AppendLine(text, {key, value});
  };
  text.append("[").append(kLinkSection).append("]").append(kLineEnd);
  add(kSetKey, std::to_string(static_cast<int>(set)));
  if (scene.What != LinkedScene::Kind::Universe) {
    const bool isProfile = scene.What == LinkedScene::Kind::Profile;
    add(kSceneKey,
        std::string(isProfile ? kProfileWord : kCompositeWord) + std::to_string(scene.Body));
  }
  if (scene.Seed) add(kSeedKey, std::to_string(*scene.Seed));
  if (scene.Surface) {
    add(kSizeKey,
        std::to_string(scene.Surface->Width) + "x" + std::to_string(scene.Surface->Height));
  }
}

/// The whole text as a number from `low` to `high`.
template <class Word>
std::optional<Word> NumberFrom(std::string_view text, Word low, Word high) {
  Word number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (number < low || number > high) return std::nullopt;
  return number;
}

bool ReadBody(std::string_view text, LinkedScene& scene) {
  const bool isProfile = text.starts_with(kProfileWord);
  const std::string_view word = isProfile ? kProfileWord : kCompositeWord;
  if (!text.starts_with(word)) return false;
  const Integer most = static_cast<Integer>((isProfile ? kProfileCount : kCompositeCount) - 1);
  const auto body = NumberFrom<Integer>(text.substr(word.size()), 0, most);
  scene.What = isProfile ? LinkedScene::Kind::Profile : LinkedScene::Kind::Composite;
  scene.Body = body.value_or(Integer{0});
  return body.has_value();
}

bool ReadSize(std::string_view text, LinkedScene& scene) {
  const std::size_t cross = std::min(text.find('x'), text.size());
  constexpr Integer most = std::numeric_limits<Integer>::max();
  const auto width = NumberFrom<Integer>(text.substr(0, cross), 1, most);
  const auto height = NumberFrom<Integer>(text.substr(std::min(cross + 1, text.size())), 1, most);
  if (!width || !height) return false;
  scene.Surface = {*width, *height};
  return true;
}

bool ReadSeed(std::string_view text, LinkedScene& scene) {
  scene.Seed = NumberFrom<std::uint64_t>(text, 0, kLargestSeed);
  return scene.Seed.has_value();
}

/// False if the section has a value that is not valid.
bool ReadScene(const TemplateText& link, LinkedScene& scene) {
  const auto reads = [&](std::string_view key, auto read) {
    const auto value = link.Find(kLinkSection, key);
    return !value || read(*value, scene);
  };
  return reads(kSceneKey, ReadBody) && reads(kSeedKey, ReadSeed) && reads(kSizeKey, ReadSize);
}

}  // namespace

std::string LinkText(SettingsRecords& records, const LinkedScene& scene) {
  const std::string text = TemplateOf(records);
  const Sections sections = SectionsOf(text);
  std::string shortest;
  for (const FactorySet set : kSets) {
    std::string link;
    AppendScene(link, set, scene);
    link += TextOf(Differences(sections, SectionsOf(FactoryTemplate(set))));
    if (shortest.empty() || link.size() < shortest.size()) shortest = std::move(link);
  }
  return shortest;
}

std::optional<std::string> ReadLinkText(std::string_view text, SettingsRecords& records,
                                        LinkedScene& scene) {
  if (text.size() > kLongestLinkText) return "The link is too long";
  const TemplateText link{std::string(text)};
  const auto set = NumberFrom(link.Find(kLinkSection, kSetKey).value_or(std::string()), 0, 1);
  LinkedScene read;
  if (!set || !ReadScene(link, read)) return std::string(kNotALink);
  if (auto fault =
          ReadTemplateText(Overlaid(text, SectionsOf(FactoryTemplate(kSets[*set]))), records))
    return fault;
  scene = read;
  return std::nullopt;
}

}  // namespace starfolds

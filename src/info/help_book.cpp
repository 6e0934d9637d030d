#include "info/help_book.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

#include "desktop/translation.h"
#include "settings/records.h"

namespace starfolds {
namespace {

constexpr HelpTopic kTopics[] = {
    {help::kGettingStarted, "getting-started.md", 0},
    {help::kWindows, "windows.md", 0},
    {kNoContext, "saver-hosts.md", 1},
    {help::kIdle, "idle.md", 1},
    {kNoContext, "command-line.md", 1},
    {kNoContext, "properties.md", 0},
    {help::kUniverseView, "universe-view.md", 1},
    {help::kUniversePage, "universe-creation.md", 2},
    {help::kUniversePage + 1, "universe-new-ambient.md", 2},
    {help::kUniversePage + 2, "universe-tour.md", 2},
    {help::kUniversePage + 3, "composites.md", 2},
    {help::kUniversePage + 4, "universe-gravity.md", 2},
    {help::kPropertyCopy, "property-copy.md", 2},
    {help::kStarfoldView, "starfold-view.md", 1},
    {help::kStarfoldPage, "starfold-shape.md", 2},
    {help::kStarfoldPage + 1, "starfold-flares.md", 2},
    {help::kStarfoldPage + 2, "starfold-comets.md", 2},
    {kNoContext, "styles.md", 1},
    {kNoContext, "style-standard.md", 2},
    {kNoContext, "style-ifs-point.md", 2},
    {kNoContext, "style-ifs-wireframe.md", 2},
    {kNoContext, "style-ifs-fractal.md", 2},
    {kNoContext, "style-nebula.md", 2},
    {kNoContext, "style-quasar.md", 2},
    {kNoContext, "style-graviton.md", 2},
    {kNoContext, "style-starwave.md", 2},
    {kNoContext, "style-user-ifs.md", 2},
    {kNoContext, "style-molecule.md", 2},
    {help::kLevels, "editor-levels.md", 1},
    {help::kIfs, "editor-ifs.md", 1},
    {help::kMolecule, "editor-molecule.md", 1},
    {help::kAdvanced, "advanced.md", 1},
    {help::kFileIo, "templates.md", 1},
    {help::kSystemDiag, "diagnostics.md", 1},
    {help::kAbout, "about.md", 1},
    {kNoContext, "questions.md", 0},
    {kNoContext, "glossary.md", 0},
    {help::kProject, "project.md", 0},
};

// Score of a match by its position.
constexpr int kInTitle = 100;
constexpr int kInHeading = 20;
constexpr int kMostInText = 10;  // one per match, up to this

const char kFirstStyleFile[] = "style-standard.md";  // those of the other styles follow

constexpr int kLongestSearch = 200;  // characters
constexpr int kMostWords = 12;
constexpr int kLineBefore = 40;  // characters shown before the first match
constexpr int kLineLength = 140;

QString WithoutMarkup(QString markdown) {
  static const QRegularExpression picture(R"(!\[[^\]\n]*\]\([^)\n]*\))");
  static const QRegularExpression link(R"(\[([^\]\n]*)\]\([^)\n]*\))");
  static const QRegularExpression rule(R"(^[|:\- ]+$)", QRegularExpression::MultilineOption);
  static const QRegularExpression columns(R"(\||^#+ |^ *[-*] )",
                                          QRegularExpression::MultilineOption);
  static const QRegularExpression marks(R"([*`\\])");
  markdown.remove(picture).replace(link, R"(\1)").remove(rule).replace(columns, " ").remove(marks);
  return markdown.simplified();
}

/// Headings, paragraphs and entries of lists, each in one line.
QStringList PartsOf(const QString& markdown) {
  QStringList parts;
  bool begins = true;
  for (const QString& line : markdown.split('\n')) {
    const bool isHeading = line.startsWith('#');
    if (line.isEmpty() || isHeading || line.startsWith("- ")) begins = true;
    if (line.isEmpty()) continue;
    if (begins) {
      parts.append(line);
    } else {
      parts.last() += ' ' + line.trimmed();
    }
    begins = isHeading;
  }
  return parts;
}

QString FirstSentence(const QString& markdown) {
  static const QRegularExpression sentence(R"(^.+?[.!?](?=\s+["„\p{Lu}]|$))",
                                           QRegularExpression::UseUnicodePropertiesOption);
  return sentence.match(WithoutMarkup(markdown)).captured();
}

bool HoldsAll(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// The text around the first match of a word, in whole words.
QString LineAround(const QString& text, const QString& word) {
  const qsizetype place = text.indexOf(word, 0, Qt::CaseInsensitive);
  qsizetype begin = std::max<qsizetype>(place - kLineBefore, 0);
  if (begin > 0) begin = std::min(text.indexOf(' ', begin) + 1, place);
  const QString line = text.mid(begin, kLineLength);
  return begin > 0 ? "... " + line : line;
}

}  // namespace

std::span<const HelpTopic> HelpTopics() { return kTopics; }

HelpBook::HelpBook() {
  for (const HelpTopic& topic : kTopics) {
    pages_.push_back(ReadPage(topic));
    IndexSettings(Count() - 1);
  }
}

/// A setting is described where its name stands before its range: "`Name`: 1 to 20, default 5.", or
/// "`Name`: 1 bis 20, Vorgabe 5." The sentence follows it, or begins the next paragraph of the
/// section.
void HelpBook::IndexSettings(int topic) {
  static const QRegularExpression described(
      R"(`(\w+)`\)?: [\d.]+ (?:to|bis) \d+(?:\.\d+)?(?: \([^()]*\))?)"
      R"((?:, (?:default|Vorgabe) \d+(?:\.\d+)?(?: \((?:[^()]|\([^()]*\))*\))?)?\.)");
  static const QRegularExpression named(R"(`((?:Starfold|Universe|IFS|Atom)_\w+)`)");
  QString heading;
  std::vector<decltype(settings_)::iterator> open;  // the sentence is still missing
  for (const QString& part : PartsOf(pages_[topic].Markdown)) {
    if (part.startsWith('#')) {
      heading = WithoutMarkup(part);
      open.clear();
      continue;
    }
    auto found = described.globalMatch(part);
    if (!found.hasNext()) {
      const QString sentence = part.startsWith('!') ? QString() : FirstSentence(part);
      if (!sentence.isEmpty()) {
        for (const auto& entry : open) entry->second.Sentence = sentence;
        open.clear();
      }
      // A name without a range is explained by the sentence around it.
      for (auto names = named.globalMatch(part); names.hasNext();) {
        const std::string name = names.next().captured(1).toStdString();
        if (!settings_.contains(name)) settings_.insert({name, {topic, heading, sentence}});
      }
    }
    while (found.hasNext()) {
      const QRegularExpressionMatch match = found.next();
      const QString after = part.mid(match.capturedEnd()).trimmed();
      const QString sentence = after.startsWith('`') ? QString() : FirstSentence(after);
      const auto entry =
          settings_.insert({match.captured(1).toStdString(), {topic, heading, sentence}});
      if (sentence.isEmpty()) open.push_back(entry);
    }
  }
}

std::optional<HelpBook::SettingText> HelpBook::OfSetting(std::string_view name, int style) const {
  const int first = *TopicOfFile(kFirstStyleFile);
  const auto rank = [&](const SettingText& text) {
    const int shown = text.Topic - first;
    if (shown == style && style >= 0) return 0;
    return shown >= 0 && shown < kStyleCount ? 2 : 1;
  };
  const auto [begin, end] = settings_.equal_range(name);
  const auto best = std::min_element(
      begin, end, [&](const auto& a, const auto& b) { return rank(a.second) < rank(b.second); });
  if (best == end) return std::nullopt;
  return best->second;
}

HelpBook::Page HelpBook::ReadPage(const HelpTopic& topic) {
  const auto name =
      QString::fromLatin1(topic.File.data(), static_cast<qsizetype>(topic.File.size()));
  // A page without a translation is shown in English.
  const QString translated = ":/" + Translated(STARFOLDS_TEXT("help/en")) + '/' + name;
  QFile file(QFile::exists(translated) ? translated : kHelpFolder + name);
  Page page;
  if (file.open(QIODevice::ReadOnly)) page.Markdown = QString::fromUtf8(file.readAll());
  for (const QString& line : page.Markdown.split('\n')) {
    if (!line.startsWith('#')) continue;
    const QString heading = WithoutMarkup(line);
    if (page.Title.isEmpty()) page.Title = heading;
    page.Headings += heading + '\n';
  }
  page.Plain = WithoutMarkup(page.Markdown);
  return page;
}

int HelpBook::TopicOf(Integer context) const {
  if (context == kNoContext) return 0;
  const auto* const found = std::ranges::find(kTopics, context, &HelpTopic::Context);
  return found == std::end(kTopics) ? 0 : static_cast<int>(found - kTopics);
}

std::optional<int> HelpBook::TopicOfFile(const QString& file) const {
  const std::string name = file.toStdString();
  const auto* const found = std::ranges::find(kTopics, name, &HelpTopic::File);
  if (found == std::end(kTopics)) return std::nullopt;
  return static_cast<int>(found - kTopics);
}

std::vector<HelpBook::Hit> HelpBook::Search(const QString& text) const {
  const QStringList words = SearchWords(text);
  std::vector<Hit> hits;
  if (words.isEmpty()) return hits;
  for (int topic = 0; topic < Count(); ++topic) {
    const Page& page = pages_[topic];
    if (!HoldsAll(page.Plain, words)) continue;
    Hit hit{topic, LineAround(page.Plain, words.front()), 0};
    for (const QString& word : words) {
      if (page.Title.contains(word, Qt::CaseInsensitive)) hit.Score += kInTitle;
      if (page.Headings.contains(word, Qt::CaseInsensitive)) hit.Score += kInHeading;
      hit.Score +=
          std::min(static_cast<int>(page.Plain.count(word, Qt::CaseInsensitive)), kMostInText);
    }
    hits.push_back(hit);
  }
  std::ranges::stable_sort(hits, std::greater(), &Hit::Score);
  return hits;
}

QStringList SearchWords(const QString& text) {
  static const QRegularExpression between(R"([\s"]+)");
  return text.left(kLongestSearch).split(between, Qt::SkipEmptyParts).mid(0, kMostWords);
}

}  // namespace starfolds

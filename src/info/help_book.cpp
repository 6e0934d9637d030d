#include "info/help_book.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace starfolds {
namespace {

constexpr HelpTopic kTopics[] = {
    {help::kGettingStarted, "getting-started.md", 0},
    {help::kWindows, "windows.md", 0},
    {kNoContext, "saver-hosts.md", 1},
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
  for (const HelpTopic& topic : kTopics) pages_.push_back(ReadPage(topic));
}

HelpBook::Page HelpBook::ReadPage(const HelpTopic& topic) {
  const auto name =
      QString::fromLatin1(topic.File.data(), static_cast<qsizetype>(topic.File.size()));
  QFile file(kHelpFolder + name);
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

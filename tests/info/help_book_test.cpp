#include "info/help_book.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTranslator>
#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "desktop/translation.h"
#include "numbers/text.h"
#include "settings/dialog_rows.h"
#include "settings/idle_settings.h"

namespace starfolds {
namespace {

std::string FileOf(int topic) { return std::string(HelpTopics()[topic].File); }

/// Every place of a pattern's first group in the text of a topic.
std::vector<std::string> AllOf(const HelpBook& book, int topic, const char* pattern) {
  std::vector<std::string> found;
  auto places = QRegularExpression(pattern).globalMatch(book.Markdown(topic));
  while (places.hasNext()) found.push_back(places.next().captured(1).toStdString());
  return found;
}

TEST(HelpBookTest, EveryDialogFindsItsOwnTopic) {
  const HelpBook book;
  for (const Integer context : {help::kGettingStarted, kNoContext, Integer{4711}}) {
    EXPECT_EQ(FileOf(book.TopicOf(context)), "getting-started.md") << context;
  }
  for (const Integer context :
       {help::kProject, help::kFileIo, help::kSystemDiag, help::kUniverseView, help::kUniversePage,
        help::kStarfoldView, help::kStarfoldPage, help::kIfs, help::kLevels, help::kAdvanced,
        help::kIdle, help::kAbout}) {
    EXPECT_NE(book.TopicOf(context), 0) << context;
  }
}

TEST(HelpBookTest, EveryFileIsListedOnceAndNotEmpty) {
  const HelpBook book;
  std::set<std::string> files;
  int level = -1;
  for (int topic = 0; topic < book.Count(); ++topic) {
    EXPECT_TRUE(files.insert(FileOf(topic)).second) << FileOf(topic);
    EXPECT_EQ(AllOf(book, topic, "(?m)^(# .)").size(), 1U) << FileOf(topic);
    EXPECT_GT(book.Markdown(topic).size(), 400) << FileOf(topic);
    EXPECT_LE(HelpTopics()[topic].Level, level + 1) << FileOf(topic) << " hangs in the air";
    level = HelpTopics()[topic].Level;
  }
  std::set<std::string> written;
  for (const QString& file : QDir(STARFOLDS_HELP_FOLDER).entryList({"*.md"}, QDir::Files)) {
    written.insert(file.toStdString());
  }
  EXPECT_EQ(files, written);
}

TEST(HelpBookTest, EveryLinkLeadsSomewhereAndEveryTopicIsLinked) {
  const HelpBook book;
  std::set<std::string> reached{FileOf(0)};
  for (int topic = 0; topic < book.Count(); ++topic) {
    for (const std::string& picture : AllOf(book, topic, R"(!\[[^\]]+\]\(pictures/([^)]*)\))")) {
      EXPECT_TRUE(QFile::exists(QString(kHelpFolder) + "pictures/" + picture.c_str())) << picture;
    }
    for (const std::string& link : AllOf(book, topic, R"((?<!!)\[[^\]]*\]\(([^)]*)\))")) {
      const bool web = link.starts_with("https://");
      EXPECT_TRUE(web || book.TopicOfFile(link.c_str())) << FileOf(topic) << ": " << link;
      reached.insert(link);
    }
  }
  for (int topic = 0; topic < book.Count(); ++topic) {
    EXPECT_TRUE(reached.contains(FileOf(topic))) << FileOf(topic);
  }
}

/// What the help says of settings: "`Name`: 1 to 20, default 5", or the same in the columns of a
/// table.
struct Description {
  std::string File;
  double Low, High;
  std::optional<double> Default;
};

std::multimap<std::string, Description> Descriptions(const HelpBook& book) {
  static const QRegularExpression pattern(R"(`(\w+)`\)?[ :|]+([\d.]+) (?:to|bis) ([\d.]*\d))"
                                          R"((?:(?:, default|, Vorgabe| *\|) *(\d+(?:\.\d+)?))?)");
  std::multimap<std::string, Description> found;
  for (int topic = 0; topic < book.Count(); ++topic) {
    auto places = pattern.globalMatch(book.Markdown(topic));
    while (places.hasNext()) {
      const auto place = places.next();
      Description said{
          FileOf(topic), place.captured(2).toDouble(), place.captured(3).toDouble(), {}};
      if (!place.captured(4).isEmpty()) said.Default = place.captured(4).toDouble();
      found.insert({place.captured(1).toStdString(), said});
    }
  }
  return found;
}

/// Translates the help while it exists; "" is English.
class Translation {
 public:
  explicit Translation(const char* file) {
    EXPECT_TRUE(*file == '\0' || InstallTranslation(file)) << file;
  }
  ~Translation() {
    for (QTranslator* each : qApp->findChildren<QTranslator*>()) delete each;
  }
};
constexpr const char* kTranslations[] = {"", ":/translations/starfolds_de.qm"};

class HelpOfSettingsTest : public testing::TestWithParam<const char*> {
 protected:
  /// Settings that dialogs edit are there to be found, and wherever a range is told it is the one
  /// of the dialog.
  template <class Record>
  void ExpectDescribed(std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
      if (!field.Odd.InDialog) continue;
      EXPECT_TRUE(IsNamed(field.Name)) << field.Name;
      if (field.Rule != RangeRule::Fixed) continue;
      const double high = field.Odd.DialogHigh > 0 ? field.Odd.DialogHigh : field.High;
      const auto [begin, end] = Described.equal_range(std::string(field.Name));
      for (auto place = begin; place != end; ++place) {
        const Description& said = place->second;
        EXPECT_EQ(said.Low, field.Low) << field.Name << " in " << said.File;
        EXPECT_EQ(said.High, high) << field.Name << " in " << said.File;
        const double standard = LenientNumber(DefaultText(field));
        EXPECT_EQ(said.Default.value_or(standard), standard) << field.Name << " in " << said.File;
      }
    }
  }

  const Translation Language{GetParam()};
  const HelpBook Book;
  const std::multimap<std::string, Description> Described = Descriptions(Book);

 private:
  bool IsNamed(std::string_view name) const {
    const QString marked = '`' + QString::fromStdString(std::string(name)) + '`';
    for (int topic = 0; topic < Book.Count(); ++topic) {
      if (Book.Markdown(topic).contains(marked)) return true;
    }
    return false;
  }
};

TEST_P(HelpOfSettingsTest, NamesEachOneAndTellsTheRangeOfItsDialog) {
  ExpectDescribed(UniverseFields());
  ExpectDescribed(ProfileFields());
  ExpectDescribed(CompositeFields());
  ExpectDescribed(AdvancedFields());
  ExpectDescribed(IdleFields());
  ExpectDescribed(IfsCenterFields());
  ExpectDescribed(IfsPointFields());
  ExpectDescribed(AtomCenterFields());
  ExpectDescribed(AtomPointFields());
}

TEST_P(HelpOfSettingsTest, EachStyleTellsItsOwnRanges) {
  const int first = *Book.TopicOfFile("style-standard.md");
  for (int style = 0; style < kStyleCount; ++style) {
    const std::string name(StyleNames()[style]);
    EXPECT_EQ(Book.Title(first + style).toStdString(), Translated(name).simplified().toStdString());
    for (const Field<StarfoldProfile>& field : ProfileFields()) {
      if (field.Rule == RangeRule::None || field.Rule == RangeRule::Fixed) continue;
      const Limits limits = StyleLimits(field.Rule, static_cast<Integer>(style));
      const auto [begin, end] = Described.equal_range(std::string(field.Name));
      const auto said = std::find_if(begin, end, [&](const auto& place) {
        return place.second.File == FileOf(first + style);
      });
      ASSERT_NE(said, end) << field.Name << " in " << FileOf(first + style);
      EXPECT_EQ(said->second.Low, limits.Low) << field.Name << " in " << FileOf(first + style);
      EXPECT_EQ(said->second.High, limits.High) << field.Name << " in " << FileOf(first + style);
    }
  }
}

/// The sentences of tool tips, and where F1 leads.
TEST_P(HelpOfSettingsTest, EverySettingOfThePagesHasASentence) {
  for (const UniverseRow& row : UniverseRows()) {
    const auto text = Book.OfSetting(FieldOf(row.What).Name, kAnyStyle);
    ASSERT_TRUE(text) << FieldOf(row.What).Name;
    EXPECT_TRUE(text->Sentence.endsWith('.')) << FieldOf(row.What).Name;
  }
  for (int style = 0; style < kStyleCount; ++style) {
    for (const bool hue : {false, true}) {
      for (const StarfoldRow& row : hue ? PixHueRows() : StarfoldRows()) {
        const std::string name(FieldOf(row, style).Name);
        const auto text = Book.OfSetting(name, style);
        ASSERT_TRUE(text) << name;
        EXPECT_TRUE(text->Sentence.size() > 12 && text->Sentence.endsWith('.'))
            << name << " of " << style << ": " << text->Sentence.toStdString();
        EXPECT_TRUE(Book.Markdown(text->Topic).contains("# " + text->Heading)) << name;
      }
    }
  }
  EXPECT_EQ(FileOf(Book.OfSetting("Starfold_QG_Force", 5)->Topic), "style-quasar.md");
  EXPECT_EQ(FileOf(Book.OfSetting("Starfold_Radius", 5)->Topic), "starfold-shape.md");
  const bool german = *GetParam() != '\0';
  EXPECT_EQ(Book.OfSetting("Starfold_Rotation", 0)->Heading,
            german ? "Radius, Drehung" : "Radius, Rotation");
  EXPECT_EQ(
      Book.OfSetting("Starfold_Radius", 0)->Sentence,
      german ? "Der Radius ist die Größe des Körpers." : "The radius is the size of the body.");
  EXPECT_FALSE(Book.OfSetting("Starfold_Nothing", 0));
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpOfSettingsTest, testing::ValuesIn(kTranslations));

/// A translated page has the sections, settings, links, pictures and tables of the English one.
TEST(HelpBookTest, TranslatedPagesAreInStepWithTheEnglishOnes) {
  const HelpBook english;
  const Translation language(kTranslations[1]);
  const HelpBook german;
  int translated = 0;
  for (int topic = 0; topic < english.Count(); ++topic) {
    translated += german.Markdown(topic) != english.Markdown(topic);
    for (const char* pattern :
         {R"((?m)^(#+ ))", R"(`(\w+_\w+)`)", R"(\]\(([^)]*)\))", R"((?m)^(\||- |\d+\. ))"}) {
      std::vector<std::string> parts = AllOf(german, topic, pattern);
      std::vector<std::string> wanted = AllOf(english, topic, pattern);
      std::ranges::sort(parts);
      std::ranges::sort(wanted);
      EXPECT_EQ(parts, wanted) << FileOf(topic) << ": " << pattern;
    }
  }
  EXPECT_GT(translated, 0);
}

TEST(HelpSearchTest, FindsAllWordsWhateverTheirCapitalsTitlesFirst) {
  const HelpBook book;
  const auto hits = book.Search("  mOleCule \"editor ");
  ASSERT_FALSE(hits.empty());
  EXPECT_EQ(HelpTopics()[hits.front().Topic].File, "editor-molecule.md");
  EXPECT_TRUE(hits.front().Line.contains("molecule", Qt::CaseInsensitive));
  for (const HelpBook::Hit& hit : hits) {
    EXPECT_TRUE(book.Markdown(hit.Topic).contains("editor", Qt::CaseInsensitive));
    EXPECT_LE(hit.Score, hits.front().Score);
  }
  for (const char* nothing : {"", " \" ", "molecule xyzzy"}) {
    EXPECT_TRUE(book.Search(nothing).empty()) << nothing;
  }
}

TEST(HelpSearchTest, NoTextHurts) {
  const HelpBook book;
  for (const QString& text :
       {QString(1'000'000, 'a'), QString("a ").repeated(500'000), QString("(.*)*$[").repeated(999),
        QString(QChar(0xD800)), QString(QChar(0)), QString::fromUtf8("\xE2\x80\xAE*`|")}) {
    EXPECT_LE(book.Search(text).size(), HelpTopics().size());
    EXPECT_LE(SearchWords(text).size(), 12);
  }
}

}  // namespace
}  // namespace starfolds

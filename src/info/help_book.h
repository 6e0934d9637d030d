// The text of the help: its topics in the order of the contents, and the full-text search.
#pragma once

#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/help.h"

namespace starfolds {

/// Of a topic that no dialog refers to.
inline constexpr Integer kNoContext = 0;

struct HelpTopic {
  Integer Context;  // context number, or `kNoContext`
  std::string_view File;
  int Level;  // depth in the contents, from 0
};

/// In the order of the contents. The first one is the home page.
std::span<const HelpTopic> HelpTopics();

/// Folder of the help's files in the program's resources, ending in a slash. Each translation has
/// a folder in it.
inline constexpr char kHelpFolder[] = ":/help/";

class HelpBook {
 public:
  /// Reads all topics, in the user's language where they are translated.
  HelpBook();

  int Count() const { return static_cast<int>(pages_.size()); }
  /// The first heading of the topic.
  const QString& Title(int topic) const { return pages_[topic].Title; }
  const QString& Markdown(int topic) const { return pages_[topic].Markdown; }

  /// Index of the topic with a context number; that of the home page if there is none.
  int TopicOf(Integer context) const;
  std::optional<int> TopicOfFile(const QString& file) const;

  /// What the help says of a setting.
  struct SettingText {
    int Topic;
    QString Heading;   // of the section
    QString Sentence;  // the first one about the setting
  };
  /// By its stored name. The page of a style (0 to 9) precedes all others, which come before those
  /// of other styles. nullopt if no topic names the setting.
  std::optional<SettingText> OfSetting(std::string_view name, int style) const;

  struct Hit {
    int Topic;
    QString Line;  // the text around the first match
    int Score;
  };
  /// The topics that contain every word of `text`, without regard to case, best match first.
  std::vector<Hit> Search(const QString& text) const;

 private:
  struct Page {
    QString Title;
    QString Markdown;
    QString Headings;  // one per line
    QString Plain;     // the text without markup
  };
  static Page ReadPage(const HelpTopic& topic);
  void IndexSettings(int topic);

  std::vector<Page> pages_;
  std::multimap<std::string, SettingText, std::less<>> settings_;
};

/// The words that a search for `text` looks for. Quotation marks separate words as blanks do. Very
/// long text is truncated.
QStringList SearchWords(const QString& text);

}  // namespace starfolds

// The text of the help: its topics in the order of the contents, and the search over all of them.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/help.h"

namespace starfolds {

/// A topic that only the contents, a link or the search lead to.
inline constexpr Integer kNoContext = 0;

struct HelpTopic {
  Integer Context;  // context number, or `kNoContext`
  std::string_view File;
  int Level;  // how deep it stands in the contents; 0 is the outermost
};

/// In the order of the contents. The first one is the home page.
std::span<const HelpTopic> HelpTopics();

/// Where the files of the help stand in the program, with a slash at its end.
inline constexpr char kHelpFolder[] = ":/help/";

class HelpBook {
 public:
  /// Reads all topics.
  HelpBook();

  int Count() const { return static_cast<int>(pages_.size()); }
  /// The first heading of the topic.
  const QString& Title(int topic) const { return pages_[topic].Title; }
  const QString& Markdown(int topic) const { return pages_[topic].Markdown; }

  /// The topic of a context number; the home page where there is none of that number.
  int TopicOf(Integer context) const;
  std::optional<int> TopicOfFile(const QString& file) const;

  struct Hit {
    int Topic;
    QString Line;  // the text around the first of the words
    int Score;
  };
  /// The topics that hold every word of `text`, capitals or not, the best first.
  std::vector<Hit> Search(const QString& text) const;

 private:
  struct Page {
    QString Title;
    QString Markdown;
    QString Headings;  // one in a line
    QString Plain;     // the text without its markup
  };
  static Page ReadPage(const HelpTopic& topic);

  std::vector<Page> pages_;
};

/// The words that a search for `text` looks for. Quotation marks part words, too, and a text
/// beyond all reason is cut.
QStringList SearchWords(const QString& text);

}  // namespace starfolds

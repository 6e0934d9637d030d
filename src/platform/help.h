// The help that comes with the program, by the context numbers of its topics.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "numbers/words.h"

namespace starfolds {

/// Context numbers: each belongs to one topic permanently, so that a dialog finds its topic
/// whatever the topic's title and position are.
namespace help {
inline constexpr Integer kGettingStarted = 10;
inline constexpr Integer kWindows = 15;
inline constexpr Integer kProject = 20;  // the project's home page, and how to contribute
inline constexpr Integer kFileIo = 500;
inline constexpr Integer kSystemDiag = 550;
inline constexpr Integer kUniverseView = 1000;
/// Plus the index of the page: creation, new and ambient stars, tour, composites, gravity.
inline constexpr Integer kUniversePage = 1010;
inline constexpr Integer kStarfoldView = 2000;
/// Plus the index of the page: shape, flares, comets.
inline constexpr Integer kStarfoldPage = 2010;
inline constexpr Integer kPropertyCopy = 3000;
inline constexpr Integer kIfs = 7100;
inline constexpr Integer kMolecule = 7300;
inline constexpr Integer kLevels = 7400;
inline constexpr Integer kAdvanced = 8000;
inline constexpr Integer kIdle = 8100;
inline constexpr Integer kAbout = 9000;
}  // namespace help

inline constexpr int kAnyStyle = -1;

class Help {
 public:
  virtual ~Help() = default;

  /// Opens the help at a topic, or switches to it. It can be read while a dialog is open.
  virtual void ShowTopic(Integer context) = 0;
  /// Opens the help at the section about a setting, by its stored name. If the page of a style of
  /// body describes it, that one. `style` is 0 to 9, or `kAnyStyle`.
  virtual void ShowSetting(std::string_view setting, int style) = 0;
  /// What this section says first of the setting: one sentence, or empty.
  virtual std::string SentenceOf(std::string_view setting, int style) = 0;
  virtual void ShowContents() = 0;
  virtual void ShowSearch() = 0;
  /// Closes the help if it is open.
  virtual void Quit() = 0;
};

/// Records the calls.
class MemoryHelp : public Help {
 public:
  std::vector<Integer> Topics;
  std::vector<std::string> Settings;
  int Contents = 0;
  int Searches = 0;
  int Quits = 0;

  void ShowTopic(Integer context) override { Topics.push_back(context); }
  void ShowSetting(std::string_view setting, int) override { Settings.emplace_back(setting); }
  std::string SentenceOf(std::string_view setting, int) override {
    return "About " + std::string(setting) + ".";
  }
  void ShowContents() override { ++Contents; }
  void ShowSearch() override { ++Searches; }
  void Quit() override { ++Quits; }
};

}  // namespace starfolds

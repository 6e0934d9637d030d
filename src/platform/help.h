// The help that comes with the program, by the numbers of its topics.
#pragma once

#include <vector>

#include "numbers/words.h"

namespace starfolds {

/// Context numbers: each names one topic for good, so that a dialog finds its own whatever becomes
/// of the topic's title and place.
namespace help {
inline constexpr Integer kGettingStarted = 10;
inline constexpr Integer kWindows = 15;
inline constexpr Integer kProject = 20;  // where the project lives, and how to take part
inline constexpr Integer kFileIo = 500;
inline constexpr Integer kSystemDiag = 550;
inline constexpr Integer kUniverseView = 1000;
/// Plus the page's position: creation, new and ambient stars, tour, composites, gravity.
inline constexpr Integer kUniversePage = 1010;
inline constexpr Integer kStarfoldView = 2000;
/// Plus the page's position: shape, flares, comets.
inline constexpr Integer kStarfoldPage = 2010;
inline constexpr Integer kPropertyCopy = 3000;
inline constexpr Integer kIfs = 7100;
inline constexpr Integer kMolecule = 7300;
inline constexpr Integer kLevels = 7400;
inline constexpr Integer kAdvanced = 8000;
inline constexpr Integer kAbout = 9000;
}  // namespace help

class Help {
 public:
  virtual ~Help() = default;

  /// Opens the help at a topic, or brings it there. It can be read beside a dialog that waits.
  virtual void ShowTopic(Integer context) = 0;
  virtual void ShowContents() = 0;
  virtual void ShowSearch() = 0;
  /// Closes it, if it is open.
  virtual void Quit() = 0;
};

/// Notes what was asked for.
class MemoryHelp : public Help {
 public:
  std::vector<Integer> Topics;
  int Contents = 0;
  int Searches = 0;
  int Quits = 0;

  void ShowTopic(Integer context) override { Topics.push_back(context); }
  void ShowContents() override { ++Contents; }
  void ShowSearch() override { ++Searches; }
  void Quit() override { ++Quits; }
};

}  // namespace starfolds

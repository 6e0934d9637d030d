#include "app/saver_screens.h"

#include <QGuiApplication>
#include <utility>

namespace starfolds {
namespace {

bool CoversAll(const StartOptions& options) { return !options.Screen && !options.Companion; }

}  // namespace

std::optional<ScreenPlace> PlaceOfSaver(const StartOptions& options) {
  const ScreenPlace place{options.Screen.value_or(1) - 1, !options.Companion};
  if (FindScreen(place.Number) == nullptr) return std::nullopt;
  return place;
}

/// A companion is a saver, whatever switch the system passed. Its options are appended, because the
/// last of several values counts, and a "--" would make them arguments. Each screen has its own
/// seed.
std::vector<std::string> CompanionArguments(const StartOptions& options, int screen) {
  std::vector<std::string> arguments = options.Given;
  std::erase(arguments, "--");
  for (const char* const more : {"--saver", "--companion", "--screens"}) arguments.push_back(more);
  arguments.push_back(std::to_string(screen + 1));
  if (options.Seed) {
    arguments.push_back("--seed");
    arguments.push_back(std::to_string(*options.Seed + static_cast<unsigned>(screen)));
  }
  return arguments;
}

OtherScreens::OtherScreens(const StartOptions& options, std::function<void()> left)
    : options_(options), companions_(std::move(left)) {
  if (!CoversAll(options_)) return;
  Cover();
  screens_.emplace([this] { Cover(); });
}

void OtherScreens::Cover() {
  companions_.EndAll();
  const int screens = static_cast<int>(QGuiApplication::screens().size());
  for (int screen = 1; screen < screens; ++screen) {
    companions_.Start(CompanionArguments(options_, screen));
  }
}

}  // namespace starfolds

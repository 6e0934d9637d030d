#include "desktop/screen_watch.h"

#include <QGuiApplication>
#include <QScreen>
#include <chrono>
#include <utility>

namespace starfolds {
namespace {

/// A change is complete when no event has arrived for this long.
constexpr std::chrono::milliseconds kRest{200};

}  // namespace

QScreen* FindScreen(int number) {
  return number >= 0 ? QGuiApplication::screens().value(number) : nullptr;
}

ScreenWatch::ScreenWatch(std::function<void()> changed) {
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  QObject::connect(&rest_, &QTimer::timeout, &context_, std::move(changed));
  const auto restart = [this] { rest_.start(); };
  QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context_, restart);
  QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &context_, restart);
  QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_, [this](QScreen* screen) {
    Watch(screen);
    rest_.start();
  });
  for (QScreen* const screen : QGuiApplication::screens()) Watch(screen);
}

void ScreenWatch::Watch(QScreen* screen) {
  QObject::connect(screen, &QScreen::geometryChanged, &context_, [this] { rest_.start(); });
}

}  // namespace starfolds

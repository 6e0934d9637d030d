// What the idle service has found on this desktop.
#pragma once

#include <QDBusConnection>
#include <functional>
#include <memory>

#include "idle/desktop_watches.h"
#include "idle/hindrances.h"
#include "idle/mutter_source.h"
#include "idle/wayland_link.h"
#include "idle/x11_link.h"

namespace starfolds {

/// Connects to the window system and the buses. Bus services answer later, from the event loop.
class IdleSurroundings {
 public:
  /// `lost` is called when the window system has ended. `batteryLimit` as in `BatteryWatch`.
  IdleSurroundings(const std::function<void()>& lost, Integer batteryLimit);

  /// The source of idleness; nullptr if this desktop has none.
  IdleSource* Source() const { return source_.get(); }
  Hindrances& Against() { return hindrances_; }
  BatteryWatch& Battery() { return battery_; }
  const QDBusConnection& SessionBus() const { return sessionBus_; }

  /// Whether a window system was reached at all.
  bool HasDisplay() const { return wayland_ || x11_; }

 private:
  std::unique_ptr<IdleSource> ChooseSource();

  Hindrances hindrances_;
  QDBusConnection sessionBus_, systemBus_;
  std::unique_ptr<WaylandLink> wayland_;
  std::unique_ptr<X11Link> x11_;
  std::unique_ptr<IdleSource> source_;
  SessionWatch session_;
  BatteryWatch battery_;
  DesktopWatch desktop_;
};

}  // namespace starfolds

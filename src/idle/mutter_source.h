// Idleness on GNOME, whose compositor tells it on D-Bus only.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include "idle/idle_source.h"

namespace starfolds {

class MutterSource : public QObject, public IdleSource {
  Q_OBJECT

 public:
  /// Whether the compositor is on this bus.
  static bool IsOn(const QDBusConnection& bus);

  explicit MutterSource(const QDBusConnection& bus);

  QString Name() const override { return "org.gnome.Mutter.IdleMonitor (D-Bus)"; }
  void Watch(IdleTime time) override;

 private:
  Q_SLOT void WatchFired(uint watch);
  void WatchForInput();

  QDBusConnection bus_;
  QDBusServiceWatcher owner_;
  IdleTime time_{};
  uint idleWatch_ = 0;   // 0: none
  uint inputWatch_ = 0;  // the same
  int round_ = 0;        // of `Watch`, because answers come later
};

}  // namespace starfolds

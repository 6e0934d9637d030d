// What the desktop and the system say against a screen saver, on D-Bus.
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "idle/bus_properties.h"
#include "idle/hindrances.h"
#include "numbers/words.h"

namespace starfolds {

/// The user's session and the machine, by logind.
class SessionWatch : public QObject {
  Q_OBJECT

 public:
  SessionWatch(const QDBusConnection& systemBus, Hindrances& hindrances);

 private:
  Q_SLOT void PrepareForSleep(bool begins);
  Q_SLOT void Lock();
  void WatchSession(const QString& path);

  QDBusConnection bus_;
  Hindrances& hindrances_;
  BusProperties manager_;
  std::unique_ptr<BusProperties> session_;
};

/// The battery, by UPower.
class BatteryWatch {
  Q_DECLARE_TR_FUNCTIONS(BatteryWatch)

 public:
  /// `limit`: percent of charge below which the saver does not run on battery, 0 to 100; 100:
  /// never.
  BatteryWatch(const QDBusConnection& systemBus, Hindrances& hindrances, Integer limit);

  void SetLimit(Integer limit);

 private:
  void Report();

  Hindrances& hindrances_;
  Integer limit_;
  bool onBattery_ = false;
  double charge_ = 100;  // percent
  BusProperties power_, battery_;
};

/// The screen lock of a desktop, which may also blank the screen without locking it.
class LockWatch : public QObject {
  Q_OBJECT

 public:
  LockWatch(const QDBusConnection& sessionBus, BusPlace lock, Hindrances& hindrances);

 private:
  Q_SLOT void ActiveChanged(bool active);
  void Ask();

  QDBusConnection bus_;
  BusPlace lock_;
  Hindrances& hindrances_;
  QDBusServiceWatcher owner_;
};

/// What players and calls ask of the session managers, the screen locks of desktops, and desktops
/// that show screen savers themselves.
class DesktopWatch : public QObject {
  Q_OBJECT

 public:
  DesktopWatch(const QDBusConnection& sessionBus, Hindrances& hindrances);

 private:
  Q_SLOT void HasInhibitChanged(bool has);
  void WatchHost(const QString& service, const QString& reason);

  QDBusConnection bus_;
  Hindrances& hindrances_;
  BusProperties gnomeSession_, gnomeScreen_;
  std::vector<std::unique_ptr<LockWatch>> locks_;
  std::vector<std::unique_ptr<QDBusServiceWatcher>> hosts_;
};

/// The service `org.freedesktop.ScreenSaver`, where the desktop has none: players and browsers ask
/// it not to start the saver. If another program takes the name later, it gets it.
class InhibitService : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

 public:
  InhibitService(const QDBusConnection& sessionBus, Hindrances& hindrances);

  /// Takes the service's name, if nobody has it.
  void Offer();

  void SetShowing(bool showing);

  Q_SLOT Q_SCRIPTABLE uint Inhibit(const QString& application, const QString& reason);
  Q_SLOT Q_SCRIPTABLE void UnInhibit(uint cookie);
  Q_SLOT Q_SCRIPTABLE bool GetActive() const { return showing_; }

 signals:
  Q_SCRIPTABLE void ActiveChanged(bool active);

 private:
  struct Inhibition {
    QString Caller;
    QString Application;
  };
  void Drop(const QString& caller);
  void Report();

  QDBusConnection bus_;
  Hindrances& hindrances_;
  QDBusServiceWatcher callers_;
  std::map<uint, Inhibition> inhibitions_;
  uint lastCookie_ = 0;
  bool showing_ = false;
};

}  // namespace starfolds

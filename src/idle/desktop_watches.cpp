#include "idle/desktop_watches.h"

#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <utility>

#include "settings/idle_settings.h"

namespace starfolds {
namespace {

constexpr char kLogin[] = "org.freedesktop.login1";
constexpr char kLoginPath[] = "/org/freedesktop/login1";
constexpr char kLoginManager[] = "org.freedesktop.login1.Manager";
constexpr char kLoginSession[] = "org.freedesktop.login1.Session";
constexpr char kUPower[] = "org.freedesktop.UPower";

constexpr uint kGnomeInhibitsIdle = 8;  // a bit of InhibitedActions

BusPlace PowerManagement() {
  return {"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
          "org.freedesktop.PowerManagement.Inhibit"};
}

/// A text of another program, for one line on a terminal or in a dialog.
QString OneLine(const QString& text) {
  constexpr int most = 60;
  return text.simplified().left(most);
}

}  // namespace

/// The session is the one of this process, or else of the user: a process that systemd started
/// belongs to none.
SessionWatch::SessionWatch(const QDBusConnection& systemBus, Hindrances& hindrances)
    : bus_(systemBus),
      hindrances_(hindrances),
      manager_(systemBus, {kLogin, kLoginPath, kLoginManager}, [this](const QVariantMap& all) {
        const bool blocked = all.value("BlockInhibited").toString().split(':').contains("idle");
        hindrances_.Report("logind idle",
                           blocked ? tr("A program inhibits idleness (logind).") : QString());
        PrepareForSleep(all.value("PreparingForSleep").toBool());
      }) {
  bus_.connect(kLogin, kLoginPath, kLoginManager, "PrepareForSleep", this,
               SLOT(PrepareForSleep(bool)));
  const QString id = qEnvironmentVariable("XDG_SESSION_ID", "auto");
  CallBus(bus_, {kLogin, kLoginPath, kLoginManager}, "GetSession", {id}, this,
          [this](const QVariant& path) {
            if (path.isValid()) WatchSession(path.value<QDBusObjectPath>().path());
          });
}

void SessionWatch::WatchSession(const QString& path) {
  bus_.connect(kLogin, path, kLoginSession, "Lock", this, SLOT(Lock()));
  session_ = std::make_unique<BusProperties>(
      bus_, BusPlace{kLogin, path, kLoginSession}, [this](const QVariantMap& all) {
        const bool away = all.contains("Active") && !all.value("Active").toBool();
        hindrances_.Report("session", away ? tr("Another session is on the screen.") : QString());
        const bool locked = all.value("LockedHint").toBool();
        hindrances_.Report("session lock", locked ? tr("The screen is locked.") : QString());
      });
}

void SessionWatch::PrepareForSleep(bool begins) {
  hindrances_.Report("sleep", begins ? tr("The computer goes to sleep.") : QString());
}

void SessionWatch::Lock() { hindrances_.LockAsked(); }

BatteryWatch::BatteryWatch(const QDBusConnection& systemBus, Hindrances& hindrances, Integer limit)
    : hindrances_(hindrances),
      limit_(limit),
      power_(
          systemBus, {kUPower, "/org/freedesktop/UPower", kUPower},
          [this](const QVariantMap& all) {
            onBattery_ = all.value("OnBattery").toBool();
            Report();
          },
          true),
      battery_(
          systemBus,
          {kUPower, "/org/freedesktop/UPower/devices/DisplayDevice",
           "org.freedesktop.UPower.Device"},
          [this](const QVariantMap& all) {
            charge_ = all.value("Percentage", 100.0).toDouble();
            Report();
          },
          true) {}

void BatteryWatch::SetLimit(Integer limit) {
  limit_ = limit;
  Report();
}

void BatteryWatch::Report() {
  const bool low = limit_ == kNeverOnBattery || charge_ < limit_;
  hindrances_.Report("battery",
                     onBattery_ && low
                         ? tr("The computer runs on battery, at %1 %.").arg(charge_, 0, 'f', 0)
                         : QString());
}

DesktopWatch::DesktopWatch(const QDBusConnection& sessionBus, Hindrances& hindrances)
    : bus_(sessionBus),
      hindrances_(hindrances),
      gnomeSession_(
          sessionBus,
          {"org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager"},
          [this](const QVariantMap& all) {
            const bool inhibited =
                (all.value("InhibitedActions").toUInt() & kGnomeInhibitsIdle) != 0;
            hindrances_.Report("GNOME session",
                               inhibited ? tr("A program inhibits idleness.") : QString());
          }),
      gnomeScreen_(sessionBus,
                   {"org.gnome.Mutter.DisplayConfig", "/org/gnome/Mutter/DisplayConfig",
                    "org.gnome.Mutter.DisplayConfig"},
                   [this](const QVariantMap& all) {
                     // 1 to 3: standby, suspend, off. -1: the compositor cannot tell.
                     const bool off = all.value("PowerSaveMode").toInt() > 0;
                     hindrances_.Report("GNOME screen", off ? tr("The screen is off.") : QString());
                   }) {
  const BusPlace power = PowerManagement();
  bus_.connect(power.Service, power.Path, power.Interface, "HasInhibitChanged", this,
               SLOT(HasInhibitChanged(bool)));
  CallBus(bus_, power, "HasInhibit", {}, this,
          [this](const QVariant& has) { HasInhibitChanged(has.toBool()); });
  // KDE's also has the name of `InhibitService`, which must not be taken for a lock.
  for (const BusPlace& lock : {
           BusPlace{"org.kde.screensaver", "/ScreenSaver", "org.freedesktop.ScreenSaver"},
           BusPlace{"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver"},
           BusPlace{"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver",
                    "org.cinnamon.ScreenSaver"},
       }) {
    locks_.push_back(std::make_unique<LockWatch>(bus_, lock, hindrances_));
  }
  WatchHost("org.mate.ScreenSaver",
            tr("MATE shows the screen savers here: choose Starfolds in its preferences."));
  WatchHost("org.xfce.ScreenSaver",
            tr("Xfce shows the screen savers here: choose Starfolds in its preferences."));
}

void DesktopWatch::HasInhibitChanged(bool has) {
  hindrances_.Report("power management", has ? tr("A program inhibits idleness.") : QString());
}

/// Reports `reason` while the service exists.
void DesktopWatch::WatchHost(const QString& service, const QString& reason) {
  const auto report = [this, service, reason](bool exists) {
    hindrances_.Report(service.toStdString(), exists ? reason : QString());
  };
  auto owner = std::make_unique<QDBusServiceWatcher>(service, bus_,
                                                     QDBusServiceWatcher::WatchForOwnerChange);
  connect(owner.get(), &QDBusServiceWatcher::serviceRegistered, this, [report] { report(true); });
  connect(owner.get(), &QDBusServiceWatcher::serviceUnregistered, this,
          [report] { report(false); });
  hosts_.push_back(std::move(owner));
  CallBus(bus_, {"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"},
          "NameHasOwner", {service}, this,
          [report](const QVariant& exists) { report(exists.toBool()); });
}

LockWatch::LockWatch(const QDBusConnection& sessionBus, BusPlace lock, Hindrances& hindrances)
    : bus_(sessionBus),
      lock_(std::move(lock)),
      hindrances_(hindrances),
      owner_(lock_.Service, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
  bus_.connect(lock_.Service, lock_.Path, lock_.Interface, "ActiveChanged", this,
               SLOT(ActiveChanged(bool)));
  connect(&owner_, &QDBusServiceWatcher::serviceRegistered, this, &LockWatch::Ask);
  connect(&owner_, &QDBusServiceWatcher::serviceUnregistered, this,
          [this] { ActiveChanged(false); });
  Ask();
}

void LockWatch::Ask() {
  CallBus(bus_, lock_, "GetActive", {}, this,
          [this](const QVariant& active) { ActiveChanged(active.toBool()); });
}

void LockWatch::ActiveChanged(bool active) {
  hindrances_.Report(lock_.Service.toStdString(),
                     active ? tr("The desktop has locked or blanked the screen.") : QString());
}

InhibitService::InhibitService(const QDBusConnection& sessionBus, Hindrances& hindrances)
    : bus_(sessionBus), hindrances_(hindrances) {
  const auto contents =
      QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals;
  callers_.setConnection(bus_);
  callers_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
  connect(&callers_, &QDBusServiceWatcher::serviceUnregistered, this, &InhibitService::Drop);
  if (!bus_.isConnected()) return;
  bus_.registerObject("/org/freedesktop/ScreenSaver", this, contents);
  bus_.registerObject("/ScreenSaver", this, contents);
}

void InhibitService::Offer() {
  if (!bus_.isConnected()) return;
  bus_.interface()->registerService("org.freedesktop.ScreenSaver",
                                    QDBusConnectionInterface::DontQueueService,
                                    QDBusConnectionInterface::AllowReplacement);
}

void InhibitService::SetShowing(bool showing) {
  if (showing == showing_) return;
  showing_ = showing;
  emit ActiveChanged(showing);
}

/// The number of inhibitions is bounded, because any program of the user can ask for one.
uint InhibitService::Inhibit(const QString& application, const QString& reason) {
  constexpr std::size_t most = 1000;
  if (!calledFromDBus() || inhibitions_.size() >= most) return 0;
  while (++lastCookie_ == 0 || inhibitions_.contains(lastCookie_)) {
  }
  const QString caller = message().service();
  inhibitions_[lastCookie_] = {caller, OneLine(application + ": " + reason)};
  callers_.addWatchedService(caller);
  Report();
  return lastCookie_;
}

void InhibitService::UnInhibit(uint cookie) {
  inhibitions_.erase(cookie);
  Report();
}

/// A program that has ended inhibits nothing.
void InhibitService::Drop(const QString& caller) {
  std::erase_if(inhibitions_, [&](const auto& each) { return each.second.Caller == caller; });
  callers_.removeWatchedService(caller);
  Report();
}

void InhibitService::Report() {
  QString reason;
  if (!inhibitions_.empty()) {
    reason = tr("A program inhibits idleness (%1).").arg(inhibitions_.begin()->second.Application);
  }
  hindrances_.Report("inhibit service", reason);
}

}  // namespace starfolds

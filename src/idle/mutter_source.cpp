#include "idle/mutter_source.h"

#include <QDBusConnectionInterface>

#include "idle/bus_properties.h"

namespace starfolds {
namespace {

const BusPlace& Monitor() {
  static const BusPlace place{"org.gnome.Mutter.IdleMonitor", "/org/gnome/Mutter/IdleMonitor/Core",
                              "org.gnome.Mutter.IdleMonitor"};
  return place;
}

}  // namespace

bool MutterSource::IsOn(const QDBusConnection& bus) {
  return bus.isConnected() && bus.interface()->isServiceRegistered(Monitor().Service);
}

MutterSource::MutterSource(const QDBusConnection& bus)
    : bus_(bus), owner_(Monitor().Service, bus_, QDBusServiceWatcher::WatchForRegistration) {
  bus_.connect(Monitor().Service, Monitor().Path, Monitor().Interface, "WatchFired", this,
               SLOT(WatchFired(uint)));
  // A compositor that was started again has forgotten the watches.
  connect(&owner_, &QDBusServiceWatcher::serviceRegistered, this, [this] {
    idleWatch_ = inputWatch_ = 0;
    if (time_ > IdleTime::zero()) Watch(time_);
  });
}

void MutterSource::Watch(IdleTime time) {
  time_ = time;
  ++round_;
  for (uint* watch : {&idleWatch_, &inputWatch_}) {
    if (*watch != 0) CallBus(bus_, Monitor(), "RemoveWatch", {*watch}, this, [](auto&) {});
    *watch = 0;
  }
  CallBus(bus_, Monitor(), "AddIdleWatch", {QVariant::fromValue<qulonglong>(time.count())}, this,
          [this, round = round_](const QVariant& watch) {
            if (round == round_) {
              idleWatch_ = watch.toUInt();
            } else if (watch.isValid()) {
              CallBus(bus_, Monitor(), "RemoveWatch", {watch}, this, [](auto&) {});
            }
          });
}

/// This kind of watch fires once.
void MutterSource::WatchForInput() {
  CallBus(bus_, Monitor(), "AddUserActiveWatch", {}, this,
          [this, round = round_](const QVariant& watch) {
            if (round == round_) inputWatch_ = watch.toUInt();
          });
}

void MutterSource::WatchFired(uint watch) {
  if (watch != 0 && watch == idleWatch_) {
    WatchForInput();
    Idled();
  } else if (watch != 0 && watch == inputWatch_) {
    inputWatch_ = 0;
    Resumed();
  }
}

}  // namespace starfolds

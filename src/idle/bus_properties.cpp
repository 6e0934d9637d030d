#include "idle/bus_properties.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <utility>

namespace starfolds {
namespace {

constexpr char kProperties[] = "org.freedesktop.DBus.Properties";

QDBusMessage Call(const BusPlace& place, const QString& interface, const QString& method,
                  const QVariantList& arguments, bool start) {
  QDBusMessage call = QDBusMessage::createMethodCall(place.Service, place.Path, interface, method);
  call.setArguments(arguments);
  call.setAutoStartService(start);
  return call;
}

}  // namespace

BusProperties::BusProperties(const QDBusConnection& bus, BusPlace place,
                             std::function<void(const QVariantMap&)> changed, bool start)
    : bus_(bus),
      place_(std::move(place)),
      changed_(std::move(changed)),
      owner_(place_.Service, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
  bus_.connect(place_.Service, place_.Path, kProperties, "PropertiesChanged", this,
               SLOT(TakeChanges(QString, QVariantMap, QStringList)));
  connect(&owner_, &QDBusServiceWatcher::serviceRegistered, this, [this] { Read(false); });
  connect(&owner_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    all_.clear();
    changed_(all_);
  });
  Read(start);
}

void BusProperties::Read(bool start) {
  const QDBusMessage call = Call(place_, kProperties, "GetAll", {place_.Interface}, start);
  auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, &BusProperties::TakeAll);
}

void BusProperties::TakeAll(QDBusPendingCallWatcher* call) {
  const QDBusPendingReply<QVariantMap> reply = *call;
  call->deleteLater();
  all_ = reply.isValid() ? reply.value() : QVariantMap();
  changed_(all_);
}

void BusProperties::TakeChanges(const QString& interface, const QVariantMap& changed,
                                const QStringList& invalidated) {
  if (interface != place_.Interface) return;
  if (!invalidated.isEmpty()) return Read(false);
  all_.insert(changed);
  changed_(all_);
}

void CallBus(const QDBusConnection& bus, const BusPlace& place, const QString& method,
             const QVariantList& arguments, QObject* context,
             const std::function<void(const QVariant& answer)>& take) {
  const QDBusMessage call = Call(place, place.Interface, method, arguments, false);
  auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, context,
                   [take](QDBusPendingCallWatcher* ended) {
                     const QDBusMessage reply = ended->reply();
                     ended->deleteLater();
                     const bool answered = reply.type() == QDBusMessage::ReplyMessage;
                     take(answered ? reply.arguments().value(0) : QVariant());
                   });
}

}  // namespace starfolds

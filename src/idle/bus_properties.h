// Properties of objects on D-Bus.
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>
#include <functional>

namespace starfolds {

/// What names the properties of one interface of one object.
struct BusPlace {
  QString Service;
  QString Path;
  QString Interface;
};

/// Reads all properties and follows their changes, without waiting for the service.
class BusProperties : public QObject {
  Q_OBJECT

 public:
  /// `changed` is called from the event loop with all properties: once for the answer to the first
  /// question, and after each change. The map is empty while the service does not exist. `start`:
  /// D-Bus may start the service in order to answer.
  BusProperties(const QDBusConnection& bus, BusPlace place,
                std::function<void(const QVariantMap& all)> changed, bool start = false);

 private:
  Q_SLOT void TakeChanges(const QString& interface, const QVariantMap& changed,
                          const QStringList& invalidated);
  void Read(bool start);
  void TakeAll(QDBusPendingCallWatcher* call);

  QDBusConnection bus_;
  BusPlace place_;
  std::function<void(const QVariantMap&)> changed_;
  QDBusServiceWatcher owner_;
  QVariantMap all_;
};

/// Calls a method that takes no service's start, and `take` with the first value of its answer;
/// with an invalid one if there is none. `take` is not called after `context` has been destroyed.
void CallBus(const QDBusConnection& bus, const BusPlace& place, const QString& method,
             const QVariantList& arguments, QObject* context,
             const std::function<void(const QVariant& answer)>& take);

}  // namespace starfolds

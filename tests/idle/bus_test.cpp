// What the service hears on D-Bus, from services that the test plays on a bus of its own.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>
#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "application.h"
#include "idle/desktop_watches.h"
#include "idle/mutter_source.h"
#include "settings/idle_settings.h"

namespace starfolds {
namespace {

testing::Environment* const kCore =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QCoreApplication>);

constexpr int kLongest = 30'000;  // milliseconds

/// Answers all calls to its objects with prepared values.
class PlayedServices : public QDBusVirtualObject {
 public:
  std::map<QString, QVariant> Answers;        // by the method's name
  std::map<QString, QVariantMap> Properties;  // by the interface
  std::vector<QString> Calls;

  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    Calls.push_back(call.member());
    const auto answer = Answers.find(call.member());
    if (call.member() == "GetAll") {
      bus.send(call.createReply(Properties[call.arguments().value(0).toString()]));
    } else if (answer != Answers.end()) {
      bus.send(call.createReply(answer->second));
    } else {
      bus.send(call.createReply());
    }
    return true;
  }
};

class BusTest : public testing::Test {
 protected:
  void SetUp() override {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon_.waitForReadyRead(kLongest));
    Address = QString::fromUtf8(daemon_.readLine()).trimmed();
    Bus = QDBusConnection::connectToBus(Address, "service");
    Theirs = QDBusConnection::connectToBus(Address, "others");
    ASSERT_TRUE(Bus.isConnected() && Theirs.isConnected());
    Theirs.registerVirtualObject("/", &Others, QDBusConnection::SubPath);
  }
  void TearDown() override {
    for (const char* name : {"service", "others", "player"}) {
      QDBusConnection::disconnectFromBus(name);
    }
    daemon_.terminate();
    daemon_.waitForFinished(kLongest);
  }

  void Own(const QString& name) { ASSERT_TRUE(Theirs.registerService(name)); }
  void Signal(const QString& path, const QString& interface, const QString& name,
              const QVariantList& arguments) {
    QDBusMessage signal = QDBusMessage::createSignal(path, interface, name);
    signal.setArguments(arguments);
    Theirs.send(signal);
  }
  void Change(const QString& path, const QString& interface, const QString& name,
              const QVariant& value) {
    Others.Properties[interface][name] = value;
    Signal(path, "org.freedesktop.DBus.Properties", "PropertiesChanged",
           {interface, QVariantMap{{name, value}}, QStringList()});
  }
  void ExpectReasons(int count, const char* at) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Against.Reasons().size() == count; }, kLongest))
        << at << ": " << Against.Reasons().join(" ").toStdString();
  }

  QString Address;
  QDBusConnection Bus{"none"}, Theirs{"none"};
  PlayedServices Others;
  Hindrances Against;

 private:
  QProcess daemon_;
};

TEST_F(BusTest, TheSessionAndItsLock) {
  const QString manager = "/org/freedesktop/login1";
  const QString session = manager + "/session/_31";
  Others.Answers["GetSession"] = QVariant::fromValue(QDBusObjectPath(session));
  Others.Properties["org.freedesktop.login1.Manager"] = {{"BlockInhibited", "sleep:idle"}};
  Others.Properties["org.freedesktop.login1.Session"] = {{"Active", true}, {"LockedHint", false}};
  Own("org.freedesktop.login1");
  bool asked = false;
  Against.LockAsked = [&] { asked = true; };
  const SessionWatch watch(Bus, Against);
  ExpectReasons(1, "an inhibitor");
  Change(manager, "org.freedesktop.login1.Manager", "BlockInhibited", "sleep");
  ExpectReasons(0, "the inhibitor has gone");
  Change(session, "org.freedesktop.login1.Session", "LockedHint", true);
  ExpectReasons(1, "locked");
  Change(session, "org.freedesktop.login1.Session", "Active", false);
  ExpectReasons(2, "another session");
  Signal(manager, "org.freedesktop.login1.Manager", "PrepareForSleep", {true});
  ExpectReasons(3, "going to sleep");
  Signal(session, "org.freedesktop.login1.Session", "Lock", {});
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked; }, kLongest));
  Theirs.unregisterService("org.freedesktop.login1");
  ExpectReasons(0, "logind has ended");
}

TEST_F(BusTest, TheBattery) {
  const QString device = "/org/freedesktop/UPower/devices/DisplayDevice";
  Others.Properties["org.freedesktop.UPower"] = {{"OnBattery", true}};
  Others.Properties["org.freedesktop.UPower.Device"] = {{"Percentage", 15.0}};
  Own("org.freedesktop.UPower");
  BatteryWatch watch(Bus, Against, 20);
  ExpectReasons(1, "15 %");
  Change(device, "org.freedesktop.UPower.Device", "Percentage", 20.0);
  ExpectReasons(0, "20 %");
  watch.SetLimit(kNeverOnBattery);
  ExpectReasons(1, "never on battery");
  Change("/org/freedesktop/UPower", "org.freedesktop.UPower", "OnBattery", false);
  ExpectReasons(0, "on mains");
}

TEST_F(BusTest, InhibitorsLocksAndHostsOfTheDesktop) {
  Others.Properties["org.gnome.SessionManager"] = {{"InhibitedActions", 4 | 8}};
  Others.Properties["org.gnome.Mutter.DisplayConfig"] = {{"PowerSaveMode", -1}};
  Others.Answers["HasInhibit"] = true;
  Others.Answers["GetActive"] = false;
  for (const char* name :
       {"org.gnome.SessionManager", "org.gnome.Mutter.DisplayConfig", "org.gnome.ScreenSaver",
        "org.freedesktop.PowerManagement", "org.mate.ScreenSaver"}) {
    Own(name);
  }
  const DesktopWatch watch(Bus, Against);
  ExpectReasons(3, "GNOME's session, the power management and MATE");
  Change("/org/gnome/SessionManager", "org.gnome.SessionManager", "InhibitedActions", 4);
  Signal("/org/freedesktop/PowerManagement/Inhibit", "org.freedesktop.PowerManagement.Inhibit",
         "HasInhibitChanged", {false});
  Theirs.unregisterService("org.mate.ScreenSaver");
  ExpectReasons(0, "all have gone");
  Signal("/org/gnome/ScreenSaver", "org.gnome.ScreenSaver", "ActiveChanged", {true});
  Change("/org/gnome/Mutter/DisplayConfig", "org.gnome.Mutter.DisplayConfig", "PowerSaveMode", 3);
  Own("org.xfce.ScreenSaver");
  ExpectReasons(3, "a lock, a dark screen and a host");
}

TEST_F(BusTest, PlayersInhibitUntilTheyEnd) {
  InhibitService service(Bus, Against);
  service.Offer();
  std::optional<QDBusConnection> player = QDBusConnection::connectToBus(Address, "player");
  const auto call = [&](const char* method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall("org.freedesktop.ScreenSaver",
                                                          "/org/freedesktop/ScreenSaver",
                                                          "org.freedesktop.ScreenSaver", method);
    message.setArguments(arguments);
    const QDBusPendingCall pending = player->asyncCall(message);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pending.isFinished(); }, kLongest));
    return pending.reply().arguments().value(0);
  };
  const QVariant cookie = call("Inhibit", {"Player\n", "A film"});
  ExpectReasons(1, "a film");
  EXPECT_TRUE(Against.Reasons().value(0).contains("Player : A film"));
  EXPECT_NE(call("Inhibit", {"Player", "Another film"}), cookie);
  call("UnInhibit", {cookie});
  ExpectReasons(1, "the other film");
  player.reset();
  QDBusConnection::disconnectFromBus("player");
  ExpectReasons(0, "the player has ended");
}

TEST_F(BusTest, MuttersWatches) {
  const QString path = "/org/gnome/Mutter/IdleMonitor/Core";
  const QString monitor = "org.gnome.Mutter.IdleMonitor";
  EXPECT_FALSE(MutterSource::IsOn(Bus));
  Others.Answers["AddIdleWatch"] = 7U;
  Others.Answers["AddUserActiveWatch"] = 8U;
  Own(monitor);
  EXPECT_TRUE(MutterSource::IsOn(Bus));
  MutterSource source(Bus);
  std::string events;
  source.Idled = [&] { events += 'i'; };
  source.Resumed = [&] { events += 'r'; };
  const auto called = [&](const char* method) {
    const auto count = [&] { return std::count(Others.Calls.begin(), Others.Calls.end(), method); };
    const bool done = QTest::qWaitFor([&] { return count() > 0; }, kLongest);
    std::erase(Others.Calls, method);
    return done;
  };
  const auto fired = [&](uint watch, const char* expected) {
    // The answer to the call that adds a watch has been sent before this signal.
    Signal(path, monitor, "WatchFired", {99U});
    Signal(path, monitor, "WatchFired", {watch});
    EXPECT_TRUE(QTest::qWaitFor([&] { return events == expected; }, kLongest)) << events;
  };
  source.Watch(IdleTime(5000));
  EXPECT_TRUE(called("AddIdleWatch"));
  fired(7, "i");
  EXPECT_TRUE(called("AddUserActiveWatch"));
  fired(8, "ir");
  fired(7, "iri");  // the watch stands
  source.Watch(IdleTime(1000));
  EXPECT_TRUE(called("RemoveWatch") && called("AddIdleWatch"));
  Theirs.unregisterService(monitor);
  Own(monitor);  // the compositor was started again
  EXPECT_TRUE(called("AddIdleWatch"));
}

}  // namespace
}  // namespace starfolds

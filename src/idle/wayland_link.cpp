#include "idle/wayland_link.h"

#include <dpms-client.h>
#include <ext-idle-notify-client.h>
#include <kde-idle-client.h>
#include <wayland-client.h>
#include <wlr-output-power-client.h>

#include <QSocketNotifier>
#include <algorithm>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

namespace starfolds {
namespace {

template <auto Destroy>
struct Destroyer {
  template <class Proxy>
  void operator()(Proxy* proxy) const {
    Destroy(proxy);
  }
};
template <class Proxy, auto Destroy>
using Owned = std::unique_ptr<Proxy, Destroyer<Destroy>>;

/// One display or monitor, and whether it is on, as far as a protocol tells.
struct Output {
  Owned<wl_output, wl_output_destroy> Proxy;
  Owned<zwlr_output_power_v1, zwlr_output_power_v1_destroy> WlrPower;
  Owned<org_kde_kwin_dpms, org_kde_kwin_dpms_release> KdePower;
  bool IsOn = true;
  std::function<void()> Changed;

  void SetOn(bool on) {
    if (on == IsOn) return;
    IsOn = on;
    Changed();
  }
};

Output& OutputOf(void* data) { return *static_cast<Output*>(data); }

const zwlr_output_power_v1_listener kWlrPower = {
    .mode = [](void* data, zwlr_output_power_v1*,
               std::uint32_t mode) { OutputOf(data).SetOn(mode == ZWLR_OUTPUT_POWER_V1_MODE_ON); },
    .failed = [](void* data, zwlr_output_power_v1*) { OutputOf(data).SetOn(true); },
};

const org_kde_kwin_dpms_listener kKdePower = {
    .supported = [](void*, org_kde_kwin_dpms*, std::uint32_t) {},
    .mode = [](void* data, org_kde_kwin_dpms*,
               std::uint32_t mode) { OutputOf(data).SetOn(mode == ORG_KDE_KWIN_DPMS_MODE_ON); },
    .done = [](void*, org_kde_kwin_dpms*) {},
};

}  // namespace

/// The globals of the compositor, and its outputs.
class WaylandLink::Connection {
 public:
  Connection(wl_display* display, Hindrances& hindrances, std::function<void()> lost)
      : display_(display),
        registry_(wl_display_get_registry(display)),
        hindrances_(hindrances),
        lost_(std::move(lost)),
        readable_(wl_display_get_fd(display), QSocketNotifier::Read) {
    static const wl_registry_listener listener = {
        .global = [](void* data, wl_registry*, std::uint32_t name, const char* interface,
                     std::uint32_t) { static_cast<Connection*>(data)->Bind(name, interface); },
        .global_remove = [](void* data, wl_registry*,
                            std::uint32_t name) { static_cast<Connection*>(data)->Remove(name); },
    };
    wl_registry_add_listener(registry_.get(), &listener, this);
    wl_display_roundtrip(display);  // the globals
    wl_display_roundtrip(display);  // the state of the outputs
    QObject::connect(&readable_, &QSocketNotifier::activated, [this] { Read(); });
  }

  void Send() { wl_display_flush(display_.get()); }

  wl_seat* Seat() const { return seat_.get(); }
  ext_idle_notifier_v1* ExtIdle() const { return extIdle_.get(); }
  org_kde_kwin_idle* KdeIdle() const { return kdeIdle_.get(); }

 private:
  template <class Proxy>
  Proxy* BindTo(std::uint32_t name, const wl_interface& interface) {
    return static_cast<Proxy*>(wl_registry_bind(registry_.get(), name, &interface, 1));
  }

  /// Of several seats the first one counts.
  void Bind(std::uint32_t name, std::string_view interface) {
    if (interface == wl_seat_interface.name && !seat_) {
      seat_.reset(BindTo<wl_seat>(name, wl_seat_interface));
    } else if (interface == ext_idle_notifier_v1_interface.name) {
      extIdle_.reset(BindTo<ext_idle_notifier_v1>(name, ext_idle_notifier_v1_interface));
    } else if (interface == org_kde_kwin_idle_interface.name) {
      kdeIdle_.reset(BindTo<org_kde_kwin_idle>(name, org_kde_kwin_idle_interface));
    } else if (interface == zwlr_output_power_manager_v1_interface.name) {
      wlrPower_.reset(
          BindTo<zwlr_output_power_manager_v1>(name, zwlr_output_power_manager_v1_interface));
      WatchPower();
    } else if (interface == org_kde_kwin_dpms_manager_interface.name) {
      kdePower_.reset(BindTo<org_kde_kwin_dpms_manager>(name, org_kde_kwin_dpms_manager_interface));
      WatchPower();
    } else if (interface == wl_output_interface.name) {
      Output& output = outputs_[name];
      output.Proxy.reset(BindTo<wl_output>(name, wl_output_interface));
      output.Changed = [this] { ReportPower(); };
      WatchPower();
    }
  }

  void Remove(std::uint32_t name) {
    if (outputs_.erase(name) > 0) ReportPower();
  }

  /// Asks for the state of the outputs that were not asked yet. Outputs and the protocols are
  /// announced in any order.
  void WatchPower() {
    for (auto& [name, output] : outputs_) {
      if (wlrPower_ && !output.WlrPower) {
        output.WlrPower.reset(
            zwlr_output_power_manager_v1_get_output_power(wlrPower_.get(), output.Proxy.get()));
        zwlr_output_power_v1_add_listener(output.WlrPower.get(), &kWlrPower, &output);
      }
      if (kdePower_ && !output.KdePower) {
        output.KdePower.reset(org_kde_kwin_dpms_manager_get(kdePower_.get(), output.Proxy.get()));
        org_kde_kwin_dpms_add_listener(output.KdePower.get(), &kKdePower, &output);
      }
    }
    Send();
  }

  /// The saver may be seen while one output is on.
  void ReportPower() {
    const bool off = !outputs_.empty() && std::none_of(outputs_.begin(), outputs_.end(),
                                                       [](auto& each) { return each.second.IsOn; });
    hindrances_.Report("output power", off ? tr("The screen is off.") : QString());
  }

  void Read() {
    if (wl_display_dispatch(display_.get()) >= 0) return Send();
    readable_.setEnabled(false);
    lost_();
  }

  Owned<wl_display, wl_display_disconnect> display_;
  Owned<wl_registry, wl_registry_destroy> registry_;
  Hindrances& hindrances_;
  std::function<void()> lost_;
  QSocketNotifier readable_;
  Owned<wl_seat, wl_seat_destroy> seat_;
  Owned<ext_idle_notifier_v1, ext_idle_notifier_v1_destroy> extIdle_;
  Owned<org_kde_kwin_idle, org_kde_kwin_idle_destroy> kdeIdle_;
  Owned<zwlr_output_power_manager_v1, zwlr_output_power_manager_v1_destroy> wlrPower_;
  Owned<org_kde_kwin_dpms_manager, org_kde_kwin_dpms_manager_destroy> kdePower_;
  std::map<std::uint32_t, Output> outputs_;
};

namespace {

/// Both protocols have the same shape: an object that sends "idle" after a time without input, and
/// "resumed" at the next input.
template <class Connection>
class ExtSource : public IdleSource {
 public:
  explicit ExtSource(Connection& connection) : connection_(connection) {}

  QString Name() const override { return "ext-idle-notify-v1 (Wayland)"; }

  void Watch(IdleTime time) override {
    static const ext_idle_notification_v1_listener listener = {
        .idled = [](void* data,
                    ext_idle_notification_v1*) { static_cast<ExtSource*>(data)->Idled(); },
        .resumed = [](void* data,
                      ext_idle_notification_v1*) { static_cast<ExtSource*>(data)->Resumed(); },
    };
    notification_.reset(ext_idle_notifier_v1_get_idle_notification(
        connection_.ExtIdle(), static_cast<std::uint32_t>(time.count()), connection_.Seat()));
    ext_idle_notification_v1_add_listener(notification_.get(), &listener, this);
    connection_.Send();
  }

 private:
  Connection& connection_;
  Owned<ext_idle_notification_v1, ext_idle_notification_v1_destroy> notification_;
};

template <class Connection>
class KdeSource : public IdleSource {
 public:
  explicit KdeSource(Connection& connection) : connection_(connection) {}

  QString Name() const override { return "org_kde_kwin_idle (Wayland)"; }

  void Watch(IdleTime time) override {
    static const org_kde_kwin_idle_timeout_listener listener = {
        .idle = [](void* data,
                   org_kde_kwin_idle_timeout*) { static_cast<KdeSource*>(data)->Idled(); },
        .resumed = [](void* data,
                      org_kde_kwin_idle_timeout*) { static_cast<KdeSource*>(data)->Resumed(); },
    };
    timeout_.reset(org_kde_kwin_idle_get_idle_timeout(connection_.KdeIdle(), connection_.Seat(),
                                                      static_cast<std::uint32_t>(time.count())));
    org_kde_kwin_idle_timeout_add_listener(timeout_.get(), &listener, this);
    connection_.Send();
  }

 private:
  Connection& connection_;
  Owned<org_kde_kwin_idle_timeout, org_kde_kwin_idle_timeout_release> timeout_;
};

}  // namespace

WaylandLink::WaylandLink(std::unique_ptr<Connection> connection)
    : connection_(std::move(connection)) {}

WaylandLink::~WaylandLink() = default;

/// Without WAYLAND_DISPLAY the library would try the first display, which may be another session's.
std::unique_ptr<WaylandLink> WaylandLink::Connect(Hindrances& hindrances,
                                                  std::function<void()> lost) {
  if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return nullptr;
  wl_display* const display = wl_display_connect(nullptr);
  if (!display) return nullptr;
  auto connection = std::make_unique<Connection>(display, hindrances, std::move(lost));
  return std::unique_ptr<WaylandLink>(new WaylandLink(std::move(connection)));
}

std::unique_ptr<IdleSource> WaylandLink::MakeExtSource() {
  if (!connection_->ExtIdle() || !connection_->Seat()) return nullptr;
  return std::make_unique<ExtSource<Connection>>(*connection_);
}

std::unique_ptr<IdleSource> WaylandLink::MakeKdeSource() {
  if (!connection_->KdeIdle() || !connection_->Seat()) return nullptr;
  return std::make_unique<KdeSource<Connection>>(*connection_);
}

}  // namespace starfolds

#include "idle/x11_link.h"

#include <xcb/dpms.h>
#include <xcb/screensaver.h>
#include <xcb/sync.h>
#include <xcb/xcb.h>

#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace starfolds {
namespace {

struct Freer {
  void operator()(void* memory) const { std::free(memory); }  // as xcb asks for
};
template <class Reply>
using Received = std::unique_ptr<Reply, Freer>;

struct Disconnecter {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// The reply of a request; nullptr if it failed.
template <auto Request, auto Reply, class... Arguments>
auto Ask(xcb_connection_t* server, Arguments... arguments) {
  auto* const reply = Reply(server, Request(server, arguments...), nullptr);
  return Received<std::remove_pointer_t<decltype(reply)>>(reply);
}

constexpr std::string_view kIdleCounter = "IDLETIME";  // milliseconds without input

/// The name directly follows its length. The library's function skips the padding that the compiler
/// adds to the struct, which the server does not send.
std::string_view NameOf(const xcb_sync_systemcounter_t& counter) {
  return {reinterpret_cast<const char*>(&counter.name_len + 1), counter.name_len};
}

constexpr char kXScreenSaverMark[] = "_SCREENSAVER_VERSION";

}  // namespace

class X11Link::Connection {
 public:
  Connection(xcb_connection_t* server, int screen, std::function<void()> lost)
      : server_(server),
        root_(RootOf(screen)),
        lost_(std::move(lost)),
        readable_(xcb_get_file_descriptor(server), QSocketNotifier::Read) {
    QObject::connect(&readable_, &QSocketNotifier::activated, [this] { Read(); });
  }

  /// Called with each event.
  std::function<void(const xcb_generic_event_t&)> Event;

  xcb_connection_t* Server() const { return server_.get(); }
  xcb_window_t Root() const { return root_; }

  bool Has(xcb_extension_t& extension) const {
    const auto* const data = xcb_get_extension_data(Server(), &extension);
    return data && data->present;
  }

  /// Must be called after each request: events that came with its reply make nothing readable.
  void Read() {
    while (true) {
      const Received<xcb_generic_event_t> event(xcb_poll_for_event(Server()));
      if (!event) break;
      if (Event) Event(*event);
    }
    xcb_flush(Server());
    if (xcb_connection_has_error(Server()) == 0 || !readable_.isEnabled()) return;
    readable_.setEnabled(false);
    lost_();
  }

  bool ScreenIsOff() const {
    if (!Has(xcb_dpms_id)) return false;
    const auto info = Ask<xcb_dpms_info, xcb_dpms_info_reply>(Server());
    return info && info->state && info->power_level != XCB_DPMS_DPMS_MODE_ON;
  }

  /// XScreenSaver marks a child of the root window.
  bool HasXScreenSaver() const {
    const auto mark = Ask<xcb_intern_atom, xcb_intern_atom_reply>(
        Server(), std::uint8_t{1}, static_cast<std::uint16_t>(sizeof kXScreenSaverMark - 1),
        kXScreenSaverMark);
    if (!mark || mark->atom == XCB_ATOM_NONE) return false;
    const auto tree = Ask<xcb_query_tree, xcb_query_tree_reply>(Server(), root_);
    if (!tree) return false;
    const xcb_window_t* const children = xcb_query_tree_children(tree.get());
    std::vector<xcb_get_property_cookie_t> questions;
    questions.reserve(static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
      questions.push_back(
          xcb_get_property(Server(), 0, children[i], mark->atom, XCB_ATOM_ANY, 0, 0));
    }
    bool found = false;
    for (const auto& question : questions) {
      const Received<xcb_get_property_reply_t> reply(
          xcb_get_property_reply(Server(), question, nullptr));
      found |= reply && reply->type != XCB_ATOM_NONE;
    }
    return found;
  }

 private:
  xcb_window_t RootOf(int screen) const {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(Server()));
    for (; screen > 0 && screens.rem > 1; --screen) xcb_screen_next(&screens);
    return screens.data->root;
  }

  std::unique_ptr<xcb_connection_t, Disconnecter> server_;
  xcb_window_t root_;
  std::function<void()> lost_;
  QSocketNotifier readable_;
};

/// The screen saver extension tells the time since the last input, so that one timer per timeout is
/// enough; an alarm on the server's counter tells when the input comes back.
class X11Link::Source : public IdleSource {
 public:
  Source(Connection& connection, xcb_sync_counter_t counter)
      : connection_(connection), counter_(counter) {
    due_.setSingleShot(true);
    due_.callOnTimeout([this] { Look(); });
    connection_.Event = [this](const xcb_generic_event_t& event) { Take(event); };
  }

  ~Source() override {
    connection_.Event = nullptr;
    EndAlarm();
  }

  QString Name() const override { return "MIT-SCREEN-SAVER (X11)"; }

  void Watch(IdleTime time) override {
    time_ = time;
    EndAlarm();
    Look();
  }

 private:
  /// Waits until the time may have passed, or says so from the event loop.
  void Look() {
    const auto info = Ask<xcb_screensaver_query_info, xcb_screensaver_query_info_reply>(
        connection_.Server(), connection_.Root());
    const IdleTime passed(info ? info->ms_since_user_input : 0);
    if (passed < time_) {
      due_.start(time_ - passed);
    } else if (alarm_ == XCB_NONE) {
      BeginAlarm();
      QTimer::singleShot(0, &due_, [this] {
        if (alarm_ != XCB_NONE) Idled();  // no input has come meanwhile
      });
    }
    connection_.Read();
  }

  /// The counter falls below the watched time at the next input. The alarm also tells if it has
  /// fallen already.
  void BeginAlarm() {
    alarm_ = xcb_generate_id(connection_.Server());
    xcb_sync_create_alarm_value_list_t values{};
    values.counter = counter_;
    values.valueType = XCB_SYNC_VALUETYPE_ABSOLUTE;
    values.value.lo = static_cast<std::uint32_t>(time_.count() - 1);
    values.testType = XCB_SYNC_TESTTYPE_NEGATIVE_COMPARISON;
    values.events = 1;  // one event: the delta that would set it up again is 0
    xcb_sync_create_alarm_aux(connection_.Server(), alarm_,
                              XCB_SYNC_CA_COUNTER | XCB_SYNC_CA_VALUE_TYPE | XCB_SYNC_CA_VALUE |
                                  XCB_SYNC_CA_TEST_TYPE | XCB_SYNC_CA_DELTA | XCB_SYNC_CA_EVENTS,
                              &values);
  }

  void EndAlarm() {
    if (alarm_ != XCB_NONE) xcb_sync_destroy_alarm(connection_.Server(), alarm_);
    alarm_ = XCB_NONE;
    due_.stop();
  }

  void Take(const xcb_generic_event_t& event) {
    const auto* const sync = xcb_get_extension_data(connection_.Server(), &xcb_sync_id);
    const int type = event.response_type & 0x7f;  // without the mark of events of other clients
    if (type != sync->first_event + XCB_SYNC_ALARM_NOTIFY || alarm_ == XCB_NONE) return;
    if (reinterpret_cast<const xcb_sync_alarm_notify_event_t&>(event).alarm != alarm_) return;
    EndAlarm();
    due_.start(time_);
    Resumed();
  }

  Connection& connection_;
  xcb_sync_counter_t counter_;
  xcb_sync_alarm_t alarm_ = XCB_NONE;  // while there is no input
  IdleTime time_{};
  QTimer due_;
};

X11Link::X11Link(std::unique_ptr<Connection> connection) : connection_(std::move(connection)) {}

X11Link::~X11Link() = default;

std::unique_ptr<X11Link> X11Link::Connect(Hindrances& hindrances, std::function<void()> lost) {
  if (qEnvironmentVariableIsEmpty("DISPLAY")) return nullptr;
  int screen = 0;
  xcb_connection_t* const server = xcb_connect(nullptr, &screen);
  if (xcb_connection_has_error(server) != 0) {
    xcb_disconnect(server);
    return nullptr;
  }
  std::unique_ptr<X11Link> link(
      new X11Link(std::make_unique<Connection>(server, screen, std::move(lost))));
  hindrances.AddCheck([&hindrances, &connection = *link->connection_] {
    hindrances.Report("X11 screen",
                      connection.ScreenIsOff() ? tr("The screen is off.") : QString());
    hindrances.Report("XScreenSaver",
                      connection.HasXScreenSaver()
                          ? tr("XScreenSaver shows the screen savers here: choose Starfolds in it.")
                          : QString());
    connection.Read();
  });
  return link;
}

std::unique_ptr<IdleSource> X11Link::MakeSource() {
  if (!connection_->Has(xcb_screensaver_id) || !connection_->Has(xcb_sync_id)) return nullptr;
  xcb_connection_t* const server = connection_->Server();
  if (!Ask<xcb_sync_initialize, xcb_sync_initialize_reply>(server, XCB_SYNC_MAJOR_VERSION,
                                                           XCB_SYNC_MINOR_VERSION)) {
    return nullptr;
  }
  const auto counters =
      Ask<xcb_sync_list_system_counters, xcb_sync_list_system_counters_reply>(server);
  if (!counters) return nullptr;
  auto each = xcb_sync_list_system_counters_counters_iterator(counters.get());
  for (; each.rem > 0; xcb_sync_systemcounter_next(&each)) {
    if (NameOf(*each.data) == kIdleCounter)
      return std::make_unique<Source>(*connection_, each.data->counter);
  }
  return nullptr;
}

}  // namespace starfolds

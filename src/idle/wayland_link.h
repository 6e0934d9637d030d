// The service's connection to a Wayland compositor, without a window.
#pragma once

#include <QCoreApplication>
#include <functional>
#include <memory>

#include "idle/hindrances.h"
#include "idle/idle_source.h"

namespace starfolds {

class WaylandLink {
  Q_DECLARE_TR_FUNCTIONS(WaylandLink)

 public:
  /// Connects to the compositor that the environment names; nullptr if there is none. `lost` is
  /// called from the event loop when the compositor has ended. Outputs that are off are reported to
  /// `hindrances`, if the compositor tells.
  static std::unique_ptr<WaylandLink> Connect(Hindrances& hindrances, std::function<void()> lost);
  ~WaylandLink();

  /// Each is nullptr if the compositor lacks the protocol. The link must outlive them.
  std::unique_ptr<IdleSource> MakeExtSource();  // ext-idle-notify-v1
  std::unique_ptr<IdleSource> MakeKdeSource();  // org_kde_kwin_idle

 private:
  class Connection;
  class Outputs;
  explicit WaylandLink(std::unique_ptr<Connection> connection);

  std::unique_ptr<Connection> connection_;
};

}  // namespace starfolds

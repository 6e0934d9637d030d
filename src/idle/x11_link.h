// The service's connection to an X server, without a window.
#pragma once

#include <QCoreApplication>
#include <functional>
#include <memory>

#include "idle/hindrances.h"
#include "idle/idle_source.h"

namespace starfolds {

class X11Link {
  Q_DECLARE_TR_FUNCTIONS(X11Link)

 public:
  /// Connects to the X server that the environment names; nullptr if there is none. `lost` is
  /// called from the event loop when the server has ended. Screens that are off and a running
  /// XScreenSaver are reported to `hindrances` when they are checked; the server sends no events
  /// about them.
  static std::unique_ptr<X11Link> Connect(Hindrances& hindrances, std::function<void()> lost);
  ~X11Link();

  /// nullptr if the server lacks an extension. The link must outlive it.
  std::unique_ptr<IdleSource> MakeSource();

 private:
  class Connection;
  class Source;
  explicit X11Link(std::unique_ptr<Connection> connection);

  std::unique_ptr<Connection> connection_;
};

}  // namespace starfolds

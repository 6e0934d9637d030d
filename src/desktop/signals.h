// Ends the process cleanly when the system asks it to stop.
#pragma once

#include <functional>
#include <memory>

namespace starfolds {

/// While it exists, requests to end (SIGTERM, SIGINT, SIGHUP) are caught and do not kill the
/// process: screen-saver hosts stop their saver by them, and treat any exit code but 0 as a crash.
/// At most one instance may exist at a time. Does nothing on systems without such signals.
class StopSignals {
 public:
  StopSignals();
  ~StopSignals();
  StopSignals(const StopSignals&) = delete;
  StopSignals& operator=(const StopSignals&) = delete;

  /// Calls `stop` from inside the pump when a request arrives, and for one that has arrived
  /// already. The application object must exist.
  void Watch(std::function<void()> stop);

  /// Whether a request has arrived that `Watch` has not reported yet.
  bool Asked() const;

 private:
  class Catcher;
  std::unique_ptr<Catcher> catcher_;
};

}  // namespace starfolds

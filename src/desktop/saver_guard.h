// What the system must not do while the screen saver runs.
#pragma once

#include <memory>

namespace starfolds {

/// While it exists, the system starts no other screen saver over the windows of this process. The
/// display can still be switched off to save power. Does nothing on systems whose savers are
/// started by a host. The application object must exist.
class SaverGuard {
 public:
  SaverGuard();
  ~SaverGuard();

 private:
  class Filter;
  std::unique_ptr<Filter> filter_;
};

}  // namespace starfolds

#include "idle/surroundings.h"

namespace starfolds {

/// In a Wayland session the X server, if there is one, sees only the input of its own windows.
IdleSurroundings::IdleSurroundings(const std::function<void()>& lost, Integer batteryLimit)
    : sessionBus_(QDBusConnection::sessionBus()),
      systemBus_(QDBusConnection::systemBus()),
      wayland_(WaylandLink::Connect(hindrances_, lost)),
      x11_(wayland_ ? nullptr : X11Link::Connect(hindrances_, lost)),
      source_(ChooseSource()),
      session_(systemBus_, hindrances_),
      battery_(systemBus_, hindrances_, batteryLimit),
      desktop_(sessionBus_, hindrances_) {}

std::unique_ptr<IdleSource> IdleSurroundings::ChooseSource() {
  if (wayland_) {
    if (auto source = wayland_->MakeExtSource()) return source;
  }
  if (HasDisplay() && MutterSource::IsOn(sessionBus_)) {
    return std::make_unique<MutterSource>(sessionBus_);
  }
  if (wayland_) return wayland_->MakeKdeSource();
  return x11_ ? x11_->MakeSource() : nullptr;
}

}  // namespace starfolds

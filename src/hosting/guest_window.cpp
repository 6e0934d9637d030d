#include "hosting/guest_window.h"

#include <utility>

#include "hosting/lock_message.h"
#include "universe/host_surface.h"

namespace starfolds {

GuestWindow::GuestWindow(ProcessState& process, SeedSource seed, Long host)
    : process_(process),
      seed_(std::move(seed)),
      host_(OpenForeignWindow(host, *this)),
      surface_(*this),
      picMessage_(surface_.Window()) {}

GuestWindow::~GuestWindow() { process_.Screen.hDCDraw = nullptr; }

bool GuestWindow::Run(bool smallPreview) {
  const GuestOrder order = smallPreview ? GuestOrder::Top : GuestOrder::Bottom;
  if (!host_ || !surface_.ShowInside(*host_, order)) return false;
  BeginRun();
  smallPreview_ = smallPreview;
  WaitUntilShown(process_, surface_);
  do {
    RunAtHostsSize();
  } while (beginAnew_ && !hostGone_ && !process_.Requests.QuitApp());
  return true;
}

void GuestWindow::BeginRun() {
  beginAnew_ = false;
  process_.Requests.BeginRun();
  if (hostGone_) process_.Requests.AskStop();
}

void GuestWindow::RunAtHostsSize() {
  BeginRun();
  surface_.TakeSize(host_->Size());
  ReadAdvancedSettings(process_);
  SetupDisplay(process_, surface_, seed_());
  if (!smallPreview_) ShowLockMessage(picMessage_, process_.Advanced);
  RunEffect(process_, surface_, smallPreview_);
}

/// Ends the run at its next frame, in any stage; `Run` then starts another one. A run started from
/// here would nest in the pump of the old one.
void GuestWindow::HostResized() {
  beginAnew_ = true;
  process_.Requests.AskStop();
}

void GuestWindow::HostGone() {
  hostGone_ = true;
  process_.Requests.AskStop();
}

/// The window is resized some time after the host's; then the message must be centred again.
void GuestWindow::Resized() {
  if (!smallPreview_) ShowLockMessage(picMessage_, process_.Advanced);
}

void GuestWindow::Destroyed() { HostGone(); }

}  // namespace starfolds

#include "hosting/frm_saver.h"

#include <utility>

#include "hosting/lock_message.h"
#include "hosting/saver_password.h"
#include "universe/host_surface.h"
#include "widgets/captions.h"

namespace starfolds {

FrmSaver::FrmSaver(ProcessState& process, SeedSource seed, ScreenPlace place)
    : process_(process),
      seed_(std::move(seed)),
      place_(place),
      backG_(ReadAdvancedSettings(process).Adv_DispBackG),
      input_(process.Advanced.Adv_MouseMove, backG_),
      surface_(*this),
      picMessage_(surface_.Window()) {
  surface_.SetName("frmSaver");
  if (place_.Leads) surface_.SetCaption(kSaverCaption);
}

FrmSaver::~FrmSaver() {
  SetSaverRunning(process_, false);
  process_.Screen.hDCDraw = nullptr;
}

/// The pointer is hidden for a background as well.
void FrmSaver::Load() {
  surface_.HidePointer();
  surface_.ShowFullScreen(backG_ ? Stacking::AtBottom : Stacking::OnTop, place_);
  StackSaver(process_, backG_);
  process_.Requests.BeginRun();
  do {
    RunInWindow();
  } while (outgrown_ && !leaving_ && !process_.Requests.QuitApp());
}

/// A screen that is resized ends the run; the next run has the new size.
void FrmSaver::RunInWindow() {
  if (outgrown_) {
    outgrown_ = false;
    process_.Requests.BeginRun();
    ReadAdvancedSettings(process_);
  }
  WaitUntilShown(process_, surface_);
  surface_.TakeWindowSize();
  SetupDisplay(process_, surface_, seed_());
  ShowLockMessage(picMessage_, process_.Advanced);
  running_ = true;
  RunEffect(process_, surface_);
  running_ = false;
}

void FrmSaver::KeyDown(int, Qt::KeyboardModifiers) {
  if (input_.KeyDown()) QueryUnload();
}

void FrmSaver::Scroll() {
  if (input_.Scroll()) QueryUnload();
}

void FrmSaver::MouseDown() {
  if (input_.MouseDown()) QueryUnload();
}

void FrmSaver::DoubleClick() {
  if (input_.DoubleClick()) QueryUnload();
}

void FrmSaver::MouseMove(int, int) {
  if (input_.MouseMove(SecondsSinceMidnight())) QueryUnload();
}

void FrmSaver::CloseRequested() { QueryUnload(); }

void FrmSaver::Resized() {
  if (!running_ || surface_.HasWindowSize()) return;
  outgrown_ = true;
  process_.Requests.AskStop();
}

void FrmSaver::Destroyed() {
  leaving_ = true;
  process_.Requests.AskStop();
}

/// The password dialog processes window events itself. If the password is wrong, the run continues
/// in its current frame, unless the process must end.
void FrmSaver::QueryUnload() {
  if (leaving_) return;
  leaving_ = true;
  process_.Requests.AskStop();
  leaving_ = VerifySaverPassword(process_);
  if (!leaving_) process_.Requests.TakeBackStop();
}

}  // namespace starfolds

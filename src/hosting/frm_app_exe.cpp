#include "hosting/frm_app_exe.h"

#include <Qt>
#include <cstdio>
#include <utility>

#include "hosting/captions.h"
#include "settings/storage.h"
#include "universe/host_surface.h"

namespace starfolds {

FrmAppExe::FrmAppExe(Saver& saver, SeedSource seed)
    : saver_(saver), seed_(std::move(seed)), surface_(*this) {
  surface_.SetName("frmAppEXE");
}

FrmAppExe::~FrmAppExe() { saver_.Screen.hDCDraw = nullptr; }

void FrmAppExe::Activate() {
  Show();
  while (!started_ && !saver_.QuitApp) {
    started_ = true;
    AppRun();
  }
}

void FrmAppExe::Show() {
  if (LoadAdvancedFromRegistry(*saver_.Tree).Adv_WinResize) {
    surface_.SetCaption(kSaverCaption);
    surface_.ShowResizable();
  } else {
    surface_.HidePointer();
    surface_.ShowFullScreen(Stacking::Ordinary);
  }
}

/// The surface takes the window's size here and nowhere else: a window that is resized meanwhile
/// gets a surface to match with the next run.
void FrmAppExe::AppRun() {
  saver_.StopRun = false;
  WaitUntilShown(saver_, surface_);
  surface_.TakeWindowSize();
  SetupDisplay(saver_, surface_, seed_());
  RunEffect(saver_, surface_);
}

void FrmAppExe::AppQuit() {
  saver_.QuitApp = true;
  saver_.StopRun = true;
}

/// Lets the run end at its next frame, whatever stage it is in, and `Activate` start another one. A
/// run started from here would nest in the pump of the old one and keep its memory for good.
void FrmAppExe::BeginAnew() {
  started_ = false;
  saver_.StopRun = true;
}

void FrmAppExe::ShowProperties() {
  if (propertiesAskedFor_) return;
  propertiesAskedFor_ = true;
  std::fputs("The settings dialog is not part of this version yet.\n", stderr);
}

void FrmAppExe::KeyDown(int key) {
  switch (key) {
    case Qt::Key_Escape: return AppQuit();
    case Qt::Key_F5: return BeginAnew();
    default: return ShowProperties();
  }
}

void FrmAppExe::MouseDown() { ShowProperties(); }

void FrmAppExe::CloseRequested() { AppQuit(); }

void FrmAppExe::Destroyed() { AppQuit(); }

}  // namespace starfolds

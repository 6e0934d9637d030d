#include "hosting/frm_app_exe.h"

#include <Qt>
#include <utility>

#include "hosting/captions.h"
#include "hosting/lock_message.h"
#include "hosting/placed_qt_window.h"
#include "settings/registry.h"
#include "settings/storage.h"
#include "universe/host_surface.h"

namespace starfolds {

FrmAppExe::FrmAppExe(Saver& saver, SeedSource seed, ShowPropertiesDialog frmProps)
    : saver_(saver),
      seed_(std::move(seed)),
      frmProps_(std::move(frmProps)),
      surface_(*this),
      picMessage_(surface_.Window()) {
  surface_.SetName("frmAppEXE");
  // It may have the saver's caption, but a screen saver is to start while it is open.
  surface_.HideFromSearch();
}

FrmAppExe::~FrmAppExe() { saver_.Screen.hDCDraw = nullptr; }

void FrmAppExe::Activate() {
  while (!started_ && !saver_.QuitApp) {
    started_ = true;
    AppRun();
  }
  SavePlacement();
}

void FrmAppExe::SavePlacement() {
  SaveWindowPlacement(PlacedQtWindow(surface_.Window()), *saver_.Tree, sections::kGeneral);
}

/// A window that is as the settings want it stays where it is.
void FrmAppExe::Show() {
  const bool resizable = LoadAdvancedFromRegistry(*saver_.Tree).Adv_WinResize;
  if (resizable_ == resizable) return;
  resizable_ = resizable;
  if (resizable) {
    surface_.SetCaption(kSaverCaption);
    surface_.ShowPointer();
    surface_.ShowResizable([this](QWindow& window) {
      PlacedQtWindow placed(window);
      RestoreWindowPlacement(placed, *saver_.Tree, sections::kGeneral);
    });
  } else {
    surface_.SetCaption("");
    surface_.HidePointer();
    surface_.ShowFullScreen(Stacking::Ordinary);
  }
}

/// The surface takes the window's size here and nowhere else: a window that is resized meanwhile
/// gets a surface to match with the next run. What asked for this run has been heard with it.
void FrmAppExe::AppRun() {
  saver_.StopRun = false;
  saver_.NewRun = false;
  Show();
  WaitUntilShown(saver_, surface_);
  surface_.TakeWindowSize();
  SetupDisplay(saver_, surface_, seed_());
  ShowLockMessage(picMessage_, saver_.Advanced);
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
  SavePlacement();
  frmProps_(surface_.Window());
  if (saver_.QuitApp) return AppQuit();
  BeginAnew();
}

void FrmAppExe::KeyDown(int key, Qt::KeyboardModifiers) {
  switch (key) {
    case Qt::Key_Escape: return AppQuit();
    case Qt::Key_F5: SavePlacement(); return BeginAnew();
    default: return ShowProperties();
  }
}

void FrmAppExe::MouseDown() { ShowProperties(); }

void FrmAppExe::CloseRequested() { AppQuit(); }

void FrmAppExe::Destroyed() { AppQuit(); }

}  // namespace starfolds

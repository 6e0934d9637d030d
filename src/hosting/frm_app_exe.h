// The application's window.
#pragma once

#include <QSize>
#include <functional>
#include <optional>

#include "desktop/message_window.h"
#include "hosting/hint_line.h"
#include "hosting/run_loop.h"

namespace starfolds {

/// Shows the properties dialog over a window that it blocks, and returns when it is closed. With
/// `help` it opens the help of that window beside the dialog.
using ShowPropertiesDialog = std::function<void(QWindow& owner, bool help)>;

/// What a start asks of the window, beside what is stored. With neither a size nor full screen, the
/// window is one that can be resized, in its stored place, if `Adv_WinResize` is on.
struct AppWindowShape {
  bool FullScreen = false;    // whatever `Adv_WinResize` says
  std::optional<QSize> Size;  // of what is inside the frame, likewise; logical pixels
  bool Framed = false;  // if `Adv_WinResize` is off: a window of the usual size, not full screen

  /// Whether the shape is for this run alone, so that no placement is to be stored.
  bool IsForThisRun() const { return FullScreen || Size; }
};

/// Runs the effect for a user who started the program as an application: full-screen, or in a
/// resizable window. Esc closes it, F5 restarts the run, Ctrl+P pauses, Ctrl+S saves a picture; any
/// other key opens the properties dialog, and F1 the help with it.
class FrmAppExe : private WindowEvents {
 public:
  FrmAppExe(ProcessState& process, SeedSource seed, ShowPropertiesDialog frmProps,
            AppWindowShape shape = {});
  ~FrmAppExe() override;

  /// Shows the window and runs the effect. Returns when the user has closed it; the window is
  /// destroyed with this object.
  void Activate();

  QWindow& Window() { return surface_.Window(); }

 private:
  void KeyDown(int key, Qt::KeyboardModifiers modifiers) override;
  void MouseDown() override;
  void CloseRequested() override;
  void Resized() override;
  void Destroyed() override;

  void SavePlacement();
  bool WantsFrame() const;
  void Show();
  void ShowFramed();
  void ShowKeys();
  void AppRun();
  void AppQuit();
  void BeginAnew();
  void ShowProperties(bool help);
  void TogglePause();
  void SavePictureOfUniverse();

  ProcessState& process_;
  SeedSource seed_;
  ShowPropertiesDialog frmProps_;
  AppWindowShape shape_;
  bool started_ = false;  // Started: false when the effect must begin (again)
  bool running_ = false;  // the surface has the size of the current run
  bool paused_ = false;
  bool keysShown_ = false;
  std::optional<bool> framed_;  // how the window is shown; nullopt before that
  WindowSurface surface_;
  MessageWindow picMessage_;
  HintLine hints_;
};

}  // namespace starfolds
